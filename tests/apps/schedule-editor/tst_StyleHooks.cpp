#include "HostFixture.h"
#include "LookSupport.h"
#include "support/TestProgram.h"

#include "card/PlanColumns.h"

#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QTimer>

using namespace trel::desktop;
using namespace trel::mediadispatch;

/// A host may give the application a style sheet of its own. Every hook of the editor then has the
/// colour that the sheet gives it, over the editor's own style as over a plain one.
class tst_StyleHooks : public QObject
{
    Q_OBJECT

private slots:
    void aSheetReachesEveryHookOfTheEditor_data();
    void aSheetReachesEveryHookOfTheEditor();
    void aSheetReachesEveryHookOfTheChooser_data();
    void aSheetReachesEveryHookOfTheChooser();

private:
    void setUp(bool plain);
    static QString missing(QWidget* widget, int hook, double share);
    QPushButton* rowButton(int column) const;

    std::unique_ptr<HostFixture> m_host;
};

namespace {

enum Hook {
    General,
    Assist,
    GrayHint,
    ErrorHint,
    Card,
    Field,
    FrameBar,
    PanelDefault,
    PanelBusy,
    SaveAs,
    Delete,
    Add,
    TurnNext,
    Close,
    ArrowRight,
    ArrowDown,
    CardTitle,
    CardAdd,
    Table,
    Header,
    Confirm,
    Up,
    Down,
    Warning,
    HookCount
};

const char* const kSelectors[HookCount] = {
    "QPushButton[style=\"general\"]",
    "QPushButton[style=\"assist\"]",
    "QLabel[style=\"grayHint\"]",
    "QLabel[style=\"errorHint\"]",
    "QWidget[style=\"BG1\"]",
    "QFrame[style=\"BG3\"]",
    "QWidget[style=\"BG4\"]",
    "QWidget#centerWidget[state=\"default\"]",
    "QWidget#centerWidget[state=\"busy\"]",
    "QPushButton[imageBtn=\"projectSaveAs\"]",
    "QPushButton[imageBtn=\"delete\"]",
    "QPushButton[imageBtn=\"add\"]",
    "QPushButton[imageBtn=\"turnNext\"]",
    "QPushButton[imageBtn=\"close\"]",
    "QLabel#arrow[labelImage=\"right\"]",
    "QLabel#arrow[labelImage=\"down\"]",
    "QPushButton#title",
    "QPushButton#pushButtonAdd",
    "QTableView#schedule",
    "QHeaderView#schedule::section",
    "QPushButton#comfirmBtn",
    "QPushButton#UpBtn",
    "QPushButton#DownBtn",
    "QLabel#warningLab",
};

/// A colour that no theme has, and another one for every hook.
QColor colourOf(int hook)
{
    return QColor(200, 10 * hook, 255 - 10 * hook);
}

QString sheet()
{
    QString text;
    for (int hook = 0; hook < HookCount; ++hook) {
        text += QStringLiteral("%1 { background-color: %2; border: none; }\n")
                    .arg(QLatin1String(kSelectors[hook]), colourOf(hook).name());
    }
    return text;
}

void addStyles()
{
    QTest::addColumn<bool>("plain");
    QTest::newRow("over the editor's style") << false;
    QTest::newRow("over a plain style") << true;
}

} // namespace

void tst_StyleHooks::setUp(bool plain)
{
    m_host = std::make_unique<HostFixture>();
    if (plain) {
        QApplication::setStyle(QStringLiteral("Fusion"));
    }
    qApp->setStyleSheet(sheet());
    QCOMPARE(m_host->window.openDatabase(m_host->database, QStringLiteral(DEMONSTRATION)),
             QString());
    m_host->editor->show();
}

// On a ground alone the editor draws its own sign.
QString tst_StyleHooks::missing(QWidget* widget, int hook, double share)
{
    const QString selector = QLatin1String(kSelectors[hook]);
    if (widget == nullptr) {
        return selector + QStringLiteral(": no such widget\n");
    }
    const double seen = shareOf(widget->grab().toImage(), colourOf(hook));
    return seen >= share ? QString() : QStringLiteral("%1: %2\n").arg(selector).arg(seen);
}

QPushButton* tst_StyleHooks::rowButton(int column) const
{
    auto* table = m_host->editor->findChild<QTableView*>(QStringLiteral("schedule"));
    QWidget* holder = table->indexWidget(table->model()->index(0, column));
    const QString add = QStringLiteral("pushButton");
    QPushButton* half = holder->findChild<QPushButton*>(add);
    return half != nullptr ? half : holder->findChild<QPushButton*>();
}

