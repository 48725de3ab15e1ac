#include "PlanRow.h"

#include "EditorKeys.h"
#include "MultiComboBox.h"
#include "PlanCells.h"
#include "PlanColumns.h"
#include "PlanRowState.h"
#include "PlanRowTexts.h"
#include "toolkit/CutLabel.h"
#include "toolkit/FocusedWheel.h"
#include "toolkit/StyleRecords.h"

#include "trelwidgets/ComboBox.h"
#include "trelwidgets/PlainToolTip.h"
#include "trelwidgets/SignButton.h"

#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QStandardItemModel>
#include <QStringBuilder>
#include <QTableView>
#include <QTimeEdit>
#include <QVBoxLayout>

#include <array>
#include <utility>

namespace trel::mediadispatch {

namespace {

constexpr int kEditorHeight = 24;
constexpr int kButtonSize = 24;
constexpr int kModeBoxMargin = 9;

constexpr int kLeastTimes = 1;
constexpr int kMostTimes = 999;

/// A text that belongs to a column.
struct ColumnText
{
    PlanColumn column;
    QString PlanRowTexts::*text;
};

constexpr std::array<ColumnText, 6> kCaptions = {{
    {ModeCaptionColumn, &PlanRowTexts::mode},
    {StartTimeCaptionColumn, &PlanRowTexts::from},
    {EndTimeCaptionColumn, &PlanRowTexts::to},
    {TimesCaptionColumn, &PlanRowTexts::frequency},
    {WeeksCaptionColumn, &PlanRowTexts::date},
    {EndActionCaptionColumn, &PlanRowTexts::endAction},
}};

/// What a screen reader says of the editor in a column. Its caption stands in a cell of its own,
/// where nothing leads from the editor to it.
constexpr std::array<ColumnText, 9> kSpokenNames = {{
    {ModeColumn, &PlanRowTexts::mode},
    {StartTimeColumn, &PlanRowTexts::from},
    {EndTimeColumn, &PlanRowTexts::to},
    {TimesColumn, &PlanRowTexts::frequency},
    {WeeksColumn, &PlanRowTexts::date},
    {EndActionColumn, &PlanRowTexts::endAction},
    {CopyColumn, &PlanRowTexts::copy},
    {DeleteColumn, &PlanRowTexts::remove},
    {ProgramsColumn, &PlanRowTexts::choosePrograms},
}};

/// The keys of what Tab passes over. The tool tips of these cells hold one word each.
constexpr std::array<std::pair<PlanColumn, EditorKey>, 3> kColumnKeys = {{
    {ProgramsColumn, EditorKey::ChoosePrograms},
    {CopyColumn, EditorKey::CopyPlan},
    {DeleteColumn, EditorKey::DeletePlan},
}};

/// Invalid when the table has been given another model, or none.
QModelIndex cellOf(const QTableView& table, int row, int column)
{
    return table.model() ? table.model()->index(row, column) : QModelIndex();
}

void nameEditors(const QTableView& table, int row, const PlanRowTexts& texts)
{
    const QString plan = cellOf(table, row, TitleColumn).data().toString().trimmed();
    for (const ColumnText& name : kSpokenNames) {
        QWidget* const editor = editorIn(table, cellOf(table, row, name.column));
        if (editor) {
            editor->setAccessibleName(plan % QLatin1Char(' ') % texts.*name.text);
        }
    }
    for (const auto& [column, key] : kColumnKeys) {
        QWidget* const editor = editorIn(table, cellOf(table, row, column));
        if (editor) {
            editor->setAccessibleDescription(keyText(key));
        }
    }
}

void setCellToolTip(const QTableView& table, const QModelIndex& cell, const QString& text)
{
    if (QWidget* const holder = table.indexWidget(cell)) {
        holder->setToolTip(widgets::plainToolTip(text));
    }
}

// The editor does not ask for it; it is a hook for callers that look at a row from outside.
void markRow(QWidget& editor, int row)
{
    editor.setProperty("row", row);
}

/// Puts editors into the cells of one row, each showing its value.
class RowBuilder
{
public:
    RowBuilder(QTableView& table, int row, const PlanRowTexts& texts)
        : m_table(table)
        , m_row(row)
        , m_texts(texts)
    {}

