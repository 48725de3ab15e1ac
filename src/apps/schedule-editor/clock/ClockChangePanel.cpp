#include "clock/ClockChangePanel.h"

#include "DateWords.h"
#include "clock/Clock.h"
#include "common/ClockChangeText.h"
#include "follow/EditedSchedule.h"
#include "trelwidgets/PlainToolTip.h"

#include <QEvent>

#include <algorithm>
#include <numeric>

using namespace trel::hosts;
using namespace trel::mediadispatch;

namespace trel::desktop {

namespace {

/// More than anybody plans for; tasks may last for thousands of years.
constexpr int kMostChanges = 24;

/// A sentence for each plan, or one that says that there is none.
int rowsOf(const TaskClockChange& change)
{
    return std::max(1, static_cast<int>(change.plans.size()));
}

template <typename Iterator>
int rowsOf(Iterator begin, Iterator end)
{
    return std::accumulate(begin, end, 0, [](int rows, const TaskClockChange& change) {
        return rows + rowsOf(change);
    });
}

} // namespace

ClockChangePanel::ClockChangePanel(follow::EditedSchedule& edited, QWidget* parent)
    : QListWidget(parent)
    , m_edited(edited)
    , m_search(std::make_shared<ClockChangeWork>())
{
    setObjectName(QStringLiteral("clockChanges"));
    setWordWrap(true);
    setResizeMode(QListView::Adjust);
    setSelectionMode(QAbstractItemView::NoSelection);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

ClockChangePanel::~ClockChangePanel() = default;

QSize ClockChangePanel::sizeHint() const
{
    constexpr int kWidth = 420;
    constexpr int kLines = 6;
    return {kWidth, kLines * fontMetrics().lineSpacing()};
}

void ClockChangePanel::takeEdits(const follow::ScheduleEdits& edits)
{
    order(Clock::current().zone() == m_zone ? edits : m_edited.everything());
}

void ClockChangePanel::order(const follow::ScheduleEdits& edits)
{
    m_zone = Clock::current().zone();
    m_search->order(edits, m_zone, Clock::current().today());
    const auto work = [this, search = m_search](const follow::Cancellation& cancellation) {
        const auto changes = search->find(kMostChanges, cancellation);
        return follow::NewestWork::Outcome([this, changes] { take(*changes); });
    };
    if (edits.isShort() && !m_work.isBusy()) {
        m_work.carryOut(work);
    } else {
        m_work.start(work);
    }
}

void ClockChangePanel::take(const ClockChangeWork::Changes& changes)
{
    if (!m_changes || m_changes->empty() || changes.empty()) {
        const bool isSame = m_changes == changes;
        m_changes = changes;
        if (!isSame) {
            fill();
        }
        return;
    }
    const ClockChangeWork::Changes former = std::move(*m_changes);
    m_changes = changes;
    const auto head = std::mismatch(former.begin(), former.end(), changes.begin(), changes.end());
    const auto tail = std::mismatch(former.rbegin(), std::make_reverse_iterator(head.first),
                                    changes.rbegin(), std::make_reverse_iterator(head.second));
    if (head.first == former.begin() && tail.first == former.rbegin()) {
        fill();
        return;
    }
    int row = rowsOf(former.begin(), head.first);
    for (int left = rowsOf(head.first, tail.first.base()); left > 0; --left) {
        delete takeItem(row);
    }
    for (auto change = head.second; change != tail.second.base(); ++change) {
        insertChange(row, *change);
        row += rowsOf(*change);
    }
}

void ClockChangePanel::fill()
{
    clear();
    setAccessibleName(tr("Clock changes"));
    if (!m_changes) {
        return;
    }
    for (const TaskClockChange& change : *m_changes) {
        insertChange(count(), change);
    }
    if (m_changes->empty()) {
        insertSentence(0, tr("No clock change falls within the validity of any task."), true);
    }
}

void ClockChangePanel::insertSentence(int row, const QString& sentence, bool isFaint)
{
    auto item = std::make_unique<QListWidgetItem>(sentence);
    item->setToolTip(trel::widgets::plainToolTip(sentence));
    if (isFaint) {
        item->setForeground(palette().brush(QPalette::PlaceholderText));
    }
    insertItem(row, item.release());
}

void ClockChangePanel::insertChange(int row, const TaskClockChange& change)
{
    const QString date = dateText(change.change.date);
    for (const TouchedPlan& plan : change.plans) {
        insertSentence(row++, ClockChangeText::sentence(change.change, change.taskId, plan, date),
                       false);
    }
    if (change.plans.empty()) {
        const auto sentence = [&](const QString& text) {
            return text.arg(date, ClockChangeText::timeOfDay(change.change.begin),
                            ClockChangeText::timeOfDay(change.change.end));
        };
        insertSentence(row,
                       sentence(change.change.isLeftOut()
                                    ? tr("%1: %2–%3 is skipped; no plan of task %4 is affected.")
                                    : tr("%1: %2–%3 occurs twice; no plan of task %4 is affected."))
                           .arg(change.taskId),
                       true);
    }
}

void ClockChangePanel::showEvent(QShowEvent* event)
{
    disconnect(m_following);
    m_following =
        connect(&m_edited, &follow::EditedSchedule::edited, this, &ClockChangePanel::takeEdits);
    order(m_edited.everything());
    QListWidget::showEvent(event);
}

void ClockChangePanel::hideEvent(QHideEvent* event)
{
    // What is hidden is worked out when it is shown.
    disconnect(m_following);
    QListWidget::hideEvent(event);
}

void ClockChangePanel::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::LocaleChange ||
        event->type() == QEvent::PaletteChange) {
        fill();
    }
    QListWidget::changeEvent(event);
}

} // namespace trel::desktop
