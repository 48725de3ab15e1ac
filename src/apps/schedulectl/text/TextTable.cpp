#include "TextTable.h"

#include "common/DisplayText.h"

#include <algorithm>
#include <numeric>

using namespace trel::hosts;

namespace trel::console {

namespace {

constexpr int kGap = 2;
/// What of a cell can still be told from another.
constexpr int kNarrowest = 12;

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

QString TextTable::text(int indent, int columns) const
{
    if (m_rows.empty()) {
        return {};
    }
    std::vector<int> columnWidths = widths();
    if (columns > 0) {
        narrow(columnWidths, columns - indent);
    }
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

void TextTable::narrow(std::vector<int>& widths, int columns) const
{
    int excess = std::accumulate(widths.begin(), widths.end(), -columns) +
                 kGap * (static_cast<int>(widths.size()) - 1);
    for (; excess > 0; --excess) {
        int* widest = nullptr;
        for (std::size_t column = 0; column < widths.size(); ++column) {
            const int least = std::max(kNarrowest, displayWidth(m_columns[column].title));
            if (m_columns[column].align == Align::Left && widths[column] > least &&
                (widest == nullptr || widths[column] > *widest)) {
                widest = &widths[column];
            }
        }
        if (widest == nullptr) {
            return;
        }
        --*widest;
    }
}

QString TextTable::line(const QStringList& cells, const std::vector<int>& widths) const
{
    QString all;
    for (std::size_t column = 0; column < m_columns.size(); ++column) {
        const QString cell = shortened(cells[static_cast<int>(column)], widths[column]);
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
