#include "EdgePainting.h"

#include "BoxPainting.h"

#include <QPainter>
#include <QStyleOption>

namespace trel::desktop::look {

namespace {

constexpr int kSeparatorInset = 5;
constexpr int kMarkWidth = 3;

} // namespace

void paintMenuFrame(QPainter& painter, const ThemeColours& colours, const QRect& rect)
{
    paintBox(painter, rect, Qt::transparent, colours.fieldLine, 0);
}

void paintMenuSeparator(QPainter& painter, const ThemeColours& colours, const QRect& rect)
{
    painter.fillRect(QRect(rect.left() + kSeparatorInset, rect.center().y(),
                           rect.width() - 2 * kSeparatorInset, 1),
                     colours.line);
}

void paintTabInFront(QPainter& painter, const ThemeColours& colours, const QStyleOptionTab& tab)
{
    QRect mark = tab.rect;
    switch (tab.shape) {
    case QTabBar::RoundedNorth:
    case QTabBar::TriangularNorth:
        mark.setHeight(kMarkWidth);
        break;
    case QTabBar::RoundedSouth:
    case QTabBar::TriangularSouth:
        mark.setTop(mark.bottom() + 1 - kMarkWidth);
        break;
    case QTabBar::RoundedWest:
    case QTabBar::TriangularWest:
        mark.setWidth(kMarkWidth);
        break;
    case QTabBar::RoundedEast:
    case QTabBar::TriangularEast:
        mark.setLeft(mark.right() + 1 - kMarkWidth);
        break;
    }
    painter.fillRect(mark, colours.accentLine);
}

} // namespace trel::desktop::look
