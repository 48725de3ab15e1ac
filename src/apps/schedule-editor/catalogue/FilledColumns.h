#pragma once

#include <QObject>

class QTableView;

namespace trel::desktop {

/// Lets the columns of the catalogue end where the panel does, as wide as it happens to be: name
/// and folder always, and each further column as soon as there is room for all of it. The folder
/// takes what is left over; where there is too little for it, the name gives some of its own.
///
/// An operator who makes a column wider or narrower, so that none ends there any more, has the
/// columns as they are, also at the next start.
class FilledColumns : public QObject
{
    Q_OBJECT

public:
    /// Becomes a child of the table, whose columns have their first widths.
    explicit FilledColumns(QTableView& table);

    /// To be called when widths have been restored at once.
    void takeWidths();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void begin();
    void takeWidth(int column, int width);
    void fill();
    int othersWithin(int edge) const;
    bool isAtEdge() const;

    QTableView& m_table;
    int m_name;   ///< What the operator, or the first start, gave it.
    int m_folder; ///< As well.
    bool m_isFilling = true;
    bool m_isOther = false; ///< Widths were given to it before it was shown.
    bool m_hasBegun = false;
    bool m_isAtWork = false;
};

} // namespace trel::desktop