    /// A locked box shows TimeMode, whatever the mode.
    widgets::ComboBox* addModeBox(int mode, bool isLocked) const;
    QTimeEdit* addTimeEdit(PlanColumn column, const QTime& time) const;
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
    const PlanRowTexts& m_texts;
};

// The holder belongs to the viewport from the start, which is where the table wants it, so that no
// widget is polished twice. The layout comes to its holder when it is complete: until then nothing
// asks for it to be carried out, and no request has to be looked for among all that wait.
template <typename Editor>
Editor* RowBuilder::makeEditor(QWidget*& holder) const
{
    holder = new QWidget(m_table.viewport());
    auto* const layout = new QVBoxLayout;
    layout->setContentsMargins(0, 0, 0, 0);
    auto* const editor = new Editor(holder);
    releaseStyleRecords(*editor);
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
        box->addItem(m_texts.modes.at(static_cast<std::size_t>(value)), value);
    }
    box->setCurrentIndex(isLocked ? TimeMode : mode);
    box->setDisabled(isLocked);
    markRow(*box, m_row);
    place(ModeColumn, holder);
    return box;
}

QTimeEdit* RowBuilder::addTimeEdit(PlanColumn column, const QTime& time) const
{
    QWidget* holder = nullptr;
    auto* const editor = makeEditor<FocusedWheel<QTimeEdit>>(holder);
    editor->setFixedHeight(kEditorHeight);
    editor->setContextMenuPolicy(Qt::NoContextMenu);
    // Where one reads from the right, the toolkit turns the sections round: seconds would stand
    // where everybody reads the hours.
    editor->setLayoutDirection(Qt::LeftToRight);
    editor->setDisplayFormat(kTimeFormat);
    editor->setTime(time);
    markRow(*editor, m_row);
    place(column, holder);
    return editor;
}

QSpinBox* RowBuilder::addTimesBox(int times) const
{
    QWidget* holder = nullptr;
    auto* const box = makeEditor<FocusedWheel<QSpinBox>>(holder);
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
    auto* const label = new CutLabel(m_table.viewport());
    markRow(*label, m_row);
    place(StateColumn, label);
    return label;
}

MultiComboBox* RowBuilder::addWeekBox(const std::string& weeks) const
{
    QWidget* holder = nullptr;
    auto* const box = makeEditor<MultiComboBox>(holder);
    box->setFixedHeight(kEditorHeight);
    // A wheel that scrolls past takes the focus away from nothing.
    box->setFocusPolicy(Qt::StrongFocus);
    box->setSeparator(QStringLiteral(","));
    box->setEveryDayText(m_texts.day(EveryDay));
    for (int number = EveryDay; number < WeekDayCount; ++number) {
        box->addItem(m_texts.day(number), number);
    }
    box->setShownText(m_texts.days(weeks));
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
        box->addItem(m_texts.endActions.at(static_cast<std::size_t>(value)), value);
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
    auto* const button = makeEditor<widgets::SignButton>(holder);
    button->setFixedSize(kButtonSize, kButtonSize);
    button->setFocusPolicy(Qt::NoFocus);
    button->setProperty("imageBtn", image);
    button->setProperty("id", planId);
    // The whole cell tells what the button does.
    holder->setToolTip(widgets::plainToolTip(toolTip));
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

int appendPlanCells(QStandardItemModel& model, const PlanRowState& row, const PlanRowTexts& texts)
{
    QList<QStandardItem*> items;
    items.reserve(PlanColumnCount);
    for (int column = 0; column < PlanColumnCount; ++column) {
        items.append(new QStandardItem);
    }
    items[TitleColumn]->setText(texts.title(row.planId));
    items[TitleColumn]->setData(row.planId, PlanIdRole);
    items[ProgramsColumn]->setData(row.programs, ProgramTextRole);
    for (const ColumnText& caption : kCaptions) {
        items[caption.column]->setText(texts.*caption.text);
    }
    model.appendRow(items);
    return model.rowCount() - 1;
}

PlanRowEditors addPlanEditors(QTableView& table, int number, const PlanRowState& state,
                              const PlanRowTexts& texts)
{
    PlanRowEditors editors;
    const RowBuilder row(table, number, texts);
    editors.mode = row.addModeBox(state.mode, state.isModeLocked);
    editors.startTime = row.addTimeEdit(StartTimeColumn, state.startTime);
    editors.endTime = row.addTimeEdit(EndTimeColumn, state.endTime);
    editors.endTime->setDisabled(state.mode == FrequencyMode);
    editors.times = row.addTimesBox(state.times);
    editors.times->setDisabled(state.mode == TimeMode);
    editors.state = row.addStateLabel();
    editors.weeks = row.addWeekBox(state.weeks);
    editors.endAction = row.addEndActionBox(state.endAction);
    editors.copy =
        row.addButton(CopyColumn, QStringLiteral("projectSaveAs"), texts.copy, state.planId);
    editors.remove =
        row.addButton(DeleteColumn, QStringLiteral("delete"), texts.remove, state.planId);
    return editors;
}

void openRowEditors(QTableView& table, int row, const PlanRowTexts& texts)
{
    for (const int column : {ProgramsColumn, ModeColumn, StartTimeColumn, EndTimeColumn,
                             TimesColumn, WeeksColumn, EndActionColumn, StateColumn}) {
        table.openPersistentEditor(cellOf(table, row, column));
    }
    nameEditors(table, row, texts);
}

void translatePlanRow(QTableView& table, int row, const PlanRowTexts& texts)
{
    if (!table.model()) {
        return;
    }
    QAbstractItemModel& model = *table.model();
    const auto cell = [&model, row](int column) { return model.index(row, column); };

    const int planId = model.data(cell(TitleColumn), PlanIdRole).toInt();
    model.setData(cell(TitleColumn), texts.title(planId), Qt::EditRole);
    for (const ColumnText& caption : kCaptions) {
        model.setData(cell(caption.column), texts.*caption.text, Qt::EditRole);
    }
    setCellToolTip(table, cell(CopyColumn), texts.copy);
    setCellToolTip(table, cell(DeleteColumn), texts.remove);
    nameEditors(table, row, texts);
}

void translateModeBox(widgets::ComboBox& box, const PlanRowTexts& texts)
{
    for (const int mode : {TimeMode, FrequencyMode}) {
        box.setItemText(mode, texts.modes.at(static_cast<std::size_t>(mode)));
    }
}

void translateEndActionBox(widgets::ComboBox& box, const PlanRowTexts& texts)
{
    for (const int endAction : {BlackScreen, FreezeCurrentFrame}) {
        box.setItemText(endAction, texts.endActions.at(static_cast<std::size_t>(endAction)));
    }
}

void translateWeekBox(MultiComboBox& box, const PlanRowTexts& texts)
{
    box.setEveryDayText(texts.day(EveryDay));
    for (int number = EveryDay; number < WeekDayCount; ++number) {
        box.setItemText(number, texts.day(number));
    }
    box.update();
}

} // namespace trel::mediadispatch
