#include "HostFixture.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QDockWidget>
#include <QMenuBar>
#include <QTabBar>

using namespace trel::desktop;

/// Where Tab leads in the window as it is shown: pressed, not read off the widgets.
class tst_FocusOrder : public QObject
{
    Q_OBJECT

private slots:
    void tabReachesEverythingOnce();
    void backTabGoesTheSameWayBack();

private:
    static QList<QWidget*> walk(QWidget& window, Qt::Key key);
};

namespace {

/// More than the window has.
constexpr int kMostSteps = 120;

bool takesTab(const QWidget* widget)
{
    return (widget->focusPolicy() & Qt::TabFocus) == Qt::TabFocus && widget->isEnabled() &&
           widget->isVisible() && widget->focusProxy() == nullptr;
}

QStringList namesOf(const QList<QWidget*>& widgets)
{
    QStringList names;
    for (const QWidget* const widget : widgets) {
        names.append(QLatin1String(widget->metaObject()->className()) + QLatin1Char(' ') +
                     widget->objectName());
    }
    return names;
}

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

QList<QWidget*> tst_FocusOrder::walk(QWidget& window, Qt::Key key)
{
    QList<QWidget*> reached;
    for (int step = 0; step < kMostSteps; ++step) {
        QTest::keyClick(QApplication::focusWidget(), key,
                        key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
        QWidget* const now = QApplication::focusWidget();
        if (now == nullptr || now->window() != &window || reached.contains(now)) {
            break;
        }
        reached.append(now);
    }
    return reached;
}

void tst_FocusOrder::tabReachesEverythingOnce()
{
    ShownWindow shown;
    QTRY_VERIFY(QApplication::activeWindow() == &shown.window);
    auto* const search = shown.window.findChild<QWidget*>(QStringLiteral("programSearch"));
    search->setFocus();
    const QList<QWidget*> reached = walk(shown.window, Qt::Key_Tab);
    // Around, and back to where it began.
    QCOMPARE(reached.last(), search);
    QStringList missed;
    const QList<QWidget*> widgets = shown.window.findChildren<QWidget*>();
    for (QWidget* const widget : widgets) {
        if (widget->window() == &shown.window && takesTab(widget) && !reached.contains(widget)) {
            missed.append(namesOf({widget}));
        }
    }
    QCOMPARE(missed, QStringList());
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
    QList<QWidget*> onward = walk(shown.window, Qt::Key_Tab);
    search->setFocus();
    QList<QWidget*> back = walk(shown.window, Qt::Key_Backtab);
    QVERIFY(onward.size() > 5);
    // Both end where they began.
    onward.removeLast();
    back.removeLast();
    std::reverse(back.begin(), back.end());
    QCOMPARE(namesOf(back), namesOf(onward));
}

TREL_TEST(tst_FocusOrder, QApplication)
#include "tst_FocusOrder.moc"
