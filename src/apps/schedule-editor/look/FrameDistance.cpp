#include "FrameDistance.h"

#include "StyleHooks.h"

#include <QHeaderView>
#include <QListView>
#include <QStyle>
#include <QTableView>

namespace trel::desktop::look {

namespace {

/// The toolkit names the tables of its calendars.
bool isListOfHost(const QWidget& view)
{
    return !isPlanTable(&view) && !isChooserList(&view) &&
           !view.objectName().startsWith(QLatin1String("qt_")) &&
           view.window()->windowType() != Qt::Popup;
}

} // namespace

int cellInset(const QStyle& style, const QStyleOptionViewItem& item, const QWidget* view)
{
    const auto* const table = qobject_cast<const QTableView*>(view);
    const bool isFirst = table != nullptr
                             ? table->horizontalHeader()->visualIndex(item.index.column()) == 0
                             : qobject_cast<const QListView*>(view) != nullptr;
    if (!isFirst || !isListOfHost(*view)) {
        return 0;
    }
    // The toolkit adds one to it.
    const int own = style.pixelMetric(QStyle::PM_FocusFrameHMargin, &item, view) + 1;
    return qMax(0, kFrameDistance - own);
}

int titleInset(const QStyle& style, const QStyleOptionHeader& title, const QWidget* header)
{
    if (!isTitleOfHost(header) ||
        static_cast<const QHeaderView*>(header)->visualIndex(title.section) != 0) {
        return 0;
    }
    return qMax(0, kFrameDistance - style.pixelMetric(QStyle::PM_HeaderMargin, &title, header));
}

bool isTitleOfHost(const QWidget* header)
{
    const auto* const titles = qobject_cast<const QHeaderView*>(header);
    const auto* const table =
        titles == nullptr ? nullptr : qobject_cast<const QTableView*>(titles->parentWidget());
    return table != nullptr && titles->orientation() == Qt::Horizontal && isListOfHost(*table);
}

QRect withInset(const QRect& place, int inset, Qt::LayoutDirection direction)
{
    return direction == Qt::LeftToRight ? place.adjusted(inset, 0, 0, 0)
                                        : place.adjusted(0, 0, -inset, 0);
}

} // namespace trel::desktop::look
