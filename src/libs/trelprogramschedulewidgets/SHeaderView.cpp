#include "SHeaderView.h"

#include "CheckBoxImages.h"
#include "ScheduleText.h"
#include "trelwidgets/CutTip.h"
#include "trelwidgets/Sign.h"

#include <QColor>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

namespace trel::mediadispatch {

namespace {

constexpr int kCheckSection = 0;
constexpr int kLabelRaise = 4;      // The labels sit a little above the middle.
constexpr int kSeparatorMargin = 8; // Free space above and below a separator.
constexpr int kSeparatorWidth = 2;

} // namespace

SHeaderView::SHeaderView(CheckType type, Qt::Orientation orientation, QWidget* parent)
    : QHeaderView(orientation, parent)
    , m_uncheckedPixmap(checkBoxImagePaths().unchecked)
    , m_checkedPixmap(checkBoxImagePaths().checked)
    , m_type(type)
{}

void SHeaderView::setChecked(bool checked)
{
    m_checked = checked;
    updateSection(kCheckSection);
}

void SHeaderView::toggle()
{
    m_checked = !m_checked;
    viewport()->update();
    emit signalSelectAll(m_type, m_checked);
}

void SHeaderView::drawMissingImages()
{
    m_drawsMissingImages = true;
}

void SHeaderView::cutLongLabels()
{
    m_cutsLongLabels = true;
}

QString SHeaderView::label(int section)
{
    switch (section) {
    case 1:
        return scheduleText("zhCheckNumber");
    case 2:
        return scheduleText("szProgramLstStr");
    case 3:
        return scheduleText("zhPlayCounts");
    default:
        return QString();
    }
}

QString SHeaderView::labelFor(int section, int width) const
{
    const QString whole = label(section);
    return m_cutsLongLabels ? fontMetrics().elidedText(whole, Qt::ElideRight, width) : whole;
}

void SHeaderView::mousePressEvent(QMouseEvent* event)
{
    // The base does not see a press elsewhere: there is nothing to sort or to select by a header.
    if (logicalIndexAt(event->pos()) != kCheckSection) {
        return;
    }
    m_checked = !m_checked;
    viewport()->update();
    QHeaderView::mousePressEvent(event);
    emit signalSelectAll(m_type, m_checked);
}

void SHeaderView::paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const
{
    painter->save();
    QHeaderView::paintSection(painter, rect, logicalIndex);
    painter->restore();

    if (logicalIndex == kCheckSection) {
        paintMark(painter, rect);
    }

    // With no role of the palette given, the pen is what colours the text.
    painter->setPen(QColor(QStringLiteral("#B6B6B6")));
    style()->drawItemText(painter, rect.adjusted(0, 0, 0, -kLabelRaise), Qt::AlignCenter, palette(),
                          true, labelFor(logicalIndex, rect.width()), QPalette::NoRole);

    if (logicalIndex < count() - 1) {
        paintSeparator(painter, rect);
    }
}

bool SHeaderView::viewportEvent(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto& help = *static_cast<QHelpEvent*>(event);
        const int section = logicalIndexAt(help.pos());
        const QString whole = label(section);
        if (labelFor(section, sectionSize(section)) != whole) {
            widgets::showCutTip(help, *viewport(), whole);
            return true;
        }
    }
    return QHeaderView::viewportEvent(event);
}

void SHeaderView::paintMark(QPainter* painter, const QRect& rect) const
{
    const QPixmap& image = m_checked ? m_checkedPixmap : m_uncheckedPixmap;
    style()->drawItemPixmap(painter, rect, Qt::AlignCenter, image);
    if (m_drawsMissingImages && image.isNull()) {
        widgets::paintSign(*painter, rect,
                           m_checked ? widgets::Sign::Checked : widgets::Sign::Unchecked,
                           widgets::signColor(palette(), QPalette::ButtonText, isEnabled()));
    }
}

void SHeaderView::paintSeparator(QPainter* painter, const QRect& rect) const
{
    painter->setPen(QPen(QColor(QStringLiteral("#1AFFFFFF")), kSeparatorWidth));
    // Towards the next section, which lies to the left where one reads from the right.
    const int x = isRightToLeft() ? rect.left() + kSeparatorWidth - 1 : rect.right();
    painter->drawLine(x, rect.top() + kSeparatorMargin, x, rect.bottom() - kSeparatorMargin);
}

} // namespace trel::mediadispatch
