#include "HostFixture.h"
#include "LanguageFont.h"
#include "ProgramSheduleWidgetTranslateManager.h"
#include "card/PlanColumns.h"
#include "schedulectl/language/EditorTexts.h"
#include "schedulectl/text/TextWidth.h"
#include "support/ChooserAnswer.h"
#include "support/PlatformNotes.h"
#include "support/SampleSchedule.h"
#include "support/TestProgram.h"
#include "tstranslate/Translator.h"

#include <QApplication>
#include <QComboBox>
#include <QFontInfo>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QStyleOptionFrame>
#include <QStyleOptionViewItem>
#include <QTableView>

#include <algorithm>
#include <map>

using namespace trel::console;
using namespace trel::desktop;
using namespace trel::mediadispatch;

/// Every caption of the window, in every language, with the shipped font: none is cut.
class tst_Captions : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void rowsOfANewCard_data() { languageRows(); }
    void rowsOfANewCard();
    void rowsAfterASwitch_data() { languageRows(); }
    void rowsAfterASwitch();
    void choicesOfARow_data() { languageRows(); }
    void choicesOfARow();
    void panelAndCard_data() { languageRows(); }
    void panelAndCard();
    void hintWithoutTasks_data() { languageRows(); }
    void hintWithoutTasks();
    void chooser_data() { languageRows(); }
    void chooser();
    void prompts_data() { languageRows(); }
    void prompts();
    void lengthsWithoutAFontAreOnTheSafeSide_data() { languageRows(); }
    void lengthsWithoutAFontAreOnTheSafeSide();
    void roomsWithoutAWindowAreThoseOfTheWindow();

private:
    static void languageRows();
};

namespace {

constexpr int kPlans = 12;     ///< The last titles have ids of two digits.
constexpr int kStyleReach = 8; ///< By how much the room in a cell differs from style to style.

QString language()
{
    return QString::fromLatin1(QTest::currentDataTag());
}

int widthOf(const QWidget& widget, const QString& text)
{
    return widget.fontMetrics().horizontalAdvance(text);
}

/// Holds texts against the room that they have, and names those that are cut.
class Cuts
{
public:
    void expectRoom(const QString& where, const QString& text, int width, int room)
    {
        if (text.trimmed().isEmpty()) {
            m_lines.append(QStringLiteral("%1 is empty").arg(where));
        } else if (width > room) {
            m_lines.append(QStringLiteral("%1 \"%2\" needs %3 px of %4")
                               .arg(where, text)
                               .arg(width)
                               .arg(room));
        }
    }

    void expectWhole(const QString& where, const QLabel& label)
    {
        expectRoom(where, label.text(), label.sizeHint().width(), label.width());
    }

    void expectWhole(const QString& where, const QAbstractButton& button)
    {
        expectRoom(where, button.text(), button.sizeHint().width(), button.width());
    }

    QString text() const { return m_lines.join(QStringLiteral("; ")); }

private:
    QStringList m_lines;
};

/// What the view leaves for the text of a cell.
int roomInCell(const QTableView& table, const QModelIndex& index)
{
    QStyleOptionViewItem option;
    option.initFrom(&table);
    option.widget = &table;
    option.index = index;
    option.rect = table.visualRect(index);
    option.text = index.data().toString();
    option.features = QStyleOptionViewItem::HasDisplay;
    option.showDecorationSelected = true; // All of the room, also that a short text leaves over.
    const int margin =
        table.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, &option, &table) + 1;
    return table.style()->subElementRect(QStyle::SE_ItemViewItemText, &option, &table).width() -
           2 * margin;
}

/// What a box leaves for the text of its current entry, which stands a pixel off both ends.
int roomInBox(const QComboBox& box)
{
    QStyleOptionComboBox option;
    option.initFrom(&box);
    option.editable = box.isEditable();
    const QRect field = box.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                    QStyle::SC_ComboBoxEditField, &box);
    return field.width() - 2;
}

QStringList entries(const QComboBox& box)
{
    QStringList texts;
    for (int i = 0; i < box.count(); ++i) {
        texts.append(box.itemText(i));
    }
    return texts;
}

/// What a box that shows its text in a line of text leaves for it.
int roomInLine(const QLineEdit& line)
{
    constexpr int margin = 2; // Between the frame of a line and its text.
    QStyleOptionFrame option;
    option.initFrom(&line);
    return line.style()->subElementRect(QStyle::SE_LineEditContents, &option, &line).width() -
           2 * margin;
}

