#include "FocusInSight.h"

#include "MultiComboBox.h"
#include "PlanCells.h"
#include "PlanRow.h"

#include "trelwidgets/ComboBox.h"

#include <QFocusEvent>
#include <QSpinBox>
#include <QTableView>
#include <QTimeEdit>

namespace trel::mediadispatch {

namespace {

/// A click goes to what is in sight, and a window that comes back leaves everything in its place.
bool isByKey(Qt::FocusReason reason)
{
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
           reason == Qt::ShortcutFocusReason || reason == Qt::OtherFocusReason;
}

class FocusInSight : public QObject
{
public:
    explicit FocusInSight(QTableView& table)
        : QObject(&table)
        , m_table(table)
    {
        setObjectName(QStringLiteral("focusInSight"));
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::FocusIn &&
            isByKey(static_cast<QFocusEvent*>(event)->reason())) {
            m_table.scrollTo(cellOf(m_table, static_cast<QWidget*>(watched)));
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QTableView& m_table;
};

QObject* watcherOf(QTableView& table)
{
    QObject* const watcher =
        table.findChild<QObject*>(QStringLiteral("focusInSight"), Qt::FindDirectChildrenOnly);
    return watcher ? watcher : new FocusInSight(table);
}

} // namespace

void keepFocusInSight(QTableView& table, const PlanRowEditors& editors)
{
    QObject* const watcher = watcherOf(table);
    for (QWidget* const editor :
         std::initializer_list<QWidget*>{editors.mode, editors.startTime, editors.endTime,
                                         editors.times, editors.weeks, editors.endAction}) {
        editor->installEventFilter(watcher);
    }
}

} // namespace trel::mediadispatch
