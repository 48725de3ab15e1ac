#include "EditorWindow.h"
#include "LookInForce.h"

#include "MultiComboBox.h"
#include "PlanList.h"
#include "PlanTaskWidget.h"
#include "ProgramSheduleWidgetTranslateManager.h"
#include "support/ChooserAnswer.h"
#include "support/Growth.h"
#include "support/PlanRecords.h"
#include "support/PlanTaskWidgetInspector.h"
#include "support/RecordingService.h"
#include "support/TestProgram.h"
#include "trelwidgets/TipDialog.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QLabel>
#include <QTableView>
#include <QTimeEdit>
#include <QTimer>
#include <QtTest>

#include <functional>
#include <utility>
#include <vector>

using namespace trel::mediadispatch;

namespace {

using Change = std::function<void(Look&)>;
using Pictures = QVector<QImage>;

QPalette strangePalette()
{
    QPalette palette(QColor(60, 60, 70), QColor(30, 30, 40));
    palette.setColor(QPalette::Base, QColor(20, 20, 60));
    palette.setColor(QPalette::Text, QColor(250, 240, 140));
    palette.setColor(QPalette::WindowText, QColor(140, 240, 240));
    palette.setColor(QPalette::ButtonText, QColor(240, 140, 240));
    return palette;
}

/// A sheet that asks for each property that the editor changes while it runs, and a few others.
QString sheetOfHooks()
{
    return QStringLiteral("QWidget[style=\"BG1\"] { background: #334455; }"
                          "QWidget#centerWidget[state=\"busy\"] { background: #553311; }"
                          "QWidget#centerWidget[state=\"default\"] { background: #115533; }"
                          "QLabel[labelImage=\"right\"] { background: #aa0000; }"
                          "QLabel[labelImage=\"down\"] { background: #00aa00; }"
                          "QLabel[style=\"errorHint\"] { color: #aa00aa; }"
                          "QPushButton[style=\"assist\"] { color: #0000aa; }"
                          "QPushButton[style=\"general\"] { color: #aaaa00; }"
                          "QTimeEdit { color: #00aaaa; }");
}

void takePalette(Look& look)
{
    look.palette = strangePalette();
}

void takeFont(Look& look)
{
    look.font.setPixelSize(16);
}

void takeStyle(Look& look)
{
    look.style = QStringLiteral("Windows");
}

void takeSheet(Look& look)
{
    look.sheet = sheetOfHooks();
}

void takeOwnSheet(Look& look)
{
    look.ownSheet = sheetOfHooks();
}

void takeOwnPalette(Look& look)
{
    look.ownPalette = strangePalette();
}

void takeOwnFont(Look& look)
{
    look.ownFont.setPixelSize(14);
}

void keep(Look&) {}

using NamedChange = std::pair<const char*, Change>;

/// Before: what the editor is made under. Then: what comes while it is open.
void addChanges(const std::vector<NamedChange>& changes)
{
    QTest::addColumn<Change>("before");
    QTest::addColumn<Change>("then");
    const std::vector<NamedChange> grounds = {
        {"bare", keep}, {"under a sheet", takeSheet}, {"under a sheet of its own", takeOwnSheet}};
    for (const auto& [groundName, ground] : grounds) {
        for (const auto& [name, change] : changes) {
            QTest::newRow(
                qPrintable(QLatin1String(name) + QLatin1String(", ") + QLatin1String(groundName)))
                << ground << change;
        }
    }
}

void takeAll(Look& look)
{
    takePalette(look);
    takeFont(look);
    takeStyle(look);
}

QPushButton& bar(const PlanTaskWidget& card)
{
    return *card.findChild<QPushButton*>(QStringLiteral("title"));
}

/// After the events that wait. Some of them lay out, and each leaves the one for what lies around
/// it.
QImage pictureOf(QWidget& window)
{
    for (int round = 0; round < 5; ++round) {
        QCoreApplication::processEvents();
    }
    return window.grab().toImage();
}

/// The editor with three cards, the first of which is open. Of its plans two collide.
class Editor
{
public:
    explicit Editor(const Look& look)
    {
        RecordingService& service = RecordingService::instance();
        service.reset();
        service.addProgram(1, "Film", 60000.0);
        service.addProgram(2, "News", 60000.0);
        PlayPlan bad = timePlan(3, "11:00:00", "12:00:00");
        bad.programs = {entry(1), entry(2), entry(7)};
        for (int id = 1; id <= 3; ++id) {
            service.stored[id] = taskWithPlans(
                {timePlan(1, "08:00:00", "09:00:00"), timePlan(2, "08:30:00", "10:00:00"), bad},
                id);
        }
        look.putOn(window.dialog);
        window.dialog.translate();
        window.dialog.slotShow();
        bar(card(0)).setChecked(false);
        bar(card(1)).setChecked(false);
        bar(card(1)).setChecked(true);
    }

