#include "screen/ComingPrograms.h"

#include "BidiText.h"
#include "DateWords.h"
#include "look/ProgramSigns.h"
#include "screen/ScreenFollower.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace trel::desktop {

namespace {

constexpr int kSign = look::kProgramSign;
constexpr int kSpace = look::kBesideProgramSign;
constexpr int kLineSpace = 3;

} // namespace

ComingPrograms::ComingPrograms(const ScreenFollower& follower, QWidget* parent)
    : QWidget(parent)
    , m_follower(follower)
    , m_colours(look::darkColours())
{
    setObjectName(QStringLiteral("comingPrograms"));
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    connect(&m_follower, &ScreenFollower::changed, this, &ComingPrograms::showChange);
    showChange();
}

void ComingPrograms::setColours(const look::ThemeColours& colours)
{
    m_colours = colours;
    update();
}

QSize ComingPrograms::sizeHint() const
{
    const int lines = static_cast<int>(m_follower.coming().size()) + 1;
    return {0, lines * (fontMetrics().height() + kLineSpace)};
}

QSize ComingPrograms::minimumSizeHint() const
{
    return sizeHint();
}

QString ComingPrograms::momentOf(int index) const
{
    const trel::mediadispatch::Instant since =
        m_follower.coming()[static_cast<std::size_t>(index)].state.since;
    return momentText(m_follower.timeText(since), m_follower.local(since).date(),
                      m_follower.today());
}

QString ComingPrograms::nameOf(int index) const
{
    return isolated(QString::fromStdString(
        m_follower.coming()[static_cast<std::size_t>(index)].program.progName));
}

int ComingPrograms::topOf(int index) const
{
    return (index + 1) * (fontMetrics().height() + kLineSpace);
}

int ComingPrograms::spokenCount() const
{
    return static_cast<int>(m_follower.coming().size());
}

QString ComingPrograms::spokenName(int index) const
{
    return momentOf(index) + QLatin1Char(' ') + nameOf(index);
}

QRect ComingPrograms::spokenPlace(int index) const
{
    return {0, topOf(index), width(), fontMetrics().height()};
}

void ComingPrograms::showChange()
{
    setAccessibleName(tr("Programs to come"));
    QStringList lines;
    const int count = spokenCount();
    for (int index = 0; index < count; ++index) {
        lines.append(spokenName(index));
    }
    setAccessibleDescription(lines.join(QLatin1Char('\n')));
    setVisible(count > 0);
    updateGeometry();
    update();
}

void ComingPrograms::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    painter.setLayoutDirection(layoutDirection());
    const int height = fontMetrics().height();
    const auto seen = [this](const QRect& part) {
        return QStyle::visualRect(layoutDirection(), rect(), part);
    };
    const auto draw = [&](const QRect& room, const QColor& colour, const QString& text) {
        painter.setPen(colour);
        painter.drawText(seen(room),
                         int(Qt::AlignVCenter) |
                             int(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft)) |
                             Qt::TextSingleLine,
                         fontMetrics().elidedText(text, Qt::ElideRight, std::max(0, room.width())));
    };
    draw(QRect(0, 0, width(), height), palette().color(QPalette::PlaceholderText),
         tr("Programs to come"));
    const int count = static_cast<int>(m_follower.coming().size());
    for (int index = 0; index < count; ++index) {
        const int top = topOf(index);
        const int program = m_follower.coming()[static_cast<std::size_t>(index)].state.progIndex;
        look::paintProgramSign(painter, seen(QRect(0, top + (height - kSign) / 2, kSign, kSign)),
                               program, m_colours);
        const QString time = momentOf(index);
        const int timeWidth = fontMetrics().horizontalAdvance(time);
        draw(QRect(kSign + kSpace, top, timeWidth + 1, height),
             palette().color(QPalette::PlaceholderText), time);
        const int left = kSign + timeWidth + 3 * kSpace;
        draw(QRect(left, top, width() - left, height), palette().color(QPalette::WindowText),
             nameOf(index));
    }
}

void ComingPrograms::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::FontChange) {
        showChange();
    }
}

} // namespace trel::desktop
