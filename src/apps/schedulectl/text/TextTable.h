#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace trel::console {

/// A table for a terminal: a line of titles and a line for each row, columns aligned by what the
/// terminal shows. Cells are expected to be printable.
class TextTable
{
public:
    enum class Align { Left, Right };

    struct Column
    {
        QString title;
        Align align = Align::Left;
    };

    explicit TextTable(std::vector<Column> columns);

    /// Adds a row with a cell for each column.
    void addRow(const QStringList& cells);

    bool isEmpty() const { return m_rows.empty(); }

    /// All lines, each indented by so many blanks and ended by a line feed, without blanks at its
    /// end. An empty table has no lines.
    ///
    /// Where they would be wider than so many columns, the widest cells of columns that are aligned
    /// to the left lose their middle, as far as that goes; 0 leaves them whole.
    QString text(int indent = 0, int columns = 0) const;

private:
    std::vector<int> widths() const;
    void narrow(std::vector<int>& widths, int columns) const;
    QString line(const QStringList& cells, const std::vector<int>& widths) const;
    QStringList titles() const;

    std::vector<Column> m_columns;
    std::vector<QStringList> m_rows;
};

} // namespace trel::console
