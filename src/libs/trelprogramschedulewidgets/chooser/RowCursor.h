#pragma once

#include <QWidget>

class QAccessibleInterface;
class QTableView;

namespace trel::mediadispatch {

class SHeaderView;

/// What a key asks for, beside going to another row and turning its mark over.
enum class RowCommand {
    Take,  ///< Return or Enter.
    Drop,  ///< Delete.
    Raise, ///< Alt with the up key.
    Lower, ///< Alt with the down key.
    Count, ///< F2, or a digit with which it begins.
};

/// Where the keys go in a table of the chooser. The table takes no focus and selects nothing; this
/// lies over its rows, has the focus in its place and frames the row that the keys act on. The
/// pointer meets the rows below as if it was not there.
///
/// The up and down keys, those for pages and Home and End go to another row, and a letter to the
/// next one whose program begins with it. Space turns the mark of the row over and Control with A
/// that of the header, each as a press does. A digit begins a count where the table has counts, and
/// a name where it has none. Keys that mean nothing here go to what is around the table.
///
/// A row that the pointer presses is gone to as well.
///
/// Belongs to the table. Table and header have to stand in the chooser's columns.
class RowCursor : public QWidget
{
    Q_OBJECT

public:
    RowCursor(QTableView& table, SHeaderView& header);

    /// The cursor of a table; null while it has none.
    static RowCursor* of(const QTableView& table);

    QTableView& table() const { return m_table; }
    /// The row that the keys act on; -1 while there is none.
    int row() const;
    /// Goes to a row, or to the one next to it that there is, and scrolls it into sight. A screen
    /// reader is told of it while this has the focus.
    void setRow(int row);

    /// Tells a screen reader that the mark of a row has changed.
    void tellMark(int row) const;
    /// As tellMark, of the mark of the header, if it is another one than was told last.
    void tellHeader();
    /// Whether they do. Marks that come and go within one step are not told.
    void setTellsMarks(bool tells) { m_tellsMarks = tells; }
    /// Has a screen reader say a row that the keys do not stand in.
    void announce(int row) const;

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    /// A key has asked for something. typed is the digit that Count begins with, empty otherwise.
    void commandGiven(trel::mediadispatch::RowCommand command, const QString& typed);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void place(int row);
    void passOn(QKeyEvent& key) const;
    void scrollToRow();
    bool goByKey(const QKeyEvent& key);
    bool markByKey(const QKeyEvent& key);
    bool commandByKey(const QKeyEvent& key);
    bool goToName(const QString& typed);
    int rowsOfPage() const;
    QRect frame() const;
    void tellRow() const;
    QAccessibleInterface* spokenTable() const;
    QAccessibleInterface* markOf(int row) const;

    QTableView& m_table;
    SHeaderView& m_header;
    int m_row = 0;
    bool m_tellsMarks = true;
    bool m_isHeaderTold = false; ///< The mark of the header as it was told last.
};

} // namespace trel::mediadispatch