QString editorText(const char* key)
{
    return tessark::trans::translate(ProgramSheduleWidgetTranslateManager::instance().translator(),
                                     QStringLiteral("SheduleWidgets"), QStringLiteral("Widget"),
                                     QString::fromLatin1(key));
}

template <typename T>
T& named(const QWidget& window, const char* name)
{
    T* const found = window.findChild<T*>(QLatin1String(name));
    if (found == nullptr) {
        qFatal("there is no %s", name);
    }
    return *found;
}

/// The editor with a task of many plans, and its card.
struct CardFixture : HostFixture
{
    NoPlatformNotes quiet;

    CardFixture()
    {
        window.openDatabase(database);
        host.addPrograms(samplePrograms(3));
        host.replaceSchedule(sampleSchedule(1, kPlans, 2));
    }

    void showCard()
    {
        showEditor();
        title().setChecked(false);
        QCoreApplication::processEvents();
    }

    QPushButton& title() const { return named<QPushButton>(*editor, "title"); }
    QTableView& table() const { return named<QTableView>(*editor, "schedule"); }

    /// The editor that stands in a cell, within its holder where it has one.
    template <typename T>
    T& cellEditor(int row, PlanColumn column) const
    {
        QWidget* cell = table().indexWidget(table().model()->index(row, column));
        T* const itself = qobject_cast<T*>(cell);
        return itself != nullptr ? *itself : *cell->findChild<T*>();
    }

    /// What is cut of the fixed texts of the rows.
    QString cutsInRows() const
    {
        Cuts cuts;
        for (int row = 0; row < kPlans; ++row) {
            for (const PlanColumn column :
                 {TitleColumn, ModeCaptionColumn, StartTimeCaptionColumn, EndTimeCaptionColumn,
                  TimesCaptionColumn, WeeksCaptionColumn, EndActionCaptionColumn}) {
                const QModelIndex index = table().model()->index(row, column);
                const QString text = index.data().toString();
                cuts.expectRoom(QStringLiteral("row %1 column %2").arg(row).arg(column), text,
                                widthOf(table(), text), roomInCell(table(), index));
            }
        }
        const auto& state = cellEditor<QLabel>(0, StateColumn);
        for (const char* key : {"zhconflictStr", "zhnormalStr"}) {
            cuts.expectRoom(QLatin1String(key), editorText(key), widthOf(state, editorText(key)),
                            state.contentsRect().width());
        }
        return cuts.text();
    }
};

} // namespace

void tst_Captions::languageRows()
{
    QTest::addColumn<bool>("unused");
    const QStringList files =
        QDir(QStringLiteral(LANGUAGES)).entryList({QStringLiteral("??_??.qm")});
    QCOMPARE(files.size(), 10);
    for (const QString& file : files) {
        QTest::newRow(qPrintable(file.left(5))) << true;
    }
}

void tst_Captions::initTestCase()
{
    QApplication::setStyle(QStringLiteral("Fusion"));
    QFont font = QApplication::font();
    font.setPixelSize(12);
    QApplication::setFont(font);
    // Without it the widths say nothing.
    const QFont shipped = languageFont(font, QStringLiteral("de_DE"));
    QVERIFY(QFontInfo(shipped).family().startsWith(QStringLiteral("Noto Sans CJK")));
}

void tst_Captions::rowsOfANewCard()
{
    CardFixture fixture;
    fixture.languages.select(language());
    fixture.showCard();
    QCOMPARE(fixture.table().model()->rowCount(), kPlans);
    QCOMPARE(fixture.cutsInRows(), QString());
}

void tst_Captions::rowsAfterASwitch()
{
    CardFixture fixture;
    fixture.showCard();
    // A switch to the language in use would show too little.
    fixture.languages.select(QStringLiteral("zh_CN"));
    fixture.languages.select(language());
    const QString title = fixture.table().model()->index(kPlans - 1, TitleColumn).data().toString();
    QCOMPARE(title, QStringLiteral("   %1%2:").arg(editorText("zhPlanTimeStr")).arg(kPlans));
    QCOMPARE(fixture.cutsInRows(), QString());
}

