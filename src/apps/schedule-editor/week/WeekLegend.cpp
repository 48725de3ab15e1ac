#include "week/WeekLegend.h"

#include "BidiText.h"
#include "PlainLines.h"
#include "common/ListText.h"
#include "look/ProgramColours.h"
#include "screen/ScreenWords.h"
#include "trelprogramschedule/dispatch/ScreenState.h"
#include "week/WeekLayout.h"
#include "week/WeekWords.h"

#include <QEvent>
#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include <algorithm>
#include <set>

using namespace trel::mediadispatch;

namespace trel::desktop::week {

namespace {

constexpr int kLines = 4;
constexpr int kSide = 12;
constexpr int kInside = 5;
constexpr int kBetween = 14;
constexpr int kLineSpace = 1;
/// Nobody reads more, and no window has room for them.
constexpr std::size_t kMostPrograms = 100;
constexpr int kLongestName = 160;

} // namespace

WeekLegend::WeekLegend(QWidget* parent)
    : QWidget(parent)
    , m_colours(look::darkColours())
{
    setObjectName(QStringLiteral("weekLegend"));
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    describe();
}

void WeekLegend::setLayoutOfWeek(const WeekLayout& layout)
{
    m_programs.clear();
    std::set<int> seen;
    for (const WeekColumn& column : layout.days) {
        for (const WeekBlock& block : column.blocks) {
            for (std::size_t i = 0; i < block.programIndexes.size(); ++i) {
                const int index = block.programIndexes[i];
                if (index >= 0 && m_programs.size() < kMostPrograms && seen.insert(index).second) {
                    m_programs.push_back({index, block.programs.at(static_cast<int>(i))});
                }
            }
        }
    }
    describe();
    update();
}

void WeekLegend::setColours(const look::ThemeColours& colours)
{
    m_colours = colours;
    update();
}

std::vector<WeekLegend::Sign> WeekLegend::signs() const
{
    return {
        {Words::tr("Not on screen"), m_colours.weekHidden, m_colours.weekHiddenText,
         m_colours.weekHiddenPattern},
        {Words::tr("In conflict"), m_colours.weekCollision, m_colours.weekCollision, {}},
        {ScreenWords::picture(ScreenPicture::Frozen), m_colours.weekFrozen,
         m_colours.weekFrozenText, m_colours.weekFrozenPattern},
        {ScreenWords::picture(ScreenPicture::Black), m_colours.weekBlack, m_colours.faintText, {}}};
}

std::vector<WeekLegend::Sign> WeekLegend::programSigns() const
{
    std::vector<Sign> signs;
    for (const Program& program : m_programs) {
        const look::ProgramColours colours = look::programColours(program.index, m_colours);
        signs.push_back(
            {fontMetrics().elidedText(isolated(program.name), Qt::ElideRight, kLongestName),
             colours.ground,
             colours.line,
             {}});
    }
    return signs;
}

int WeekLegend::widthOf(const Sign& sign) const
{
    return kSide + kInside + fontMetrics().horizontalAdvance(sign.text);
}

QSize WeekLegend::sizeHint() const
{
    return {kLongestName, kLines * (fontMetrics().height() + kLineSpace) - kLineSpace};
}

QSize WeekLegend::minimumSizeHint() const
{
    return {0, fontMetrics().height()};
}

void WeekLegend::paintSign(QPainter& painter, const QRect& place, const Sign& sign) const
{
    const auto seen = [this](const QRect& part) {
        return QStyle::visualRect(layoutDirection(), rect(), part);
    };
    const QRect box = seen(QRect(place.left(), place.center().y() - kSide / 2 + 1, kSide, kSide));
    painter.fillRect(box, sign.ground);
    if (sign.pattern.isValid()) {
        painter.fillRect(box, QBrush(sign.pattern, Qt::BDiagPattern));
    }
    painter.setPen(sign.line);
    painter.drawRect(box.adjusted(0, 0, -1, -1));
    painter.setPen(m_colours.text);
    painter.drawText(seen(place.adjusted(kSide + kInside, 0, 0, 0)),
                     int(Qt::AlignVCenter) | int(Qt::AlignLeading) | Qt::TextSingleLine, sign.text);
}

void WeekLegend::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    painter.setLayoutDirection(layoutDirection());
    const int height = fontMetrics().height();
    const auto isLast = [&](int top) {
        return top + 2 * (height + kLineSpace) > this->height() + kLineSpace;
    };
    std::vector<Sign> all = signs();
    const std::vector<Sign> programs = programSigns();
    all.insert(all.end(), programs.begin(), programs.end());
    QPoint corner(0, 0);
    for (std::size_t i = 0; i < all.size(); ++i) {
        const int left = static_cast<int>(all.size() - i);
        const QString rest = QStringLiteral("+%1").arg(left);
        // The last place of the last line is kept for the number of those without one.
        const bool isLastLine = isLast(corner.y());
        const int reserve =
            isLastLine && left > 1 ? fontMetrics().horizontalAdvance(rest) + kBetween : 0;
        if (corner.x() > 0 && corner.x() + widthOf(all[i]) + reserve > width()) {
            if (isLastLine) {
                painter.setPen(m_colours.faintText);
                painter.drawText(QStyle::visualRect(layoutDirection(), rect(),
                                                    QRect(corner, QSize(width(), height))),
                                 int(Qt::AlignVCenter) | int(Qt::AlignLeading), rest);
                return;
            }
            corner = QPoint(0, corner.y() + height + kLineSpace);
        }
        paintSign(painter, QRect(corner, QSize(widthOf(all[i]) + 1, height)), all[i]);
        corner.rx() += widthOf(all[i]) + kBetween;
    }
}

QString WeekLegend::spokenName(int index) const
{
    return m_programs[static_cast<std::size_t>(index)].name;
}

QRect WeekLegend::spokenPlace(int /*index*/) const
{
    return rect();
}

void WeekLegend::describe()
{
    QStringList names;
    for (const Program& program : m_programs) {
        names.append(program.name);
    }
    setAccessibleName(Words::tr("Programs of the week"));
    setAccessibleDescription(hosts::ListText::joined(names));
}

bool WeekLegend::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                           plainLines(accessibleDescription()), this);
        return true;
    }
    return QWidget::event(event);
}

void WeekLegend::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        describe();
        update();
    } else if (event->type() == QEvent::FontChange) {
        updateGeometry();
    }
}

} // namespace trel::desktop::week
