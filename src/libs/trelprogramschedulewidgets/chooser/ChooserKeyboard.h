#pragma once

#include <QObject>

class QString;

namespace trel::mediadispatch {

class ChooserForm;
class RowCursor;
class SHeaderView;
enum class RowCommand;

/// The keys of the chooser's tables, each with a cursor of its own that Tab reaches in the order in
/// which the controls stand. Return in the left table adds to the plan, Delete in the right one
/// takes out of it: the rows that are checked, or that of the cursor when none is. A count is
/// typed, or opened with F2 or Return.
///
/// Form and headers have to live as long as this does. Make it once both tables are set up.
class ChooserKeyboard : public QObject
{
    Q_OBJECT

public:
    ChooserKeyboard(ChooserForm& form, SHeaderView& offers, SHeaderView& choices);

    /// Gives the focus to the programs on offer, with which every plan begins.
    void begin();
    /// Goes with a row of the right table to where it was moved.
    void follow(int row);

signals:
    /// The row of the right table is to move by one place.
    void moveWanted(int row, bool up);

private:
    void workOffers(RowCommand command);
    void workChoices(RowCommand command, const QString& typed);
    void openCount(const QString& typed);
    void comeBack();
    void orderTabs();

    ChooserForm& m_form;
    RowCursor& m_offers;
    RowCursor& m_choices;
};

} // namespace trel::mediadispatch