    PlanList& list() const { return *window.panel().planList(); }
    PlanTaskWidget& card(int index) const { return *list().cards().at(index); }
    PlanTaskWidgetInspector rows(int index) const { return PlanTaskWidgetInspector(card(index)); }

    QImage picture() { return pictureOf(window.dialog); }

    void put(const Look& look)
    {
        look.put();
        look.putOn(window.dialog);
    }

private:
    ClockAfterStart m_clock;

public:
    EditorWindow window;
};

/// What the editor shows at once, and when its states change afterwards: a bar opens and another
/// one closes, a collision goes, the list becomes empty.
Pictures picturesOf(Editor& editor)
{
    Pictures pictures = {editor.picture()};
    bar(editor.card(0)).setChecked(true);
    bar(editor.card(1)).setChecked(false);
    pictures.append(editor.picture());
    editor.rows(1).startTime(1).setTime(QTime(9, 0));
    pictures.append(editor.picture());
    for (int id = 1; id <= 3; ++id) {
        editor.list().slotDeleteTask(id);
    }
    pictures.append(editor.picture());
    editor.list().refreshPlanList();
    bar(editor.card(0)).setChecked(false);
    pictures.append(editor.picture());
    return pictures;
}

void compare(const Pictures& shown, const Pictures& expected)
{
    QCOMPARE(shown.size(), expected.size());
    for (int i = 0; i < shown.size(); ++i) {
        QVERIFY2(shown.at(i) == expected.at(i), qPrintable(QString::number(i)));
    }
}

QWidget& cellButton(const Editor& editor, int column)
{
    auto& table = editor.rows(0).table();
    return *table.indexWidget(table.model()->index(2, column));
}

/// What a window that opens over the editor shows before a change and after it.
using Opening = std::function<Pictures(Editor&, const std::function<void()>& change)>;

Pictures chooserPictures(Editor& editor, const std::function<void()>& change)
{
    Pictures pictures;
    ChooserAnswer answer([&](ChooserWindow& chooser) {
        chooser.checkPlan(0);
        chooser.checkPlan(1);
        chooser.moveUp(); // Tells that one row is to be chosen.
        pictures.append(pictureOf(*chooser.frame()));
        change();
        pictures.append(pictureOf(*chooser.frame()));
        chooser.cancel();
    });
    cellButton(editor, ProgramsColumn)
        .findChild<QPushButton*>(QStringLiteral("pushButton"))
        ->click();
    return pictures;
}

Pictures promptPictures(Editor& editor, const std::function<void()>& change)
{
    Pictures pictures;
    QTimer::singleShot(0, &editor.window.dialog, [&] {
        QWidget* const prompt = QApplication::activeModalWidget();
        pictures.append(pictureOf(*prompt));
        change();
        pictures.append(pictureOf(*prompt));
        prompt->close();
    });
    QApplication::setActiveWindow(&editor.window.dialog);
    cellButton(editor, DeleteColumn).findChild<QPushButton*>()->click();
    return pictures;
}

Pictures dayListPictures(Editor& editor, const std::function<void()>& change)
{
    MultiComboBox& box = editor.rows(0).weeks(0);
    box.showPopup();
    QWidget* const list = box.view()->window();
    Pictures pictures = {pictureOf(*list)};
    change();
    pictures.append(pictureOf(*list));
    box.hidePopup();
    return pictures;
}

} // namespace

Q_DECLARE_METATYPE(Change)
Q_DECLARE_METATYPE(Opening)

