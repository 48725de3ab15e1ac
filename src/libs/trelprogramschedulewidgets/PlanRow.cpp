#include "PlanRow.h"

#include "MultiComboBox.h"
#include "PlanColumns.h"
#include "PlanLabels.h"
#include "ProgramNames.h"
#include "ScheduleText.h"
#include "kCustomLineEdit.h"
#include "service/TimeText.h"
#include "service/scheduleManage.h"

#include "trelwidgets/ComboBox.h"

#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QStandardItemModel>
#include <QStringBuilder>
#include <QTableView>
#include <QTimeEdit>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <string>

namespace trel::mediadispatch {

namespace {

constexpr int kEditorHeight = 24;
constexpr int kButtonSize = 24;
constexpr int kModeBoxMargin = 9;

constexpr int kLeastTimes = 1;
constexpr int kMostTimes = 999;

/// The key of a text that belongs to a column.
struct ColumnText
{
    PlanColumn column;
    const char* key;
};

constexpr std::array<ColumnText, 6> kCaptions = {{
    {ModeCaptionColumn, "zhModeStr"},
    {StartTimeCaptionColumn, "zhFromStr"},
    {EndTimeCaptionColumn, "zhToStr"},
    {TimesCaptionColumn, "zhfrequencyStr"},
    {WeeksCaptionColumn, "szDateStr"},
    {EndActionCaptionColumn, "zhEndActionStr"},
}};

/// What a screen reader says of the editor in a column. Its caption stands in a cell of its own,
/// where nothing leads from the editor to it.
constexpr std::array<ColumnText, 9> kSpokenNames = {{
    {ModeColumn, "zhModeStr"},
    {StartTimeColumn, "zhFromStr"},
    {EndTimeColumn, "zhToStr"},
    {TimesColumn, "zhfrequencyStr"},
    {WeeksColumn, "szDateStr"},
    {EndActionColumn, "zhEndActionStr"},
    {CopyColumn, "zhCreateCopy"},
    {DeleteColumn, "szDeleteStr"},
    {ProgramsColumn, "zhSelectProgramsStr"},
}};

/// What of a cell a screen reader stops at: the one widget in a holder, or the button with which a
/// program field opens the chooser; null when the field has none.
QWidget* editorIn(QWidget* holder)
{
    if (const auto* const field = qobject_cast<kCustomLineEdit*>(holder)) {
        return field->findChild<QPushButton*>(QStringLiteral("pushButton"));
    }
    QLayoutItem* const item = holder->layout() ? holder->layout()->itemAt(0) : nullptr;
    return item && item->widget() ? item->widget() : holder;
}

/// Invalid when the table has been given another model, or none.
QModelIndex cellOf(const QTableView& table, int row, int column)
{
    return table.model() ? table.model()->index(row, column) : QModelIndex();
}

void nameEditors(const QTableView& table, int row)
{
    const QString plan = cellOf(table, row, TitleColumn).data().toString().trimmed();
    for (const ColumnText& name : kSpokenNames) {
        QWidget* const holder = table.indexWidget(cellOf(table, row, name.column));
        QWidget* const editor = holder ? editorIn(holder) : nullptr;
        if (editor) {
            editor->setAccessibleName(plan % QLatin1Char(' ') % scheduleText(name.key));
        }
    }
}

void setCellToolTip(const QTableView& table, const QModelIndex& cell, const QString& text)
{
    if (QWidget* const holder = table.indexWidget(cell)) {
        holder->setToolTip(text);
    }
}

// Nobody asks for it in here; it is a hook for those who look at a row from outside.
void markRow(QWidget& editor, int row)
{
    editor.setProperty("row", row);
}

/// Puts editors into the cells of one row, each showing its value.
class RowBuilder
{
public:
    RowBuilder(QTableView& table, int row)
        : m_table(table)
        , m_row(row)
    {}

    /// A locked box shows TimeMode, whatever the mode.
    widgets::ComboBox* addModeBox(int mode, bool isLocked) const;
    /// A text that does not parse leaves the editor at its default.
    QTimeEdit* addTimeEdit(PlanColumn column, const std::string& time) const;
    QSpinBox* addTimesBox(int times) const;
    QLabel* addStateLabel() const;
    MultiComboBox* addWeekBox(const std::string& weeks) const;
    /// A value that is no PlanEndAction leaves the box on its first entry.
    widgets::ComboBox* addEndActionBox(int endAction) const;
    QPushButton* addButton(PlanColumn column, const QString& image, const QString& toolTip,
                           int planId) const;

private:
    template <typename Editor>
    Editor* makeEditor(QWidget*& holder) const;
    void place(PlanColumn column, QWidget* holder) const;