void tst_Captions::choicesOfARow()
{
    CardFixture fixture;
    fixture.languages.select(language());
    fixture.showCard();
    Cuts cuts;
    for (const PlanColumn column : {ModeColumn, EndActionColumn}) {
        const auto& box = fixture.cellEditor<QComboBox>(0, column);
        const QStringList texts = entries(box);
        for (const QString& text : texts) {
            cuts.expectRoom(QStringLiteral("choice"), text, widthOf(box, text), roomInBox(box));
        }
    }
    const auto& days = fixture.cellEditor<QComboBox>(0, WeeksColumn);
    const QStringList labels = entries(days);
    for (const QString& label : labels) {
        cuts.expectRoom(QStringLiteral("day"), label, widthOf(days, label),
                        roomInLine(*days.lineEdit()));
    }
    QCOMPARE(cuts.text(), QString());
}

void tst_Captions::panelAndCard()
{
    CardFixture fixture;
    fixture.showCard();
    fixture.languages.select(language());
    QCoreApplication::processEvents();
    Cuts cuts;
    for (const char* name :
         {"pushButtonAddTask", "pushButtonClose", "pushButtonStart", "pushButtonSave"}) {
        cuts.expectWhole(QLatin1String(name), named<QPushButton>(*fixture.editor, name));
    }
    for (const char* name : {"labelvalidTime", "labelTo"}) {
        cuts.expectWhole(QLatin1String(name), named<QLabel>(*fixture.editor, name));
    }
    QCOMPARE(cuts.text(), QString());
}

void tst_Captions::hintWithoutTasks()
{
    const NoPlatformNotes quiet;
    HostFixture fixture;
    fixture.window.openDatabase(fixture.database);
    fixture.showEditor();
    fixture.languages.select(language());
    QCoreApplication::processEvents();
    const auto labels = fixture.editor->findChildren<QLabel*>();
    const auto hint = std::find_if(labels.begin(), labels.end(), [](const QLabel* label) {
        return label->property("style").toString() == QLatin1String("grayHint");
    });
    QVERIFY(hint != labels.end());
    QVERIFY((*hint)->isVisible());
    Cuts cuts;
    cuts.expectWhole(QStringLiteral("hint"), **hint);
    QCOMPARE(cuts.text(), QString());
}

void tst_Captions::chooser()
{
    CardFixture fixture;
    fixture.languages.select(language());
    fixture.showCard();
    Cuts cuts;
    ChooserAnswer answer([&cuts](ChooserWindow& window) {
        for (const char* name : {"label", "label_2", "label_timeWord"}) {
            cuts.expectWhole(QLatin1String(name), *window.label(name));
        }
        for (const char* name : {"pushButtonDelete", "comfirmBtn", "cancelBtn"}) {
            cuts.expectWhole(QLatin1String(name), *window.button(name));
        }
        const QHeaderView& header = *window.planTable()->horizontalHeader();
        int section = 0;
        for (const char* key : {"zhCheckNumber", "szProgramLstStr", "zhPlayCounts"}) {
            cuts.expectRoom(QLatin1String(key), editorText(key), widthOf(header, editorText(key)),
                            header.sectionSize(++section));
        }
        // A move of two rows is refused, which shows the hints.
        window.checkAllPlan();
        window.moveUp();
        QLabel& tip = *window.label("tipLab");
        QVERIFY(tip.isVisible());
        for (const char* key : {"zhOnlyOne", "zhCutProgWarnning"}) {
            tip.setText(editorText(key));
            QCoreApplication::processEvents();
            cuts.expectWhole(QLatin1String(key), tip);
        }
        QLabel& overTime = *window.label("overTimeTip");
        overTime.show();
        QCoreApplication::processEvents();
        cuts.expectWhole(QStringLiteral("overTimeTip"), overTime);
        window.cancel();
    });
    QWidget* const field =
        fixture.table().indexWidget(fixture.table().model()->index(0, ProgramsColumn));
    QTest::mouseClick(&named<QPushButton>(*field, "lineEdit"), Qt::LeftButton);
    QCOMPARE(answer.count(), 1);
    QCOMPARE(cuts.text(), QString());
}