/// A host that changes its look while the editor is open sees what it would see had it done so
/// before.
class tst_LookAtRunTime : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void theEditorFollows_data();
    void theEditorFollows();
    void whatWasHiddenFollows_data();
    void whatWasHiddenFollows();
    void whatIsOpenOverItFollows_data();
    void whatIsOpenOverItFollows();
    void stylesMayComeAndGo_data();
    void stylesMayComeAndGo();
    void whatWasSetByHandIsKept();
    void whatNobodySeesIsLeftAlone();
    void aListUnderASheetIsBuiltInLinearTime_data();
    void aListUnderASheetIsBuiltInLinearTime();

private:
    std::unique_ptr<FormerLook> m_former;
};

void tst_LookAtRunTime::init()
{
    m_former = std::make_unique<FormerLook>();
    Look().put();
}

void tst_LookAtRunTime::cleanup()
{
    m_former.reset();
}

void tst_LookAtRunTime::theEditorFollows_data()
{
    addChanges(
        {{"palette", takePalette}, {"font", takeFont}, {"style", takeStyle}, {"all", takeAll}});
    QTest::newRow("palette of its own") << Change(keep) << Change(takeOwnPalette);
    QTest::newRow("font of its own") << Change(keep) << Change(takeOwnFont);
    QTest::newRow("a sheet") << Change(keep) << Change(takeSheet);
    QTest::newRow("a sheet of its own") << Change(keep) << Change(takeOwnSheet);
}

void tst_LookAtRunTime::theEditorFollows()
{
    QFETCH(const Change, before);
    QFETCH(const Change, then);
    Look first;
    before(first);
    Look second = first;
    then(second);
    first.put();
    Pictures shown;
    QImage there;
    QImage back;
    {
        Editor editor(first);
        there = editor.picture();
        editor.put(second);
        shown.append(editor.picture());
        editor.put(first);
        back = editor.picture();
        editor.put(second);
        shown += picturesOf(editor);
    }
    second.put();
    Editor editor(second);
    Pictures expected = {editor.picture()};
    expected += picturesOf(editor);
    compare(shown, expected);
    QVERIFY(back == there);
    QVERIFY(there != expected.first());
}

void tst_LookAtRunTime::whatWasHiddenFollows_data()
{
    addChanges({{"palette", takePalette}, {"font", takeFont}, {"all", takeAll}});
}

void tst_LookAtRunTime::whatWasHiddenFollows()
{
    QFETCH(const Change, before);
    QFETCH(const Change, then);
    Look first;
    before(first);
    Look second = first;
    then(second);
    first.put();
    QImage shown;
    {
        Editor editor(first);
        editor.picture();
        editor.window.dialog.hide();
        editor.put(second);
        editor.window.dialog.show();
        shown = editor.picture();
    }
    second.put();
    Editor editor(second);
    compare({shown}, {editor.picture()});
}

void tst_LookAtRunTime::whatIsOpenOverItFollows_data()
{
    QTest::addColumn<Opening>("open");
    QTest::addColumn<Change>("before");
    QTest::addColumn<Change>("then");
    const std::initializer_list<std::pair<const char*, Opening>> windows = {
        {"chooser", chooserPictures},
        {"prompt", promptPictures},
        {"list of days", dayListPictures}};
    const std::vector<NamedChange> changes = {
        {"palette", takePalette}, {"font", takeFont}, {"style", takeStyle}, {"sheet", takeSheet}};
    for (const auto& window : windows) {
        for (const auto& change : changes) {
            const auto name = [&](const char* ground) {
                return QStringLiteral("%1, %2, %3")
                    .arg(QLatin1String(window.first), QLatin1String(change.first),
                         QLatin1String(ground));
            };
            QTest::newRow(qPrintable(name("bare")))
                << window.second << Change(keep) << change.second;
            QTest::newRow(qPrintable(name("under a sheet")))
                << window.second << Change(takeSheet) << change.second;
        }
    }
}

void tst_LookAtRunTime::whatIsOpenOverItFollows()
{
    QFETCH(const Opening, open);
    QFETCH(const Change, before);
    QFETCH(const Change, then);
    Look first;
    before(first);
    Look second = first;
    then(second);
    first.put();
    Pictures shown;
    {
        Editor editor(first);
        shown = open(editor, [&] { second.put(); });
    }
    second.put();
    Editor editor(second);
    const Pictures expected = open(editor, [] {});
    QCOMPARE(shown.size(), 2);
    compare({shown.last()}, {expected.last()});
}

