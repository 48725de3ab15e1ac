#include "TextTable.h"

#include "common/DisplayText.h"

#include <algorithm>

using namespace trel::hosts;

namespace trel::console {

namespace {

constexpr int kGap = 2;

QString blanks(int count)
{
    return QString(std::max(count, 0), QLatin1Char(' '));
}

void trimEnd(QString& line)
{
    while (line.endsWith(QLatin1Char(' '))) {
        line.chop(1);
    }
}

} // namespace

TextTable::TextTable(std::vector<Column> columns)
    : m_columns(std::move(columns))
{}

void TextTable::addRow(const QStringList& cells)
{
    m_rows.push_back(cells);
}

QString TextTable::text(int indent) const
{
    if (m_rows.empty()) {
        return {};
    }
    const std::vector<int> columnWidths = widths();
    const QString margin = blanks(indent);
    QString all = margin + line(titles(), columnWidths) + QLatin1Char('\n');
    for (const QStringList& row : m_rows) {
        all += margin + line(row, columnWidths) + QLatin1Char('\n');
    }
    return all;
}

std::vector<int> TextTable::widths() const
{
    std::vector<int> widest(m_columns.size());
    const auto widen = [&widest](const QStringList& cells) {
        for (std::size_t column = 0; column < widest.size(); ++column) {
            widest[column] =
                std::max(widest[column], displayWidth(cells[static_cast<int>(column)]));
        }
    };
    widen(titles());
    for (const QStringList& row : m_rows) {
        widen(row);
    }
    return widest;
}

QString TextTable::line(const QStringList& cells, const std::vector<int>& widths) const
{
    QString all;
    for (std::size_t column = 0; column < m_columns.size(); ++column) {
        const QString& cell = cells[static_cast<int>(column)];
        const QString padding = blanks(widths[column] - displayWidth(cell));
        all += column > 0 ? blanks(kGap) : QString();
        all += m_columns[column].align == Align::Right ? padding + cell : cell + padding;
    }
    trimEnd(all);
    return all;
}

QStringList TextTable::titles() const
{
    QStringList all;
    for (const Column& column : m_columns) {
        all.append(column.title);
    }
    return all;
}

} // namespace trel::console
