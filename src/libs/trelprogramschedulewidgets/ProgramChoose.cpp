#include "ProgramChoose.h"

#include "CustomTableModel.h"
#include "SHeaderView.h"
#include "ScheduleText.h"
#include "SpinBoxDelegate.h"
#include "card/ProgramNames.h"
#include "chooser/CheckOrder.h"
#include "chooser/ChooserCells.h"
#include "chooser/ChooserForm.h"
#include "chooser/ChooserKeyboard.h"
#include "chooser/ChooserRows.h"
#include "chooser/ChooserTables.h"
#include "chooser/InsertMenu.h"
#include "chooser/OfferChecks.h"
#include "chooser/ProgramInsertion.h"
#include "chooser/RowCursor.h"
#include "service/InvalidEntries.h"
#include "service/PlanInsertion.h"
#include "service/ProgramOffers.h"
#include "service/scheduleManage.h"
#include "trelwidgets/Dialog.h"

#include <QAction>
#include <QKeyEvent>
#include <QMenu>
#include <QSpinBox>

#include <algorithm>
#include <optional>
#include <utility>

namespace trel::mediadispatch {

namespace {

constexpr int kConfirmed = 0;
constexpr int kNotConfirmed = 2;

constexpr QSize kFrameSize(610, 470);
constexpr QSize kTallFrameSize(610, 1000);

/// No row of the right table is being edited.
constexpr int kNoRow = -1;

constexpr char kStyle[] = "style";

scheduleManage& service()
{
    return scheduleManage::getInstance();
}

bool isNoDuration(int progIndex)
{
    return service().isNoDurationType(progIndex);
}

ProgramIten findProgram(int progIndex)
{
    return service().getProgramItemByIndex(progIndex);
}

double lengthOf(int progIndex)
{
    return service().getDurationByIndex(progIndex);
}

/// Of the rows that are about to get this mark, the one to be told: that of the keys, unless it has
/// the mark already. The others are told by the mark of the header.
int rowToTell(const QTableView& table, bool isChecked)
{
    const RowCursor* const cursor = RowCursor::of(table);
    return cursor && isRowChecked(*table.model(), cursor->row()) != isChecked ? cursor->row()
                                                                              : kNoRow;
}

/// Tells a screen reader of the mark of a row, and of that of the header where it is another.
void tellMarks(const QTableView& table, int row)
{
    if (RowCursor* const cursor = RowCursor::of(table)) {
        cursor->tellMark(row);
        cursor->tellHeader();
    }
}

SpinBoxDelegate* countDelegate(const QTableView& planTable)
{
    return qobject_cast<SpinBoxDelegate*>(planTable.itemDelegateForColumn(ChoiceCountColumn));
}

} // namespace

ProgramChoose::ProgramChoose(PlayTask* task, int taskId, int planId, QWidget* parent,
                             bool isNewPlan)
    : QDialog(parent)
    , ui(std::make_unique<ChooserForm>())
    , m_task(task)
    , m_isNewPlan(isNewPlan)
    , m_taskId(taskId)
    , m_planId(planId)
    , m_dialog(new widgets::Dialog(parent))
    , m_result(kNotConfirmed)
{
    qRegisterMetaType<CheckType>("CheckType");
    ui->setupUi(this);
    setUpTables();
    ui->pushButtonDelete->setProperty(kStyle, QStringLiteral("assist"));
    ui->cancelBtn->setProperty(kStyle, QStringLiteral("assist"));
    ui->okBtn->setObjectName(QStringLiteral("comfirmBtn"));
    ui->okBtn->setProperty(kStyle, QStringLiteral("general"));
    setUpFrame();
}

ProgramChoose::~ProgramChoose()
{
    // It stays until the parent goes, and would keep a window and its picture until then.
    if (m_dialog) {
        m_dialog->dismantle();
    }
}

void ProgramChoose::setUpFrame()
{
    m_dialog->setTitle(
        QStringLiteral("%1").arg(scheduleText("zhSelectProgramsStr"), 0, QLatin1Char(' ')));
    m_dialog->setScaleSwitch(kFrameSize, kTallFrameSize);
    m_dialog->setFixedSize(kFrameSize);

    auto* layout = new QVBoxLayout(m_dialog->dialogWidget());
    layout->addWidget(this);
    layout->setContentsMargins(0, 0, 0, 0);

    // A parent that goes while the dialog runs takes the frame along, but this object is its
    // caller's.
    connect(m_dialog, &QObject::destroyed, this, [this] { setParent(nullptr); });
}

void ProgramChoose::setUpTables()
{
    ui->translate();
    ui->tipLab->setProperty(kStyle, QStringLiteral("errorHint"));
    ui->overTimeTip->setProperty(kStyle, QStringLiteral("errorHint"));
    m_programModel = new CustomTableModel(this);
    m_programHeader = setUpProgramTable(ui->tableViewProgramList, m_programModel);
    ui->tableViewProgramList->installEventFilter(this);
    m_offerChecks = std::make_unique<OfferChecks>(*m_programModel, *m_programHeader, m_checkedCount,
                                                  m_checkOrder);
    m_planModel = new CustomTableModel(this);
    m_planHeader = setUpChoiceTable(ui->tableViewChoonse, m_planModel);
    ui->hideTip();
    ui->overTimeTip->hide();
    ui->pushButtonChonse->setProperty("imageBtn", QStringLiteral("turnNext"));
    loadTables();
    connectAll();
}

void ProgramChoose::connectAll()
{
    connect(&service(), &scheduleManage::sigProgIndexChanged, this,
            &ProgramChoose::slotProgIndexChanged);
    connect(ui->tableViewProgramList->itemDelegateForColumn(OfferCheckColumn),
            SIGNAL(signalChecked(CheckType, int, bool)), this,
            SLOT(slotChecked(CheckType, int, bool)));
    connect(ui->tableViewChoonse->itemDelegateForColumn(ChoiceCheckColumn),
            SIGNAL(signalChecked(CheckType, int, bool)), this,
            SLOT(slotChecked(CheckType, int, bool)));
    connect(m_programHeader, &SHeaderView::signalSelectAll, this, &ProgramChoose::slotSelectAll);
    connect(m_planHeader, &SHeaderView::signalSelectAll, this, &ProgramChoose::slotSelectAll);
    connect(ui->pushButtonChonse, &QPushButton::clicked, this, &ProgramChoose::slotChose);
    connect(ui->pushButtonDelete, &QPushButton::clicked, this, &ProgramChoose::slotDelete);
    connect(m_dialog, SIGNAL(signalAccept()), this, SLOT(slotSave()));
    connect(ui->DownBtn, &QPushButton::clicked, this, &ProgramChoose::slotClicked);
    connect(ui->UpBtn, &QPushButton::clicked, this, &ProgramChoose::slotClicked);
    ui->tableViewChoonse->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(ui->tableViewChoonse, &QWidget::customContextMenuRequested, this,
            &ProgramChoose::onCustomContextMenuRequested);
    const auto* spinBox = countDelegate(*ui->tableViewChoonse);
    connect(spinBox, &SpinBoxDelegate::valueChanged, this, &ProgramChoose::onSpinBoxValueChanged);
    connect(ui->okBtn, &QPushButton::clicked, this, &ProgramChoose::onOkBtnClicked);
    connect(ui->cancelBtn, &QPushButton::clicked, this, &ProgramChoose::onCancelBtnClicked);

    // The view listens as well, since before, and has put the editor away by then.
    connect(spinBox, &SpinBoxDelegate::closeEditor, this, &ProgramChoose::showTotalOfTable);
    ui->confirmByKey();
    m_keyboard = std::make_unique<ChooserKeyboard>(*ui, *m_programHeader, *m_planHeader);
    connect(m_keyboard.get(), &ChooserKeyboard::moveWanted, this, &ProgramChoose::moveRow);
}

// Filling the tables

void ProgramChoose::loadTables()
{
    ui->tableViewChoonse->setUpdatesEnabled(false);
    loadPrograms();
    if (!m_isNewPlan) {
        loadPlan();
    }
    enableConfirming();
    ui->tableViewChoonse->setUpdatesEnabled(true);
    updateTotalDuration(kNoRow, kNoRow);
}

void ProgramChoose::loadPrograms()
{
    // The copy of the catalogue is gone when the rows are made: they find their memory in its
    // place.
    m_allPrograms = offeredPrograms(service().getPrograms());
    appendOffers(*m_programModel, m_allPrograms);
}

void ProgramChoose::loadPlan()
{
    const std::string invalidSuffix = scheduleText("szInvalidStr").toStdString();
    const QString nullSuffix = scheduleText("szProgNullStr");
    int index = -1;
    PlayPlan plan = service().getPlan(m_taskId, m_planId, index);
    std::vector<ChoiceRow> rows;
    rows.reserve(plan.programs.size());
    for (struProgInfo& entry : plan.programs) {
        if (buryInvalidEntry(entry, invalidSuffix)) {
            service().addPlan(m_taskId, plan);
        }
        ChoiceRow row = choiceRowOf(entry, findProgram, nullSuffix);
        row.number = static_cast<int>(rows.size()) + 1;
        rows.push_back(std::move(row));
    }
    appendPlanRows(rows);
    m_selectedPrograms = std::move(plan.programs);
}

void ProgramChoose::appendPlanRows(const std::vector<ChoiceRow>& rows)
{
    if (rows.empty()) {
        return;
    }
    appendChoices(*m_planModel, rows);
    // These columns come into being with the first row.
    ui->tableViewChoonse->hideColumn(ChoiceIndexColumn);
    ui->tableViewChoonse->hideColumn(ChoiceNewColumn);
}

// Check marks

void ProgramChoose::slotChecked(CheckType type, int row, bool check)
{
    if (type == ProgramListCheck) {
        setRowChecked(*m_programModel, row, check);
        updateCheckOrder(row, check);
        tellMarks(*ui->tableViewProgramList, row);
    } else if (type == PlanListCheck) {
        setRowChecked(*m_planModel, row, check);
        m_planHeader->setChecked(m_planModel->rowCount() == countCheckedPlanRows());
        tellMarks(*ui->tableViewChoonse, row);
    }
}

void ProgramChoose::slotSelectAll(CheckType type, bool ischeck)
{
    if (type == ProgramListCheck) {
        const int changed = rowToTell(*ui->tableViewProgramList, ischeck);
        m_offerChecks->setAllChecked(ischeck);
        tellMarks(*ui->tableViewProgramList, changed);
    } else if (type == PlanListCheck) {
        const int changed = rowToTell(*ui->tableViewChoonse, ischeck);
        for (int row = 0; row < m_planModel->rowCount(); ++row) {
            setRowChecked(*m_planModel, row, ischeck);
        }
        m_planHeader->setChecked(ischeck);
        tellMarks(*ui->tableViewChoonse, changed);
    }
}

void ProgramChoose::updateCheckOrder(int row, bool check)
{
    if (check) {
        m_offerChecks->check(row);
    } else {
        m_offerChecks->uncheck(row);
    }
}

int ProgramChoose::countCheckedPlanRows() const
{
    return countCheckedRows(*m_planModel);
}

// Moving programs into, out of and within the plan

void ProgramChoose::slotChose()
{
    takeOverOpenCount();
    const std::vector<int> checked = m_offerChecks->rows();
    std::vector<ChoiceRow> rows;
    rows.reserve(checked.size());
    int number = m_planModel->rowCount();
    for (const int row : checked) {
        const auto position = static_cast<std::size_t>(row);
        if (position >= m_allPrograms.size()) {
            continue;
        }
        const struProgInfo& program = m_allPrograms[position];
        rows.push_back(addedRowOf(program, ++number));
        m_selectedPrograms.push_back(program);
        m_planChanged = true;
    }
    appendPlanRows(rows);
    updateTotalDuration(kNoRow, kNoRow);
    renumberPlanRows();
    enableConfirming();
    const RowCursor* const cursor = RowCursor::of(*ui->tableViewChoonse);
    if (cursor && !rows.empty()) {
        cursor->announce(m_planModel->rowCount() - 1);
    }
}

void ProgramChoose::slotDelete()
{
    takeOverOpenCount();
    const std::vector<int> rows = checkedRows(*m_planModel);
    removeRows(*m_planModel, rows);
    removeEntries(m_selectedPrograms, rows);
    enableConfirming();
    m_planChanged = true;
    updateTotalDuration(kNoRow, kNoRow);
    renumberPlanRows();
}

void ProgramChoose::slotClicked()
{
    const int checked = countCheckedPlanRows();
    if (checked == 0) {
        return;
    }
    if (checked > 1) {
        ui->showTip("zhOnlyOne");
        return;
    }
    takeOverOpenCount();
    const auto* button = qobject_cast<QPushButton*>(sender());
    if (button == ui->DownBtn) {
        moveRows(false, true);
    } else if (button == ui->UpBtn) {
        moveRows(true, true);
    }
    ui->hideTip();
    updateTotalDuration(kNoRow, kNoRow);
}

void ProgramChoose::moveRows(bool up, bool byChecks)
{
    std::vector<int> rows;
    if (byChecks) {
        rows = checkedRows(*m_planModel);
    } else if (m_contextRow >= 0 && m_contextRow < m_planModel->rowCount()) {
        rows.push_back(m_contextRow);
    }
    auto* model = qobject_cast<QStandardItemModel*>(ui->tableViewChoonse->model());
    if (rows.empty() || !model) {
        return;
    }

    const int target = moveTarget(rows, up, model->rowCount());
    std::for_each(rows.rbegin(), rows.rend(),
                  [&](int row) { model->insertRow(target, model->takeRow(row)); });

    ui->tableViewChoonse->viewport()->update();
    m_planChanged = true;
    renumberPlanRows();
}

// By a key, which means the row of the cursor as the menu means the one that it was opened on. That
// one stays the row of the menu.
void ProgramChoose::moveRow(int row, bool up)
{
    takeOverOpenCount();
    const int rowOfMenu = std::exchange(m_contextRow, row);
    moveRows(up, false);
    m_contextRow = rowOfMenu;
    m_keyboard->follow(moveTarget({row}, up, m_planModel->rowCount()));
    ui->hideTip();
    updateTotalDuration(kNoRow, kNoRow);
}

void ProgramChoose::renumberPlanRows()
{
    for (int row = 0; row < m_planModel->rowCount(); ++row) {
        m_planModel->setData(m_planModel->index(row, ChoiceNumberColumn), formatRowNumber(row + 1));
    }
}

void ProgramChoose::enableConfirming()
{
    ui->okBtn->setEnabled(!m_selectedPrograms.empty());
}

// The total and what stands below the tables

void ProgramChoose::onSpinBoxValueChanged(QModelIndex index, int value)
{
    // The table does not have the value yet.
    updateTotalDuration(index.row(), value);
}

void ProgramChoose::takeOverOpenCount()
{
    auto* const delegate = countDelegate(*ui->tableViewChoonse);
    // A box that has closed is still there until it is deleted, but is not shown.
    for (QSpinBox* box : ui->tableViewChoonse->viewport()->findChildren<QSpinBox*>(
             QString(), Qt::FindDirectChildrenOnly)) {
        if (!box->isHidden()) {
            delegate->takeOver(box);
        }
    }
}

void ProgramChoose::showTotalOfTable()
{
    updateTotalDuration(kNoRow, kNoRow);
}

double ProgramChoose::updateTotalDuration(int editedRow, int editedCount)
{
    if (!m_planModel) {
        return 0.0;
    }
    const double total = totalDuration(*m_planModel, editedRow, editedCount, lengthOf);
    ui->showTotal(total);
    return total;
}

// The records behind the right table

void ProgramChoose::readBackPlanRows()
{
    takeOverOpenCount();
    m_planChanged = true;
    syncSelectedPrograms();
}

void ProgramChoose::syncSelectedPrograms()
{
    if (!m_planChanged || !m_planModel) {
        return;
    }
    m_selectedPrograms.clear();
    for (int row = 0; row < m_planModel->rowCount(); ++row) {
        struProgInfo entry = choiceAt(*m_planModel, row);
        entry.isInvalid = isInvalidReadBack(entry.progIndex, findProgram(entry.progIndex).isNull);
        m_selectedPrograms.push_back(std::move(entry));
    }
    m_planChanged = false;
}

// Inserting into the plan in use

void ProgramChoose::onCustomContextMenuRequested(QPoint pos)
{
    if (service().getScheduleState()) {
        showInsertMenu(false, pos);
        return;
    }
    readBackPlanRows();
    const QModelIndex index = ui->tableViewChoonse->indexAt(pos);
    if (!index.isValid()) {
        showInsertMenu(false, pos);
        return;
    }
    m_contextRow = index.row();
    showInsertMenu(canInsert(m_contextRow), pos);
}

bool ProgramChoose::canInsert(int row) const
{
    const int progIndex = choiceIndexAt(*m_planModel, row);
    int index = -1;
    const PlayPlan inUse = service().getNowUsePlan(m_taskId, m_planId, index);
    if (index < 0 || isNewChoice(*m_planModel, row)) {
        return false;
    }
    return !findProgram(progIndex).isNull && !holdsAsInvalid(inUse, progIndex);
}

void ProgramChoose::showInsertMenu(bool enabled, QPoint pos)
{
    QMenu menu;
    fillInsertMenu(menu);
    if (enabled) {
        for (const QAction* action : menu.actions()) {
            connect(action, &QAction::triggered, this,
                    &ProgramChoose::onActionInsertProgramTriggered, Qt::UniqueConnection);
        }
    }
    menu.setEnabled(enabled);
    // Without its window the menu would wait for an answer to nothing.
    connect(m_dialog, &QObject::destroyed, &menu, &QWidget::close);
    menu.exec(ui->tableViewChoonse->viewport()->mapToGlobal(pos));
}

void ProgramChoose::onActionInsertProgramTriggered()
{
    const auto* action = qobject_cast<QAction*>(sender());
    if (!action) {
        return;
    }
    takeOverOpenCount();
    switch (insertMenuLine(action->text())) {
    case InsertMenuLine::Cut:
        insertProgram(false);
        break;
    case InsertMenuLine::Delay:
        insertProgram(true);
        break;
    case InsertMenuLine::MoveUp:
        moveRows(true, false);
        break;
    case InsertMenuLine::MoveDown:
        moveRows(false, false);
        break;
    }
}

void ProgramChoose::insertProgram(bool delayed)
{
    std::optional<ProgramInsertion> insertion = ProgramInsertion::prepare(m_taskId, m_planId);
    if (!insertion) {
        return;
    }
    if (insertion->isRefused()) {
        ui->showTip("zhCutProgWarnning");
        return;
    }
    ui->hideTip();
    updateTotalDuration(kNoRow, kNoRow);

    insertion->setPrograms(m_selectedPrograms, choiceAt(*m_planModel, m_contextRow), m_contextRow);
    m_hasNoDuration = insertion->hasNoDuration();
    insertion->handOver(delayed);
    service().passOriginalPlanProgInfo(m_selectedPrograms);
}

// The end of the dialog

int ProgramChoose::execChoose()
{
    m_keyboard->begin();
    m_dialog->exec();
    return m_result;
}

QString ProgramChoose::getSelectedProgramText() const
{
    return programNames(m_selectedPrograms);
}

bool ProgramChoose::hasNoDuration() const
{
    return m_hasNoDuration;
}

std::vector<struProgInfo> ProgramChoose::getSelectedPrograms() const
{
    return m_selectedPrograms;
}

void ProgramChoose::slotSave()
{
    readBackPlanRows();
    if (m_isNewPlan) {
        m_hasNoDuration = containsNoDuration(m_selectedPrograms, isNoDuration);
        accept();
        return;
    }
    int index = -1;
    PlayPlan plan = service().getPlan(m_taskId, m_planId, index);
    if (index == -1) {
        accept();
        return;
    }
    m_hasNoDuration = containsNoDuration(m_selectedPrograms, isNoDuration);
    plan.serviceList.clear();
    plan.programs = m_selectedPrograms;
    plan.hasNoDuration = m_hasNoDuration;
    service().addPlan(m_taskId, plan);
    *m_task = service().getTask(m_taskId);
    accept();
}

void ProgramChoose::onOkBtnClicked()
{
    slotSave();
    m_result = kConfirmed;
    m_dialog->close();
}

void ProgramChoose::onCancelBtnClicked()
{
    m_dialog->close();
}

void ProgramChoose::slotCancel()
{
    m_dialog->close();
}

void ProgramChoose::slotProgIndexChanged() {}

void ProgramChoose::keyPressEvent(QKeyEvent* event)
{
    // The base class would answer Return and Escape itself.
    QWidget::keyPressEvent(event); // NOLINT(bugprone-parent-virtual-call)
}

} // namespace trel::mediadispatch
