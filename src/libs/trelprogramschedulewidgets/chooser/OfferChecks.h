#pragma once

#include "CheckOrder.h"

class QAbstractItemModel;

namespace trel::mediadispatch {

class SHeaderView;

/// Keeps the order in which the rows of the chooser's left table were checked together with all
/// that shows it: the place in each row, and the mark in the header once every row is checked. The
/// marks of the rows themselves are the table's.
class OfferChecks
{
public:
    /// count and places as for CheckOrder. All have to live as long as this.
    OfferChecks(QAbstractItemModel& model, SHeaderView& header, int& count, QMap<int, int>& places);

    /// The checked rows in the order of checking.
    std::vector<int> rows() const { return m_order.rows(); }

    /// The row has got its mark: it takes the next place.
    void check(int row);
    /// The row has lost its mark: the rows behind it close up.
    void uncheck(int row);
    /// Gives every row its mark or takes it, and numbers the rows from the top.
    void setAllChecked(bool checked);

private:
    void showPlace(int row, const QString& text);

    QAbstractItemModel& m_model;
    SHeaderView& m_header;
    CheckOrder m_order;
};

} // namespace trel::mediadispatch
