#include "year/YearStrip.h"

#include "DateWords.h"
#include "PlainLines.h"
#include "access/AccessibleParts.h"
#include "clock/Clock.h"
#include "common/SentenceText.h"
#include "follow/EditedSchedule.h"
#include "service/DateText.h"

#include <QEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include <algorithm>
#include <optional>

using namespace trel::mediadispatch;

namespace trel::desktop::year {

namespace {

constexpr int kDaysOfWeek = 7;
constexpr int kMonths = 12;
constexpr int kLaneArea = 24;
constexpr int kSpace = 3;
constexpr int kMarkHeight = 4;
/// More of them fill no tool tip and nobody's ears.
constexpr int kMostTold = 8;

QString gapText(const YearStretch& gap)
{
    return YearStrip::tr("Gap: no task is valid from %1 to %2.")
        .arg(dateText(gap.first), dateText(gap.last));
}

QString overlapText(const YearStretch& overlap)
{
    return YearStrip::tr("Overlap: several tasks are valid from %1 to %2.")
        .arg(dateText(overlap.first), dateText(overlap.last));
}

} // namespace

YearStrip::YearStrip(follow::EditedSchedule& edited, QWidget* parent)
    : QWidget(parent)
    , m_edited(edited)
    , m_colours(look::darkColours())
    , m_week(Clock::current().today())
{
    setObjectName(QStringLiteral("yearStrip"));
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    layOut(m_week.year());
}

QSize YearStrip::sizeHint() const
{
    return {2 * kMonths * fontMetrics().averageCharWidth() * 4,
            fontMetrics().height() + kLaneArea + 2 * kSpace};
}

QSize YearStrip::minimumSizeHint() const
{
    return {kMonths * fontMetrics().averageCharWidth() * 2, sizeHint().height()};
}

void YearStrip::showWeek(const QDate& first)
{
    m_week = first;
    const QDate last = first.addDays(kDaysOfWeek - 1);
    // Within the year on show as long as a day of it is: its first day can be clicked.
    if (first.year() != m_layout.year && last.year() != m_layout.year) {
        layOut(first.addDays(kDaysOfWeek / 2).year());
    }
    access::tellCurrentPart(*this);
    update();
}

void YearStrip::setColours(const look::ThemeColours& colours)
{
    m_colours = colours;
    update();
}

void YearStrip::take(const follow::ScheduleEdits& edits)
{
    Validities changed = edits.isWhole ? Validities() : m_validities;
    for (const auto& [id, task] : edits.tasks) {
        if (task) {
            changed[id] = {dateFromText(task->startDate), dateFromText(task->endDate)};
        } else {
            changed.erase(id);
        }
    }
    if (changed != m_validities) {
        m_validities = std::move(changed);
        layOut(m_layout.year);
    }
}

void YearStrip::layOut(int year)
{
    m_layout = layoutYear(year, m_validities);
    describe();
    update();
}

void YearStrip::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (!m_following) {
        m_following = connect(&m_edited, &follow::EditedSchedule::edited, this, &YearStrip::take);
        take(m_edited.everything());
    }
}

void YearStrip::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    disconnect(m_following);
    m_following = {};
}

QRect YearStrip::days() const
{
    const int year = fontMetrics().horizontalAdvance(QStringLiteral("0000")) + 4 * kSpace;
    return rect().adjusted(year, 0, -kSpace, 0);
}

QRect YearStrip::placeOf(const QDate& first, const QDate& last) const
{
    const QDate begin(m_layout.year, 1, 1);
    const QRect room = days();
    const auto x = [&](const QDate& day) {
        return room.left() +
               static_cast<int>(begin.daysTo(day) * room.width() / begin.daysInYear());
    };
    const int left = x(first);
    const int right = std::max(left + 1, x(last.addDays(1)));
    const int top = fontMetrics().height() + kSpace;
    return QStyle::visualRect(layoutDirection(), rect(), QRect(left, top, right - left, kLaneArea));
}

QDate YearStrip::dayAt(const QPoint& place) const
{
    const QPoint logical = QStyle::visualPos(layoutDirection(), rect(), place);
    const QRect room = days();
    const QDate begin(m_layout.year, 1, 1);
    const int count = begin.daysInYear();
    const int day = (logical.x() - room.left()) * count / std::max(1, room.width());
    return begin.addDays(std::clamp(day, 0, count - 1));
}

QRect YearStrip::lane(const YearSpan& span) const
{
    const QRect whole = placeOf(span.first, span.last);
    const int height = (kLaneArea - kMarkHeight) / m_layout.lanes;
    return {whole.left(), whole.top() + span.lane * height, whole.width(), height - 1};
}

QRect YearStrip::weekFrame() const
{
    const QDate first(m_layout.year, 1, 1);
    const QDate last(m_layout.year, kMonths, 31);
    QRect week = placeOf(std::max(m_week, first), std::min(m_week.addDays(kDaysOfWeek - 1), last));
    if (week.width() < 2 * kSpace) {
        week.adjust(-kSpace, 0, kSpace, 0);
    }
    return week.adjusted(0, -1, 0, 1);
}