void tst_LookAtRunTime::stylesMayComeAndGo_data()
{
    QTest::addColumn<Change>("ground");
    QTest::newRow("bare") << Change(keep);
    QTest::newRow("under a sheet") << Change(takeSheet);
    QTest::newRow("under a sheet of its own") << Change(takeOwnSheet);
    QTest::newRow("under both") << Change([](Look& look) {
        takeSheet(look);
        takeOwnSheet(look);
    });
}

void tst_LookAtRunTime::stylesMayComeAndGo()
{
    QFETCH(const Change, ground);
    Look fusion;
    ground(fusion);
    Look windows = fusion;
    takeStyle(windows);
    Look plain;
    fusion.put();
    Editor editor(fusion);
    const QImage first = editor.picture();
    editor.put(windows);
    const QImage other = editor.picture();
    QVERIFY(other != first);
    for (int round = 0; round < 4; ++round) {
        // States change in between, under the one as under the other.
        bar(editor.card(0)).setChecked(true);
        emit editor.list().sigGetMapCount(3);
        editor.put(fusion);
        bar(editor.card(0)).setChecked(false);
        QVERIFY(editor.picture() == first);
        // The sheets go and come as well.
        editor.put(plain);
        emit editor.list().sigGetMapCount(3);
        bar(editor.card(1)).toggle();
        editor.picture();
        bar(editor.card(1)).toggle();
        editor.put(windows);
        QVERIFY(editor.picture() == other);
    }
}

void tst_LookAtRunTime::whatWasSetByHandIsKept()
{
    Editor editor{Look()};
    QLabel* const label = editor.card(0).findChild<QLabel*>(QStringLiteral("labelTo"));
    QPalette palette;
    palette.setColor(QPalette::WindowText, Qt::magenta);
    label->setPalette(palette);
    QFont font;
    font.setItalic(true);
    label->setFont(font);
    QApplication::setPalette(strangePalette());
    font = QApplication::font();
    font.setPixelSize(16);
    QApplication::setFont(font);
    QCOMPARE(label->palette().color(QPalette::WindowText), QColor(Qt::magenta));
    QCOMPARE(label->palette().color(QPalette::Text), strangePalette().color(QPalette::Text));
    QVERIFY(label->font().italic());
    QCOMPARE(label->font().pixelSize(), 16);
}

void tst_LookAtRunTime::whatNobodySeesIsLeftAlone()
{
    Editor editor{Look()};
    editor.picture();
    auto* const hidden = editor.card(1).findChild<QLabel*>(QStringLiteral("labelTo"));
    auto* const seen = editor.card(0).findChild<QLabel*>(QStringLiteral("labelTo"));
    const QColor before = hidden->palette().color(QPalette::Text);
    Look look;
    takePalette(look);
    editor.put(look);
    const QColor after = strangePalette().color(QPalette::Text);
    QCOMPARE(seen->palette().color(QPalette::Text), after);
    QCOMPARE(hidden->palette().color(QPalette::Text), before);
    bar(editor.card(1)).setChecked(false);
    QCOMPARE(hidden->palette().color(QPalette::Text), after);
}

void tst_LookAtRunTime::aListUnderASheetIsBuiltInLinearTime_data()
{
    QTest::addColumn<Change>("ground");
    QTest::newRow("bare") << Change(keep);
    QTest::newRow("under a sheet") << Change(takeSheet);
    QTest::newRow("under a sheet of its own") << Change(takeOwnSheet);
}

void tst_LookAtRunTime::aListUnderASheetIsBuiltInLinearTime()
{
    QFETCH(const Change, ground);
    Look look;
    ground(look);
    look.put();
    Editor editor(look);
    const double grown = growth(40, 200, [&](int count) {
        auto& stored = RecordingService::instance().stored;
        stored.clear();
        for (int id = 1; id <= count; ++id) {
            stored[id] = taskWithPlans({}, id);
        }
        const double start = processorTime();
        editor.list().refreshPlanList();
        return processorTime() - start;
    });
    QVERIFY2(grown < 2.5, qPrintable(QString::number(grown)));
}

TREL_TEST(tst_LookAtRunTime, QApplication)
#include "tst_LookAtRunTime.moc"
