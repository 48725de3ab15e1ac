#include "FocusWalk.h"
#include "HostFixture.h"
#include "HostWindows.h"
#include "place/AddressDialog.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/history/ScheduleVersion.h"
#include "versions/VersionNameDialog.h"

#include <QApplication>
#include <QDockWidget>
#include <QMenuBar>
#include <QTabBar>

#include <functional>
#include <memory>

using namespace trel::desktop;
using trel::mediadispatch::ScheduleVersion;

using Form = std::function<std::unique_ptr<QDialog>()>;
Q_DECLARE_METATYPE(Form)

/// Where Tab leads in the window as it is shown: pressed, not read off the widgets.
class tst_FocusOrder : public QObject
{
    Q_OBJECT

private slots:
    void tabReachesEverythingOnce();
    void backTabGoesTheSameWayBack();
    void tabReachesAllOfTheOtherWindows_data() { addHostWindows(); }
    void tabReachesAllOfTheOtherWindows();
    void tabReachesAllOfTheForms_data();
    void tabReachesAllOfTheForms();
};

namespace {

/// The panel that a widget is in, or the middle of the window.
QString placeOf(const QWidget* widget)
{
    for (; widget != nullptr; widget = widget->parentWidget()) {
        if (qobject_cast<const QDockWidget*>(widget)) {
            return widget->objectName();
        }
    }
    return QStringLiteral("middle");
}

struct ShownWindow : HostFixture
{
    ShownWindow()
    {
        window.openDatabase(database, QStringLiteral(DEMONSTRATION));
        window.show();
        window.activateWindow();
    }
};

} // namespace

void tst_FocusOrder::tabReachesEverythingOnce()
{
    ShownWindow shown;
    QTRY_VERIFY(QApplication::activeWindow() == &shown.window);
    auto* const search = shown.window.findChild<QWidget*>(QStringLiteral("programSearch"));
    search->setFocus();
    const QList<QWidget*> reached = walkFocus(shown.window, Qt::Key_Tab);
    // Around, and back to where it began.
    QCOMPARE(reached.last(), search);
    QCOMPARE(missedIn(shown.window, reached), QStringList());
    // A panel is left only when all of it has been walked through.
    QStringList places;
    for (const QWidget* const widget : reached) {
        const QString place = placeOf(widget);
        if (places.isEmpty() || places.last() != place) {
            places.append(place);
        }
    }
    if (places.first() == places.last()) {
        places.removeLast();
    }
    QVERIFY2(places.removeDuplicates() == 0, qPrintable(namesOf(reached).join(QLatin1Char('\n'))));
}

void tst_FocusOrder::backTabGoesTheSameWayBack()
{
    ShownWindow shown;
    QTRY_VERIFY(QApplication::activeWindow() == &shown.window);
    auto* const search = shown.window.findChild<QWidget*>(QStringLiteral("programSearch"));
    search->setFocus();
    QList<QWidget*> onward = walkFocus(shown.window, Qt::Key_Tab);
    search->setFocus();
    QList<QWidget*> back = walkFocus(shown.window, Qt::Key_Backtab);
    QVERIFY(onward.size() > 5);
    // Both end where they began.
    onward.removeLast();
    back.removeLast();
    std::reverse(back.begin(), back.end());
    QCOMPARE(namesOf(back), namesOf(onward));
}

void tst_FocusOrder::tabReachesAllOfTheOtherWindows()
{
    QFETCH(QString, name);
    const ShownWindow shown;
    QWidget* const window = openHostWindow(shown.window, name);
    QVERIFY(window != nullptr);
    window->activateWindow();
    QTRY_VERIFY(QApplication::activeWindow() == window);
    QTRY_VERIFY(QApplication::focusWidget() != nullptr);
    QWidget* const first = QApplication::focusWidget();
    const QList<QWidget*> reached = walkFocus(*window, Qt::Key_Tab);
    QCOMPARE(missedIn(*window, reached), QStringList());
    QVERIFY2(reached.contains(first), qPrintable(namesOf(reached).join(QLatin1Char('\n'))));
}

void tst_FocusOrder::tabReachesAllOfTheForms_data()
{
    QTest::addColumn<Form>("form");
    QTest::addColumn<QString>("field");
    const auto address = [] {
        return std::make_unique<place::AddressDialog>(
            QStringLiteral("postgresql://desk/shows?schedule=hall"), nullptr);
    };
    const auto version = [] {
        return std::make_unique<versions::VersionNameDialog>(ScheduleVersion(), nullptr);
    };
    QTest::newRow("address") << Form(address) << QStringLiteral("address");
    QTest::newRow("name of a version") << Form(version) << QStringLiteral("versionName");
}

/// The field first, so that one may type at once.
void tst_FocusOrder::tabReachesAllOfTheForms()
{
    QFETCH(const Form, form);
    QFETCH(const QString, field);
    const std::unique_ptr<QDialog> dialog = form();
    dialog->show();
    dialog->activateWindow();
    QTRY_VERIFY(QApplication::activeWindow() == dialog.get());
    QTRY_VERIFY(QApplication::focusWidget() != nullptr);
    QWidget* const first = QApplication::focusWidget();
    QCOMPARE(first->objectName(), field);
    const QList<QWidget*> reached = walkFocus(*dialog, Qt::Key_Tab);
    QCOMPARE(missedIn(*dialog, reached), QStringList());
    QCOMPARE(reached.last(), first);
}

TREL_TEST(tst_FocusOrder, QApplication)
#include "tst_FocusOrder.moc"
