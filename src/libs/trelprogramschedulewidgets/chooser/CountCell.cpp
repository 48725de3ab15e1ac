#include "CountCell.h"

#include "ChooserColumns.h"
#include "SHeaderView.h"

#include <QModelIndex>
#include <QStringBuilder>

namespace trel::mediadispatch {

QString countName(const QModelIndex& count)
{
    return count.siblingAtColumn(ChoiceNameColumn).data().toString() % QLatin1String(", ") %
           SHeaderView::label(ChoiceCountColumn);
}

} // namespace trel::mediadispatch