void YearStrip::paintMonths(QPainter& painter) const
{
    const int height = fontMetrics().height();
    painter.setPen(m_colours.text);
    const QRect gutter = QStyle::visualRect(layoutDirection(), rect(),
                                            QRect(kSpace, 0, days().left() - kSpace, height));
    painter.drawText(gutter, int(Qt::AlignVCenter) | int(Qt::AlignLeading),
                     QString::number(m_layout.year));
    for (int month = 1; month <= kMonths; ++month) {
        const QDate first(m_layout.year, month, 1);
        const QRect place = placeOf(first, first.addMonths(1).addDays(-1));
        const QRect name =
            QStyle::visualRect(layoutDirection(), place,
                               QRect(place.left() + kSpace, 0, place.width() - kSpace, height));
        painter.setPen(m_colours.faintText);
        painter.drawText(
            name, int(Qt::AlignVCenter) | int(Qt::AlignLeading),
            fontMetrics().elidedText(locale().standaloneMonthName(month, QLocale::ShortFormat),
                                     Qt::ElideRight, name.width()));
        painter.fillRect(place, m_colours.weekGround);
        const int edge = layoutDirection() == Qt::RightToLeft ? place.right() : place.left();
        painter.fillRect(QRect(edge, 0, 1, height + kSpace + kLaneArea), m_colours.weekLine);
    }
}

void YearStrip::paintSpans(QPainter& painter) const
{
    for (const YearSpan& span : m_layout.spans) {
        const QRect place = lane(span);
        painter.fillRect(place, m_colours.weekBlock);
        painter.fillRect(QStyle::visualRect(layoutDirection(), place,
                                            QRect(place.left(), place.top(), 2, place.height())),
                         m_colours.weekBlockLine);
    }
}

QRect YearStrip::numberOf(const YearSpan& span) const
{
    const QRect place = lane(span);
    const int width = fontMetrics().horizontalAdvance(QString::number(span.taskId));
    if (place.height() < fontMetrics().ascent() || place.width() <= width + 2 * kSpace) {
        return {};
    }
    QRect number(0, place.top(), width + 2, place.height());
    number.moveLeft(place.center().x() - number.width() / 2);
    const QRect frame = weekFrame();
    if (!number.intersects(frame.adjusted(-kSpace, 0, kSpace, 0))) {
        return number;
    }
    // Beside the frame where there is room, on the side that is nearer.
    QRect before = number;
    before.moveRight(frame.left() - kSpace);
    QRect behind = number;
    behind.moveLeft(frame.right() + kSpace);
    const bool isNearerBefore = number.center().x() < frame.center().x();
    for (const QRect& beside :
         {isNearerBefore ? before : behind, isNearerBefore ? behind : before}) {
        if (beside.left() > place.left() + 2 && beside.right() < place.right() - 2) {
            return beside;
        }
    }
    return number;
}

/// Above all lines, which would make one number of another.
void YearStrip::paintNumbers(QPainter& painter) const
{
    painter.setPen(m_colours.weekBlockText);
    for (const YearSpan& span : m_layout.spans) {
        const QRect place = numberOf(span);
        if (!place.isEmpty()) {
            painter.fillRect(place, m_colours.weekBlock);
            painter.drawText(place, Qt::AlignCenter, QString::number(span.taskId));
        }
    }
}

/// Below the tasks: in a color and a form, so that the color alone does not have to tell.
void YearStrip::paintStretches(QPainter& painter) const
{
    const auto mark = [this](const YearStretch& stretch) {
        const QRect place = placeOf(stretch.first, stretch.last);
        return QRect(place.left(), place.bottom() - kMarkHeight + 1, std::max(place.width(), 3),
                     kMarkHeight);
    };
    for (const YearStretch& gap : m_layout.gaps) {
        const QRect place = placeOf(gap.first, gap.last);
        painter.fillRect(place, m_colours.weekHidden);
        painter.fillRect(place, QBrush(m_colours.weekHiddenText, Qt::BDiagPattern));
        painter.fillRect(mark(gap), m_colours.weekCollision);
    }
    for (const YearStretch& overlap : m_layout.overlaps) {
        const QRect below = mark(overlap);
        for (int x = below.left(); x <= below.right(); x += 4) {
            painter.fillRect(QRect(x, below.top(), 3, below.height()), m_colours.weekCollision);
        }
    }
}

void YearStrip::paintPresent(QPainter& painter) const
{
    const QDate today = Clock::current().today();
    if (today.year() == m_layout.year) {
        const QRect place = placeOf(today, today);
        painter.fillRect(QRect(place.left(), place.top() - kSpace, 2, place.height() + kSpace),
                         m_colours.weekNow);
    }
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(m_colours.text, 2));
    painter.drawRect(weekFrame());
}

void YearStrip::paintFocus(QPainter& painter) const
{
    if (hasFocus()) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(m_colours.focus, 2));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
}

void YearStrip::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    painter.setLayoutDirection(layoutDirection());
    paintMonths(painter);
    paintSpans(painter);
    paintStretches(painter);
    paintPresent(painter);
    paintNumbers(painter);
    paintFocus(painter);
}