void tst_Captions::prompts()
{
    CardFixture fixture;
    fixture.languages.select(language());
    fixture.showCard();
    Cuts cuts;
    QStringList texts;
    const auto measure = [&cuts, &texts] {
        const QWidget* prompt = QApplication::activeModalWidget();
        QVERIFY(prompt != nullptr);
        const auto& words = named<QLabel>(*prompt, "dialogTipLabel");
        texts.append(words.text());
        cuts.expectRoom(words.text(), words.text(), words.minimumSizeHint().width(), words.width());
        for (const char* name : {"tipButton1", "tipButton2"}) {
            cuts.expectWhole(QLatin1String(name), named<QPushButton>(*prompt, name));
        }
        QTest::mouseClick(&named<QPushButton>(*prompt, "tipButton2"), Qt::LeftButton);
    };
    for (QPushButton* button :
         {&fixture.cellEditor<QPushButton>(0, DeleteColumn),
          &named<QPushButton>(*fixture.title().parentWidget(), "pushButtonDelete")}) {
        QTimer::singleShot(0, &fixture.window, measure);
        QTest::mouseClick(button, Qt::LeftButton);
    }
    QCOMPARE(texts, (QStringList{editorText("szDeletePlanConfirmStr"),
                                 editorText("szDeleteTaskConfirmStr")}));
    QCOMPARE(cuts.text(), QString());
}

void tst_Captions::lengthsWithoutAFontAreOnTheSafeSide()
{
    const HostFixture fixture;
    tessark::trans::Translator translator;
    translator.load(QStringLiteral(LANGUAGES "/%1.qm").arg(language()));
    translator.switchLanguage(language());
    QFont font;
    font.setPixelSize(12);
    const QFontMetrics metrics(languageFont(font, language()));
    for (const EditorText& known : editorTexts()) {
        const QString text = tessark::trans::translate(translator, kTextGroup, kTextContext,
                                                       QString::fromLatin1(known.key));
        const int measured = metrics.horizontalAdvance(text);
        const int told = textWidth(text);
        const bool isNear = known.room == 0 || told <= measured + 2;
        QVERIFY2(told >= measured && isNear, qPrintable(QStringLiteral("%1: %2 px, told as %3")
                                                            .arg(QLatin1String(known.key))
                                                            .arg(measured)
                                                            .arg(told)));
    }
}

void tst_Captions::roomsWithoutAWindowAreThoseOfTheWindow()
{
    CardFixture fixture;
    fixture.showCard();
    const auto cell = [&fixture](PlanColumn column) {
        return roomInCell(fixture.table(), fixture.table().model()->index(0, column));
    };
    const int mode = roomInBox(fixture.cellEditor<QComboBox>(0, ModeColumn));
    const int endAction = roomInBox(fixture.cellEditor<QComboBox>(0, EndActionColumn));
    const int state = fixture.cellEditor<QLabel>(0, StateColumn).contentsRect().width();
    const int day = roomInLine(*fixture.cellEditor<QComboBox>(0, WeeksColumn).lineEdit());
    std::map<QString, int> rooms = {
        {QStringLiteral("zhPlanTimeStr"), cell(TitleColumn)},
        {QStringLiteral("zhModeStr"), cell(ModeCaptionColumn)},
        {QStringLiteral("zhTimeStr"), mode},
        {QStringLiteral("zhFromStr"), cell(StartTimeCaptionColumn)},
        {QStringLiteral("zhToStr"), cell(EndTimeCaptionColumn)},
        {QStringLiteral("zhfrequencyStr"), qMin(mode, cell(TimesCaptionColumn))},
        {QStringLiteral("szDateStr"), cell(WeeksCaptionColumn)},
        {QStringLiteral("zhEndActionStr"), cell(EndActionCaptionColumn)},
        {QStringLiteral("zhBlackScreen"), endAction},
        {QStringLiteral("zhFreezeCurrentFrame"), endAction},
        {QStringLiteral("zhconflictStr"), state},
        {QStringLiteral("zhnormalStr"), state},
        // The sections of the chooser's headers.
        {QStringLiteral("zhCheckNumber"), 50},
        {QStringLiteral("szProgramLstStr"), 110},
        {QStringLiteral("zhPlayCounts"), 94},
    };
    const QStringList days = comparedTexts().front().keys;
    for (const QString& key : days) {
        rooms[key] = day;
    }
    for (const EditorText& known : editorTexts()) {
        const auto found = rooms.find(QString::fromLatin1(known.key));
        const int room = found == rooms.end() ? 0 : found->second;
        // A style may leave a little more than the plainest one does.
        const bool isRight =
            room == 0 ? known.room == 0 : known.room <= room && known.room >= room - kStyleReach;
        QVERIFY2(isRight, qPrintable(QStringLiteral("%1: %2 px, told as %3")
                                         .arg(QLatin1String(known.key))
                                         .arg(room)
                                         .arg(known.room)));
    }
}

TREL_TEST(tst_Captions, QApplication)
#include "tst_Captions.moc"
