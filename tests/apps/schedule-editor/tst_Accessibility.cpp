#include "HostFixture.h"
#include "support/TestProgram.h"

#include "card/PlanColumns.h"

#include <QAbstractSpinBox>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QLayout>
#include <QPushButton>
#include <QTableView>
#include <QTimer>

using namespace trel::desktop;
using namespace trel::mediadispatch;

/// What a screen reader and a keyboard find in the windows.
class tst_Accessibility : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void everyControlOfTheEditorHasNameAndRole();
    void everyControlOfTheChooserHasNameAndRole();
    void everyControlOfTheHostHasNameAndRole();
    void namesTellPlanAndMeaning();
    void namesFollowTheLanguage();
    void tabGoesThroughARowAsItIsRead();

private:
    QWidget* editorOf(int row, int column) const;

    std::unique_ptr<HostFixture> m_host;
};

namespace {

QString nameOf(QWidget* widget)
{
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
}

bool isControl(QWidget* widget)
{
    const bool isPart = qobject_cast<QAbstractSpinBox*>(widget->parentWidget()) != nullptr ||
                        qobject_cast<QComboBox*>(widget->parentWidget()) != nullptr;
    return !isPart && widget->isVisible() &&
           (qobject_cast<QAbstractButton*>(widget) || qobject_cast<QComboBox*>(widget) ||
            qobject_cast<QAbstractSpinBox*>(widget) || qobject_cast<QTableView*>(widget));
}

QAccessible::Role wantedRole(QWidget* widget)
{
    if (qobject_cast<QAbstractSpinBox*>(widget)) {
        return QAccessible::SpinBox;
    }
    if (qobject_cast<QComboBox*>(widget)) {
        return QAccessible::ComboBox;
    }
    if (qobject_cast<QTableView*>(widget)) {
        return QAccessible::Table;
    }
    auto* button = static_cast<QAbstractButton*>(widget);
    // The bar of a card opens and folds it; it is no mark.
    const bool isBar = button->objectName() == QLatin1String("title");
    return button->isCheckable() && !isBar ? QAccessible::CheckBox : QAccessible::Button;
}

/// The controls that lack a name or have another role than theirs, as lines.
QStringList faultsIn(QWidget* window)
{
    QStringList faults;
    const QList<QWidget*> widgets = window->findChildren<QWidget*>();
    int controls = 0;
    for (QWidget* widget : widgets) {
        if (!isControl(widget) || widget->window() != window) {
            continue;
        }
        ++controls;
        const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(widget);
        const QString line = QStringLiteral("%1 in %2")
                                 .arg(widget->objectName(), widget->parentWidget()->objectName());
        if (spoken == nullptr || spoken->text(QAccessible::Name).trimmed().isEmpty()) {
            faults.append(line + QStringLiteral(" has no name"));
        } else if (spoken->role() != wantedRole(widget)) {
            faults.append(line + QStringLiteral(" has role %1").arg(spoken->role()));
        }
    }
    if (controls == 0) {
        faults.append(QStringLiteral("no controls"));
    }
    return faults;
}

} // namespace

void tst_Accessibility::init()
{
    m_host = std::make_unique<HostFixture>();
    m_host->showDemonstration();
}

void tst_Accessibility::cleanup()
{
    m_host.reset();
}

QWidget* tst_Accessibility::editorOf(int row, int column) const
{
    QWidget* holder = m_host->cell(row, column);
    QWidget* field = holder->findChild<QPushButton*>(QStringLiteral("pushButton"));
    return field != nullptr ? field : holder->layout()->itemAt(0)->widget();
}

void tst_Accessibility::everyControlOfTheEditorHasNameAndRole()
{
    QCOMPARE(faultsIn(m_host->editor.get()), QStringList());
}

void tst_Accessibility::everyControlOfTheChooserHasNameAndRole()
{
    QStringList faults{QStringLiteral("no chooser")};
    QTimer::singleShot(0, m_host->editor.get(), [&faults] {
        QWidget* chooser = QApplication::activeModalWidget();
        faults = faultsIn(chooser);
        chooser->close();
    });
    static_cast<QPushButton*>(editorOf(0, ProgramsColumn))->click();
    QCOMPARE(faults, QStringList());
}

void tst_Accessibility::everyControlOfTheHostHasNameAndRole()
{
    m_host->window.show();
    QCOMPARE(faultsIn(&m_host->window), QStringList());
}

void tst_Accessibility::namesTellPlanAndMeaning()
{
    QCOMPARE(nameOf(editorOf(1, StartTimeColumn)), QStringLiteral("Play task 1, Plan 2: from"));
    QCOMPARE(nameOf(editorOf(1, DeleteColumn)), QStringLiteral("Play task 1, Plan 2: Delete"));
    QCOMPARE(nameOf(m_host->firstCard()->findChild<QWidget*>(QStringLiteral("pushButtonDelete"))),
             QStringLiteral("Play task 1 Delete"));
}

void tst_Accessibility::namesFollowTheLanguage()
{
    m_host->languages.select(QStringLiteral("zh_CN"));
    QCOMPARE(nameOf(editorOf(1, StartTimeColumn)), QStringLiteral("播放任务1, 计划2: 从"));
    QCOMPARE(nameOf(m_host->firstCard()->findChild<QWidget*>(QStringLiteral("pushButtonDelete"))),
             QStringLiteral("播放任务1 删除"));
}

void tst_Accessibility::tabGoesThroughARowAsItIsRead()
{
    QWidget* widget = editorOf(0, StartTimeColumn);
    QList<QWidget*> reached{widget};
    for (QWidget* next = widget->nextInFocusChain(); next != widget;
         next = next->nextInFocusChain()) {
        const bool takesTab = (next->focusPolicy() & Qt::TabFocus) == Qt::TabFocus;
        if (takesTab && next->isEnabled() && next->isVisible() &&
            qobject_cast<QTableView*>(next) == nullptr && isControl(next)) {
            reached.append(next);
        }
    }
    const QList<QWidget*> wanted{editorOf(0, StartTimeColumn), editorOf(0, TimesColumn),
                                 editorOf(0, WeeksColumn),     editorOf(0, EndActionColumn),
                                 editorOf(1, ModeColumn),      editorOf(1, StartTimeColumn)};
    QCOMPARE(reached.mid(0, wanted.size()), wanted);
}

TREL_TEST(tst_Accessibility, QApplication)
#include "tst_Accessibility.moc"
