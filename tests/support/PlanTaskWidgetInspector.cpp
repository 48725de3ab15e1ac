#include "support/PlanTaskWidgetInspector.h"

#include "MultiComboBox.h"
#include "PlanStandardItemModel.h"
#include "kCustomLineEdit.h"

#include "trelwidgets/ComboBox.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTableView>
#include <QTimeEdit>

namespace trel::mediadispatch {

using widgets::ComboBox;

namespace {

QString star(const QWidget& editor)
{
    return QLatin1String(editor.isEnabled() ? "" : "*");
}

QString colour(const QLabel& state)
{
    const QString sheet = state.styleSheet();
    return sheet.mid(6, sheet.indexOf(QLatin1Char(';')) - 6);
}

} // namespace

PlanTaskWidgetInspector::PlanTaskWidgetInspector(PlanTaskWidget& card)
    : m_card(card)
{}

QTableView& PlanTaskWidgetInspector::table() const
{
    return *m_card.findChild<QTableView*>(QStringLiteral("schedule"));
}

int PlanTaskWidgetInspector::rowCount() const
{
    return model().rowCount();
}

QString PlanTaskWidgetInspector::text(int row, PlanColumn column) const
{
    return model().index(row, column).data().toString();
}

QWidget* PlanTaskWidgetInspector::cell(int row, PlanColumn column) const
{
    return table().indexWidget(model().index(row, column));
}

template <typename T>
T& PlanTaskWidgetInspector::editor(int row, PlanColumn column) const
{
    QWidget* const widget = cell(row, column);
    if (auto* const itself = qobject_cast<T*>(widget)) {
        return *itself;
    }
    return *widget->findChild<T*>(QString(), Qt::FindDirectChildrenOnly);
}

kCustomLineEdit& PlanTaskWidgetInspector::programs(int row) const
{
    return editor<kCustomLineEdit>(row, ProgramsColumn);
}

ComboBox& PlanTaskWidgetInspector::mode(int row) const
{
    return editor<ComboBox>(row, ModeColumn);
}

QTimeEdit& PlanTaskWidgetInspector::startTime(int row) const
{
    return editor<QTimeEdit>(row, StartTimeColumn);
}

QTimeEdit& PlanTaskWidgetInspector::endTime(int row) const
{
    return editor<QTimeEdit>(row, EndTimeColumn);
}

QSpinBox& PlanTaskWidgetInspector::times(int row) const
{
    return editor<QSpinBox>(row, TimesColumn);
}

MultiComboBox& PlanTaskWidgetInspector::weeks(int row) const
{
    return editor<MultiComboBox>(row, WeeksColumn);
}

ComboBox& PlanTaskWidgetInspector::endAction(int row) const
{
    return editor<ComboBox>(row, EndActionColumn);
}

QLabel& PlanTaskWidgetInspector::state(int row) const
{
    return editor<QLabel>(row, StateColumn);
}

QPushButton& PlanTaskWidgetInspector::copyButton(int row) const
{
    return editor<QPushButton>(row, CopyColumn);
}

QPushButton& PlanTaskWidgetInspector::deleteButton(int row) const
{
    return editor<QPushButton>(row, DeleteColumn);
}

QString PlanTaskWidgetInspector::line(int row) const
{
    return QStringLiteral("%1 [%2] %3%4 %5-%6%7 x%8%9 %10 end %11 %12")
        .arg(model().index(row, TitleColumn).data(PlanIdRole).toString())
        .arg(model().index(row, ProgramsColumn).data(ProgramTextRole).toString())
        .arg(QLatin1String(mode(row).currentIndex() == TimeMode ? "time" : "frequency"),
             star(mode(row)))
        .arg(startTime(row).text(), endTime(row).text(), star(endTime(row)))
        .arg(times(row).value())
        .arg(star(times(row)), weeks(row).toolTip())
        .arg(endAction(row).currentIndex())
        .arg(colour(state(row)));
}

QStringList PlanTaskWidgetInspector::lines() const
{
    QStringList texts;
    for (int row = 0; row < rowCount(); ++row) {
        texts.append(line(row));
    }
    return texts;
}

QString PlanTaskWidgetInspector::states() const
{
    QStringList texts;
    for (int row = 0; row < rowCount(); ++row) {
        texts.append(colour(state(row)));
    }
    return texts.join(QLatin1Char(' '));
}

template <typename T>
QString PlanTaskWidgetInspector::listDisagreement(const char* name,
                                                  const std::vector<RowWidget<T>>& list,
                                                  PlanColumn column) const
{
    if (static_cast<int>(list.size()) != rowCount()) {
        return QStringLiteral("%1 has %2 entries; ").arg(QLatin1String(name)).arg(list.size());
    }
    QString found;
    for (int row = 0; row < rowCount(); ++row) {
        const RowWidget<T>& entry = list[static_cast<std::size_t>(row)];
        if (entry.row != row || entry.widget != &editor<T>(row, column)) {
            found += QStringLiteral("%1 entry %2; ").arg(QLatin1String(name)).arg(row);
        }
    }
    return found;
}

QString PlanTaskWidgetInspector::disagreement() const
{
    QString found;
    const auto& plans = task().plans;
    const auto size = static_cast<std::size_t>(rowCount());
    if (plans.size() != size || rowByPlanId().size() != size || planIdByRow().size() != size) {
        return QStringLiteral("%1 rows, %2 plans, %3 plan ids, %4 row numbers")
            .arg(rowCount())
            .arg(plans.size())
            .arg(rowByPlanId().size())
            .arg(planIdByRow().size());
    }
    for (int row = 0; row < rowCount(); ++row) {
        const int id = plans[static_cast<std::size_t>(row)].id;
        const bool isInStep =
            model().index(row, TitleColumn).data(PlanIdRole) == id &&
            copyButton(row).property("id") == id && deleteButton(row).property("id") == id &&
            programs(row).row() == row && rowByPlanId().count(id) == 1 &&
            rowByPlanId()[id] == row && planIdByRow().count(row) == 1 && planIdByRow()[row] == id;
        if (!isInStep) {
            found += QStringLiteral("row %1 of plan %2; ").arg(row).arg(id);
        }
    }
    return found + listDisagreement("m_modeCombos", m_card.m_modeCombos, ModeColumn) +
           listDisagreement("m_startTimeEdits", m_card.m_startTimeEdits, StartTimeColumn) +
           listDisagreement("m_endTimeEdits", m_card.m_endTimeEdits, EndTimeColumn) +
           listDisagreement("m_timesSpins", m_card.m_timesSpins, TimesColumn) +
           listDisagreement("m_weekCombos", m_card.m_weekCombos, WeeksColumn) +
           listDisagreement("m_endActionCombos", m_card.m_endActionCombos, EndActionColumn) +
           listDisagreement("m_conflictLabels", m_card.m_conflictLabels, StateColumn);
}

std::string PlanTaskWidgetInspector::computeEndTime(int index, std::string out) const
{
    m_card.computeEndTime(index, out);
    return out;
}

} // namespace trel::mediadispatch
