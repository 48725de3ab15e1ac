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

void paintTabPane(QPainter& painter, const ThemeColours& colours, const QRect& rect)
{
    paintBox(painter, rect, colours.window, colours.cardLine, 0);
}

void paintTabInFront(QPainter& painter, const ThemeColours& colours, const QStyleOptionTab& tab)
{
    QRect mark = tab.rect;
    // Open towards the page, so that both are seen to be one.
    QRect ground = tab.rect.adjusted(1, 1, -1, -1);
    switch (tab.shape) {
    case QTabBar::RoundedNorth:
    case QTabBar::TriangularNorth:
        mark.setHeight(kMarkWidth);
        ground.setBottom(tab.rect.bottom());
        break;
    case QTabBar::RoundedSouth:
    case QTabBar::TriangularSouth:
        mark.setTop(mark.bottom() + 1 - kMarkWidth);
        ground.setTop(tab.rect.top());
        break;
    case QTabBar::RoundedWest:
    case QTabBar::TriangularWest:
        mark.setWidth(kMarkWidth);
        ground.setRight(tab.rect.right());
        break;
    case QTabBar::RoundedEast:
    case QTabBar::TriangularEast:
        mark.setLeft(mark.right() + 1 - kMarkWidth);
        ground.setLeft(tab.rect.left());
        break;
    }
    painter.fillRect(ground, colours.window);
    painter.fillRect(mark, colours.accentLine);
}

} // namespace trel::desktop::look
