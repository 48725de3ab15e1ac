#include "PlanCells.h"

#include "kCustomLineEdit.h"

#include <QApplication>
#include <QLayout>
#include <QMenu>
#include <QPushButton>
#include <QTableView>

namespace trel::mediadispatch {

QModelIndex cellOf(const QTableView& table, const QWidget* inside)
{
    const QWidget* cell = inside;
    while (cell && cell->parentWidget() != table.viewport()) {
        cell = cell->parentWidget();
    }
    return cell ? table.indexAt(cell->geometry().center()) : QModelIndex();
}

QWidget* editorIn(const QTableView& table, const QModelIndex& cell)
{
    QWidget* const holder = table.indexWidget(cell);
    if (const auto* const field = qobject_cast<kCustomLineEdit*>(holder)) {
        return field->findChild<QPushButton*>(QStringLiteral("pushButton"));
    }
    QLayoutItem* const item = holder && holder->layout() ? holder->layout()->itemAt(0) : nullptr;
    return item && item->widget() ? item->widget() : holder;
}

bool isBehindPrompt(const QWidget& window)
{
    // A menu that is open is waited for as well, though it is not modal.
    const auto* const menu = qobject_cast<const QMenu*>(QApplication::activePopupWidget());
    if (menu && menu != &window) {
        return true;
    }
    const QWidget* const modal = QApplication::activeModalWidget();
    return modal && modal != &window && !modal->isAncestorOf(&window) &&
           (modal->windowModality() == Qt::ApplicationModal || modal->parentWidget() == &window);
}

} // namespace trel::mediadispatch
