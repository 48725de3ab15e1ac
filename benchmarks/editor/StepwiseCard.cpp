#include "StepwiseCard.h"

#include "LiteralRules.h"
#include "PlainRow.h"
#include "ScheduleText.h"
#include "card/PlanColumns.h"
#include "service/scheduleManage.h"

#include <QLabel>
#include <QStandardItemModel>
#include <QTableView>

#include <optional>

using namespace trel::mediadispatch;

namespace bench {

namespace {

std::optional<ProgramIten> fetch(int progIndex)
{
    const auto programs = scheduleManage::getInstance().getPrograms();
    const auto found = programs.find(progIndex);
    return found == programs.end() ? std::nullopt : std::make_optional(found->second);
}

bool hasNoDuration(int progIndex)
{
    return scheduleManage::getInstance().isNoDurationType(progIndex);
}

} // namespace

StepwiseCard::StepwiseCard(const PlayTask& task)
    : m_task(task)
    , m_card(task, nullptr)
{}

void StepwiseCard::addRows()
{
    QTableView& table = *m_card.table();
    QStandardItemModel& model = *m_card.model();
    table.setUpdatesEnabled(false);
    for (const PlayPlan& plan : m_task.plans) {
        model.appendRow(makePlainCells(plan));
        const int row = model.rowCount() - 1;
        m_labels.push_back(addPlainEditors(table, row, plan, &m_card));
        table.setIndexWidget(model.index(row, ProgramsColumn), makePlainField(plan, &m_card));
        for (const int column : {ProgramsColumn, ModeColumn, StartTimeColumn, EndTimeColumn,
                                 TimesColumn, WeeksColumn, EndActionColumn, StateColumn}) {
            table.openPersistentEditor(model.index(row, column));
        }
    }
    table.setUpdatesEnabled(true);
}

void StepwiseCard::runPass()
{
    const std::vector<bool> collides = literal::collidingPlans(m_task.plans, fetch, hasNoDuration);
    for (std::size_t i = 0; i < m_labels.size(); ++i) {
        m_task.plans[i].isConflict = collides[i];
        m_labels[i]->setStyleSheet(collides[i] ? QStringLiteral("color:red; padding-left: 1px;")
                                               : QStringLiteral("color:green; padding-left: 1px;"));
        m_labels[i]->setText(scheduleText(collides[i] ? "zhconflictStr" : "zhnormalStr"));
    }
    m_card.table()->viewport()->update();
    scheduleManage::getInstance().addTask(m_task);
}

} // namespace bench
