#include "OfferChecks.h"

#include "ChooserColumns.h"
#include "ChooserRows.h"
#include "SHeaderView.h"

#include <QAbstractItemModel>

namespace trel::mediadispatch {

OfferChecks::OfferChecks(QAbstractItemModel& model, SHeaderView& header, int& count,
                         QMap<int, int>& places)
    : m_model(model)
    , m_header(header)
    , m_order(count, places)
{}

void OfferChecks::check(int row)
{
    showPlace(row, formatRowNumber(m_order.check(row)));
    if (m_model.rowCount() == m_order.count()) {
        m_header.setChecked(true);
    }
}

void OfferChecks::uncheck(int row)
{
    const std::vector<CheckedRow> moved = m_order.uncheck(row);
    showPlace(row, QString());
    for (const CheckedRow& other : moved) {
        showPlace(other.row, formatRowNumber(other.place));
    }
    m_header.setChecked(false);
}

void OfferChecks::setAllChecked(bool checked)
{
    const int rowCount = m_model.rowCount();
    if (checked) {
        m_order.checkAll(rowCount);
    } else {
        m_order.clearAll(rowCount);
    }
    for (int row = 0; row < rowCount; ++row) {
        setRowChecked(m_model, row, checked);
        showPlace(row, checked ? formatRowNumber(row + 1) : QString());
    }
    if (rowCount > 0) {
        m_header.setChecked(checked);
    }
}

void OfferChecks::showPlace(int row, const QString& text)
{
    m_model.setData(m_model.index(row, OfferOrderColumn), text);
}

} // namespace trel::mediadispatch
