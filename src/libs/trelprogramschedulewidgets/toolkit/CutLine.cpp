#include "toolkit/CutLine.h"

#include <QLineEdit>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

namespace trel::mediadispatch {

namespace {

/// The room that a line leaves at both ends of its text, in pixels, as of version 5.15.
constexpr int kLineMargin = 2;

QStyleOptionFrame panelOf(const QLineEdit& line)
{
    QStyleOptionFrame panel;
    panel.initFrom(&line);
    panel.lineWidth = line.hasFrame()
                          ? line.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &panel, &line)
                          : 0;
    panel.state |= QStyle::State_Sunken;
    if (line.isReadOnly()) {
        panel.state |= QStyle::State_ReadOnly;
    }
    return panel;
}

QRect textRect(const QLineEdit& line, const QStyleOptionFrame& panel)
{
    return line.style()
        ->subElementRect(QStyle::SE_LineEditContents, &panel, &line)
        .adjusted(kLineMargin, 0, -kLineMargin, 0);
}

} // namespace

bool isCut(const QLineEdit& line)
{
    return line.fontMetrics().horizontalAdvance(line.displayText()) >
           textRect(line, panelOf(line)).width();
}

void paintCut(QLineEdit& line, const QWidget& field)
{
    const QStyleOptionFrame panel = panelOf(line);
    QPainter painter(&line);
    line.style()->drawPrimitive(QStyle::PE_PanelLineEdit, &panel, &painter, &line);

    // The line of a field has the color that a style sheet gives the field, but only while it
    // paints itself. The label of a button is a text that a style paints in the color of any
    // widget.
    QStyleOptionButton label;
    label.initFrom(&line);
    label.state = panel.state;
    label.rect = textRect(line, panel);
    label.palette.setBrush(QPalette::WindowText, line.palette().text());
    label.text =
        line.fontMetrics().elidedText(line.displayText(), Qt::ElideRight, label.rect.width());
    label.text.replace(QLatin1Char('&'), QLatin1String("&&"));
    line.style()->drawControl(QStyle::CE_CheckBoxLabel, &label, &painter, &field);
}

} // namespace trel::mediadispatch