QString YearStrip::tip(const QDate& day) const
{
    QStringList lines{weekdayText(day, locale())};
    const YearStretch* const gap = YearLayout::find(m_layout.gaps, day);
    const YearStretch* const overlap = YearLayout::find(m_layout.overlaps, day);
    if (gap != nullptr) {
        lines.append(gapText(*gap));
    }
    if (overlap != nullptr) {
        lines.append(overlapText(*overlap));
    }
    for (const YearSpan& span : m_layout.spans) {
        if (span.first <= day && day <= span.last && lines.size() <= kMostTold) {
            lines.append(taskText(span));
        }
    }
    return lines.join(QLatin1Char('\n'));
}

QString YearStrip::taskText(const YearSpan& span) const
{
    const Validity& validity = m_validities.at(span.taskId);
    return tr("Task %1 is valid from %2 to %3.")
        .arg(QString::number(span.taskId), dateText(validity.first), dateText(validity.last));
}

int YearStrip::spokenCount() const
{
    return static_cast<int>(m_layout.spans.size() + m_layout.gaps.size() +
                            m_layout.overlaps.size());
}

const YearStretch& YearStrip::stretchAt(int index, bool& isGap) const
{
    const std::size_t place = static_cast<std::size_t>(index) - m_layout.spans.size();
    isGap = place < m_layout.gaps.size();
    return isGap ? m_layout.gaps[place] : m_layout.overlaps[place - m_layout.gaps.size()];
}

QString YearStrip::spokenName(int index) const
{
    if (static_cast<std::size_t>(index) < m_layout.spans.size()) {
        return taskText(m_layout.spans[static_cast<std::size_t>(index)]);
    }
    bool isGap = false;
    const YearStretch& stretch = stretchAt(index, isGap);
    return isGap ? gapText(stretch) : overlapText(stretch);
}

QRect YearStrip::spokenPlace(int index) const
{
    if (static_cast<std::size_t>(index) < m_layout.spans.size()) {
        return lane(m_layout.spans[static_cast<std::size_t>(index)]);
    }
    bool isGap = false;
    const YearStretch& stretch = stretchAt(index, isGap);
    return placeOf(stretch.first, stretch.last);
}

int YearStrip::spokenCurrent() const
{
    const QDate last = m_week.addDays(kDaysOfWeek - 1);
    const auto found =
        std::find_if(m_layout.spans.begin(), m_layout.spans.end(), [&](const YearSpan& span) {
            return span.first <= last && m_week <= span.last;
        });
    return found == m_layout.spans.end() ? -1 : static_cast<int>(found - m_layout.spans.begin());
}

void YearStrip::pressSpoken(int index)
{
    if (static_cast<std::size_t>(index) < m_layout.spans.size()) {
        emit dayChosen(m_layout.spans[static_cast<std::size_t>(index)].first);
        return;
    }
    bool isGap = false;
    const YearStretch& stretch = stretchAt(index, isGap);
    emit dayChosen(std::max(stretch.first, QDate(m_layout.year, 1, 1)));
}

void YearStrip::describe()
{
    setAccessibleName(tr("Validity of the tasks in %1").arg(m_layout.year));
    QStringList told;
    for (const YearStretch& gap : m_layout.gaps) {
        told.append(gapText(gap));
    }
    for (const YearStretch& overlap : m_layout.overlaps) {
        told.append(overlapText(overlap));
    }
    setAccessibleDescription(hosts::SentenceText::joined(told.mid(0, kMostTold)));
}

bool YearStrip::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto* const help = static_cast<QHelpEvent*>(event);
        QToolTip::showText(help->globalPos(), plainLines(tip(dayAt(help->pos()))), this);
        return true;
    }
    return QWidget::event(event);
}

void YearStrip::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        emit dayChosen(dayAt(event->pos()));
    }
}

void YearStrip::keyPressEvent(QKeyEvent* event)
{
    const int forward = layoutDirection() == Qt::RightToLeft ? -1 : 1;
    const QDate middle = m_week.addDays(kDaysOfWeek / 2);
    std::optional<QDate> day;
    switch (event->key()) {
    case Qt::Key_Left:
        day = middle.addDays(-forward * kDaysOfWeek);
        break;
    case Qt::Key_Right:
        day = middle.addDays(forward * kDaysOfWeek);
        break;
    case Qt::Key_PageUp:
        day = middle.addMonths(-1);
        break;
    case Qt::Key_PageDown:
        day = middle.addMonths(1);
        break;
    case Qt::Key_Home:
        day = QDate(m_layout.year, 1, 1);
        break;
    case Qt::Key_End:
        day = QDate(m_layout.year, kMonths, 31);
        break;
    default:
        break;
    }
    if (!day || event->modifiers() != Qt::NoModifier) {
        QWidget::keyPressEvent(event);
        return;
    }
    emit dayChosen(*day);
}

void YearStrip::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    update();
}

void YearStrip::focusOutEvent(QFocusEvent* event)
{
    QWidget::focusOutEvent(event);
    update();
}

void YearStrip::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        describe();
        update();
    } else if (event->type() == QEvent::FontChange) {
        updateGeometry();
    }
}

} // namespace trel::desktop::year
