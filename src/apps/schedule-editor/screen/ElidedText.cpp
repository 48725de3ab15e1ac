#include "screen/ElidedText.h"

#include "BidiText.h"
#include "trelwidgets/PlainToolTip.h"

#include <QEvent>
#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QTextLayout>
#include <QToolTip>

namespace trel::desktop {

ElidedText::ElidedText(QWidget* parent, int lines)
    : QLabel(parent)
    , m_lines(lines)
    , m_most(lines)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

QSize ElidedText::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(text()), minimumSizeHint().height()};
}

QSize ElidedText::minimumSizeHint() const
{
    return {0, heightOf(m_lines)};
}

void ElidedText::setMostLines(int lines)
{
    m_most = qMax(m_lines, lines);
    updateGeometry();
}

int ElidedText::heightForWidth(int width) const
{
    const QMargins margins = contentsMargins();
    const int lines = shown(width - margins.left() - margins.right()).lines.size();
    return heightOf(qMax(m_lines, lines));
}

int ElidedText::heightOf(int lines) const
{
    const QMargins margins = contentsMargins();
    return fontMetrics().lineSpacing() * lines + margins.top() + margins.bottom();
}

ElidedText::Shown ElidedText::shown(int width) const
{
    Shown shown;
    QTextLayout layout(text(), font());
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        const bool isLast = shown.lines.size() + 1 == m_most;
        line.setLineWidth(isLast ? INT_MAX / 256 : width);
        const QString part = text().mid(line.textStart(), line.textLength()).trimmed();
        const QString standing = isolated(part, text());
        const QString fitting = fontMetrics().elidedText(standing, Qt::ElideRight, width);
        shown.isWhole = shown.isWhole && fitting == standing;
        shown.lines.append(fitting);
        if (isLast) {
            break;
        }
    }
    layout.endLayout();
    return shown;
}

bool ElidedText::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip) {
        return QLabel::event(event);
    }
    const auto* help = static_cast<QHelpEvent*>(event);
    const QString whole = isWhole() ? QString() : text();
    const QString& tip = m_longText.isEmpty() ? whole : m_longText;
    QToolTip::showText(help->globalPos(), trel::widgets::plainToolTip(tip), this);
    return true;
}

void ElidedText::paintEvent(QPaintEvent* event)
{
    // The label's own painting would draw the whole text.
    QFrame::paintEvent(event); // NOLINT(bugprone-parent-virtual-call)
    QPainter painter(this);
    const int alignment = int(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft)) |
                          int(Qt::AlignVCenter) | int(Qt::TextSingleLine);
    QRect line = contentsRect();
    line.setHeight(fontMetrics().lineSpacing());
    const QStringList lines = shown(contentsRect().width()).lines;
    for (const QString& text : lines) {
        style()->drawItemText(&painter, line, alignment, palette(), isEnabled(), text,
                              foregroundRole());
        line.translate(0, line.height());
    }
}

} // namespace trel::desktop