void tst_StyleHooks::aSheetReachesEveryHookOfTheEditor_data()
{
    addStyles();
}

void tst_StyleHooks::aSheetReachesEveryHookOfTheEditor()
{
    QFETCH(bool, plain);
    setUp(plain);
    scheduleControlUI* editor = m_host->editor.get();
    const auto find = [editor](const char* name) {
        return editor->findChild<QWidget*>(QLatin1String(name));
    };
    const auto hint = [editor] {
        const QList<QLabel*> labels = editor->findChildren<QLabel*>();
        for (QLabel* label : labels) {
            if (label->property("style").toString() == QLatin1String("grayHint")) {
                return label;
            }
        }
        return static_cast<QLabel*>(nullptr);
    };
    QString faults;
    faults += missing(find("centerWidget"), PanelDefault, 0.02);
    faults += missing(hint(), GrayHint, 0.3);

    editor->clearAndInitialize();
    QCoreApplication::processEvents();
    faults += missing(find("centerWidget"), PanelBusy, 0.02);
    faults += missing(find("arrow"), ArrowRight, 0.7);
    find("title")->setProperty("checked", false);
    QCoreApplication::processEvents();

    faults += missing(find("arrow"), ArrowDown, 0.7);
    faults += missing(find("pushButtonAddTask"), General, 0.5);
    faults += missing(find("pushButtonSave"), General, 0.3);
    faults += missing(find("pushButtonStart"), Assist, 0.3);
    faults += missing(find("pushButtonClose"), Assist, 0.3);
    faults += missing(find("PlanTaskWidget"), Card, 0.02);
    faults += missing(find("title"), CardTitle, 0.5);
    faults += missing(find("pushButtonAdd"), CardAdd, 0.3);
    faults += missing(find("pbtCreatCopy"), SaveAs, 0.3);
    faults += missing(find("pushButtonDelete"), Delete, 0.3);
    faults += missing(find("schedule"), Table, 0.1);
    faults += missing(rowButton(CopyColumn), SaveAs, 0.3);
    faults += missing(rowButton(DeleteColumn), Delete, 0.3);
    faults += missing(rowButton(ProgramsColumn), Add, 0.3);
    faults += missing(find("kCustomLineEdit"), Field, 0.001);
    faults += missing(find("dialogTitle"), FrameBar, 0.3);
    faults += missing(find("ButtonClose"), Close, 0.3);
    qApp->setStyleSheet(QString());
    m_host.reset();
    QVERIFY2(faults.isEmpty(), qPrintable(faults));
}

void tst_StyleHooks::aSheetReachesEveryHookOfTheChooser_data()
{
    addStyles();
}

void tst_StyleHooks::aSheetReachesEveryHookOfTheChooser()
{
    QFETCH(bool, plain);
    setUp(plain);
    m_host->editor->clearAndInitialize();
    QCoreApplication::processEvents();
    QString faults = QStringLiteral("no chooser");
    QTimer::singleShot(0, m_host->editor.get(), [&faults] {
        QWidget* chooser = QApplication::activeModalWidget();
        const auto find = [chooser](const char* name) {
            return chooser->findChild<QWidget*>(QLatin1String(name));
        };
        for (const char* name : {"warningLab", "tipLab", "overTimeTip"}) {
            find(name)->show();
        }
        QCoreApplication::processEvents();
        faults.clear();
        faults += missing(find("comfirmBtn"), Confirm, 0.3);
        faults += missing(find("cancelBtn"), Assist, 0.3);
        faults += missing(find("pushButtonDelete"), Assist, 0.3);
        faults += missing(find("UpBtn"), Up, 0.3);
        faults += missing(find("DownBtn"), Down, 0.3);
        faults += missing(find("pushButtonChonse"), TurnNext, 0.3);
        faults += missing(find("warningLab"), Warning, 0.4);
        faults += missing(find("tipLab"), ErrorHint, 0.3);
        faults += missing(find("overTimeTip"), ErrorHint, 0.3);
        const auto tables = chooser->findChildren<QTableView*>(QStringLiteral("schedule"));
        for (QTableView* table : tables) {
            faults += missing(table, Table, 0.3);
            faults += missing(table->horizontalHeader(), Header, 0.3);
        }
        chooser->close();
    });
    rowButton(ProgramsColumn)->click();
    qApp->setStyleSheet(QString());
    m_host.reset();
    QVERIFY2(faults.isEmpty(), qPrintable(faults));
}

TREL_TEST(tst_StyleHooks, QApplication)
#include "tst_StyleHooks.moc"