    QTableView& m_table;
    int m_row;
};

// The holder belongs to the viewport from the start, which is where the table wants it, so that no
// widget is polished twice. The layout comes to its holder when it is complete: until then nobody
// asks for it to be carried out, and no request has to be looked for among all that wait.
template <typename Editor>
Editor* RowBuilder::makeEditor(QWidget*& holder) const
{
    holder = new QWidget(m_table.viewport());
    auto* const layout = new QVBoxLayout;
    layout->setContentsMargins(0, 0, 0, 0);
    auto* const editor = new Editor(holder);
    layout->addWidget(editor);
    holder->setLayout(layout);
    return editor;
}

widgets::ComboBox* RowBuilder::addModeBox(int mode, bool isLocked) const
{
    QWidget* holder = nullptr;
    auto* const box = makeEditor<widgets::ComboBox>(holder);
    holder->layout()->setContentsMargins(0, kModeBoxMargin, 0, kModeBoxMargin);
    box->setFixedHeight(kEditorHeight);
    for (const int value : {TimeMode, FrequencyMode}) {
        box->addItem(modeText(value), value);
    }
    box->setCurrentIndex(isLocked ? TimeMode : mode);
    box->setDisabled(isLocked);
    markRow(*box, m_row);
    place(ModeColumn, holder);
    return box;
}

QTimeEdit* RowBuilder::addTimeEdit(PlanColumn column, const std::string& time) const
{
    QWidget* holder = nullptr;
    auto* const editor = makeEditor<QTimeEdit>(holder);
    editor->setFixedHeight(kEditorHeight);
    editor->setContextMenuPolicy(Qt::NoContextMenu);
    // Where one reads from the right, the toolkit turns the sections round: seconds would stand
    // where everybody reads the hours.
    editor->setLayoutDirection(Qt::LeftToRight);
    editor->setDisplayFormat(kTimeFormat);
    editor->setTime(timeFromText(time));
    markRow(*editor, m_row);
    place(column, holder);
    return editor;
}

QSpinBox* RowBuilder::addTimesBox(int times) const
{
    QWidget* holder = nullptr;
    auto* const box = makeEditor<QSpinBox>(holder);
    box->setFixedHeight(kEditorHeight);
    box->setContextMenuPolicy(Qt::NoContextMenu);
    if (times > 0) {
        box->setRange(kLeastTimes, kMostTimes);
        box->setValue(times);
    } else {
        // A plan without a number of runs shows as 0, in the range that a box has by itself; the
        // operator sees that nothing has been entered yet.
        box->setValue(0);
    }
    markRow(*box, m_row);
    place(TimesColumn, holder);
    return box;
}

QLabel* RowBuilder::addStateLabel() const
{
    auto* const label = new QLabel(m_table.viewport());
    markRow(*label, m_row);
    place(StateColumn, label);
    return label;
}

MultiComboBox* RowBuilder::addWeekBox(const std::string& weeks) const
{
    QWidget* holder = nullptr;
    auto* const box = makeEditor<MultiComboBox>(holder);
    box->setFixedHeight(kEditorHeight);
    box->setSeparator(QStringLiteral(","));
    box->setEveryDayText(weekdayText(EveryDay));
    for (int number = EveryDay; number < WeekDayCount; ++number) {
        box->addItem(weekdayText(number), number);
    }
    box->setShownText(weekLabels(weeks));
    box->restoreCheckMarks();
    place(WeeksColumn, holder);
    return box;
}

widgets::ComboBox* RowBuilder::addEndActionBox(int endAction) const
{
    QWidget* holder = nullptr;
    auto* const box = makeEditor<widgets::ComboBox>(holder);
    box->setFixedHeight(kEditorHeight);
    for (const int value : {BlackScreen, FreezeCurrentFrame}) {
        box->addItem(endActionText(value), value);
    }
    if (endAction == BlackScreen || endAction == FreezeCurrentFrame) {
        box->setCurrentIndex(endAction);
    }
    markRow(*box, m_row);
    place(EndActionColumn, holder);
    return box;
}

QPushButton* RowBuilder::addButton(PlanColumn column, const QString& image, const QString& toolTip,
                                   int planId) const
{
    QWidget* holder = nullptr;
    auto* const button = makeEditor<QPushButton>(holder);
    button->setFixedSize(kButtonSize, kButtonSize);
    button->setFocusPolicy(Qt::NoFocus);
    button->setProperty("imageBtn", image);
    button->setProperty("id", planId);
    // The whole cell tells what the button does.
    holder->setToolTip(toolTip);
    place(column, holder);
    return button;
}

// The table shows what it is given, and with that measures and lays out its contents, which under a
// card that is not on screen would be done for nothing: it is done when the card comes into sight.
void RowBuilder::place(PlanColumn column, QWidget* holder) const
{
    QLayout* const layout = m_table.isVisible() ? nullptr : holder->layout();
    if (layout) {
        holder->resize(m_table.columnWidth(column), m_table.rowHeight(m_row));
        layout->setEnabled(false);
    }
    m_table.setIndexWidget(cellOf(m_table, m_row, column), holder);
    if (layout) {
        layout->setEnabled(true);
    }
}

} // namespace

int appendPlanCells(QStandardItemModel& model, const PlayPlan& plan)
{
    QList<QStandardItem*> items;
    items.reserve(PlanColumnCount);
    for (int column = 0; column < PlanColumnCount; ++column) {
        items.append(new QStandardItem);
    }
    items[TitleColumn]->setText(planTitle(plan.id));
    items[TitleColumn]->setData(plan.id, PlanIdRole);
    items[ProgramsColumn]->setData(programNames(plan.programs), ProgramTextRole);
    for (const ColumnText& caption : kCaptions) {
        items[caption.column]->setText(scheduleText(caption.key));
    }
    model.appendRow(items);
    return model.rowCount() - 1;
}

PlanRowEditors addPlanEditors(QTableView& table, int number, PlayPlan& plan)
{
    const bool isLocked =
        std::any_of(plan.programs.begin(), plan.programs.end(), [](const struProgInfo& entry) {
            return scheduleManage::getInstance().isNoDurationType(entry.progIndex);
        });
    if (isLocked) {
        plan.mode = TimeMode;
    }
    if (plan.weeks.empty()) {
        plan.weeks = std::to_string(EveryDay);
    }

    PlanRowEditors editors;
    const RowBuilder row(table, number);
    editors.mode = row.addModeBox(plan.mode, isLocked);
    editors.startTime = row.addTimeEdit(StartTimeColumn, plan.startTime);
    editors.endTime = row.addTimeEdit(EndTimeColumn, plan.endTime);
    editors.endTime->setDisabled(plan.mode == FrequencyMode);
    editors.times = row.addTimesBox(plan.times);
    editors.times->setDisabled(plan.mode == TimeMode);
    editors.state = row.addStateLabel();
    editors.weeks = row.addWeekBox(plan.weeks);
    editors.endAction = row.addEndActionBox(plan.endAction);
    editors.copy = row.addButton(CopyColumn, QStringLiteral("projectSaveAs"),
                                 scheduleText("zhCreateCopy"), plan.id);
    editors.remove =
        row.addButton(DeleteColumn, QStringLiteral("delete"), scheduleText("szDeleteStr"), plan.id);
    return editors;
}

void openRowEditors(QTableView& table, int row)
{
    for (const int column : {ProgramsColumn, ModeColumn, StartTimeColumn, EndTimeColumn,
                             TimesColumn, WeeksColumn, EndActionColumn, StateColumn}) {
        table.openPersistentEditor(cellOf(table, row, column));
    }
    nameEditors(table, row);
}

void translatePlanRow(QTableView& table, int row)
{
    if (!table.model()) {
        return;
    }
    QAbstractItemModel& model = *table.model();
    const auto cell = [&model, row](int column) { return model.index(row, column); };

    const int planId = model.data(cell(TitleColumn), PlanIdRole).toInt();
    model.setData(cell(TitleColumn), retranslatedPlanTitle(planId), Qt::EditRole);
    for (const ColumnText& caption : kCaptions) {
        model.setData(cell(caption.column), scheduleText(caption.key), Qt::EditRole);
    }
    setCellToolTip(table, cell(CopyColumn), scheduleText("zhCreateCopy"));
    setCellToolTip(table, cell(DeleteColumn), scheduleText("szDeleteStr"));
    nameEditors(table, row);
}

void translateModeBox(widgets::ComboBox& box)
{
    for (const int mode : {TimeMode, FrequencyMode}) {
        box.setItemText(mode, modeText(mode));
    }
}

void translateEndActionBox(widgets::ComboBox& box)
{
    for (const int endAction : {BlackScreen, FreezeCurrentFrame}) {
        box.setItemText(endAction, endActionText(endAction));
    }
}

void translateWeekBox(MultiComboBox& box)
{
    box.setEveryDayText(weekdayText(EveryDay));
    for (int number = EveryDay; number < WeekDayCount; ++number) {
        box.setItemText(number, weekdayText(number));
    }
    box.update();
}

} // namespace trel::mediadispatch
