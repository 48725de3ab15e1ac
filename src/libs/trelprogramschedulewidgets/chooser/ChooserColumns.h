#pragma once

#include <Qt>

namespace trel::mediadispatch {

/// Columns of the chooser's left table, the programs on offer.
enum OfferColumn {
    OfferCheckColumn = 0,
    OfferOrderColumn, ///< Place in the order of checking; empty while unchecked.
    OfferNameColumn,
    OfferColumnCount
};

/// Columns of the chooser's right table, the programs chosen for the plan. The last two are hidden
/// and tie a row to its records.
enum ChoiceColumn {
    ChoiceCheckColumn = 0,
    ChoiceNumberColumn,
    ChoiceNameColumn,
    ChoiceCountColumn,
    ChoiceIndexColumn, ///< progIndex as decimal text.
    ChoiceNewColumn,   ///< "1" for a row added since the dialog opened, "0" for one of the plan.
    ChoiceColumnCount,

    ChoiceVisibleColumnCount = ChoiceIndexColumn
};

/// Where the item of a check column keeps its mark, as a bool. Only the delegate draws it.
inline constexpr int kCheckRole = Qt::UserRole;

} // namespace trel::mediadispatch
