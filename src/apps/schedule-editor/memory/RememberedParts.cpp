#include "memory/RememberedParts.h"

#include "catalogue/ProgramTable.h"

#include <QHeaderView>
#include <QSettings>
#include <QSplitter>
#include <QTableView>

#include <algorithm>
#include <numeric>

namespace trel::desktop {

namespace {

/// What a column may be wide, in pixels.
constexpr int kNarrowest = 16;
/// What anything may be large.
constexpr int kLargest = 4000;

template <typename Part>
QList<Part*> partsOf(const QWidget& window)
{
    QList<Part*> parts = window.findChildren<Part*>();
    parts.erase(std::remove_if(parts.begin(), parts.end(),
                               [&window](const Part* part) {
                                   return part->objectName().isEmpty() ||
                                          part->window() != &window ||
                                          qobject_cast<const ProgramTable*>(part) != nullptr;
                               }),
                parts.end());
    return parts;
}

QString columnsOf(const QTableView& table)
{
    return QStringLiteral("columns/") + table.objectName();
}

QString sharesOf(const QSplitter& splitter)
{
    return QStringLiteral("shares/") + splitter.objectName();
}

QStringList textsOf(const QList<int>& sizes)
{
    QStringList texts;
    for (const int size : sizes) {
        texts.append(QString::number(size));
    }
    return texts;
}

/// So many sizes as there are parts, each from `least` on; empty where they are anything else.
QList<int> sizesOf(const QVariant& value, int count, int least)
{
    const QStringList texts = value.toStringList();
    QList<int> sizes;
    for (const QString& text : texts) {
        bool isNumber = false;
        const int size = text.toInt(&isNumber);
        if (!isNumber || size < least || size > kLargest) {
            return {};
        }
        sizes.append(size);
    }
    return sizes.size() == count ? sizes : QList<int>();
}

void restoreColumns(const QSettings& settings, const QTableView& table)
{
    QHeaderView& header = *table.horizontalHeader();
    const QList<int> widths = sizesOf(settings.value(columnsOf(table)), header.count(), kNarrowest);
    for (int column = 0; column < widths.size(); ++column) {
        if (header.sectionResizeMode(column) == QHeaderView::Interactive) {
            header.resizeSection(column, widths[column]);
        }
    }
}

void restoreShares(const QSettings& settings, QSplitter& splitter)
{
    const QList<int> shares = sizesOf(settings.value(sharesOf(splitter)), splitter.count(), 0);
    // Of nothing there are no shares.
    if (std::accumulate(shares.begin(), shares.end(), 0) > 0) {
        splitter.setSizes(shares);
    }
}

} // namespace

RememberedParts::RememberedParts(QSettings& settings, QWidget& window)
    : m_settings(settings)
    , m_window(window)
{}

void RememberedParts::restore() const
{
    const QList<QTableView*> tables = partsOf<QTableView>(m_window);
    for (const QTableView* table : tables) {
        restoreColumns(m_settings, *table);
    }
    const QList<QSplitter*> splitters = partsOf<QSplitter>(m_window);
    for (QSplitter* splitter : splitters) {
        restoreShares(m_settings, *splitter);
    }
}

void RememberedParts::save() const
{
    const QList<QTableView*> tables = partsOf<QTableView>(m_window);
    for (const QTableView* table : tables) {
        const QHeaderView& header = *table->horizontalHeader();
        QList<int> widths;
        for (int column = 0; column < header.count(); ++column) {
            widths.append(header.sectionSize(column));
        }
        m_settings.setValue(columnsOf(*table), textsOf(widths));
    }
    const QList<QSplitter*> splitters = partsOf<QSplitter>(m_window);
    for (const QSplitter* splitter : splitters) {
        m_settings.setValue(sharesOf(*splitter), textsOf(splitter->sizes()));
    }
}

} // namespace trel::desktop
