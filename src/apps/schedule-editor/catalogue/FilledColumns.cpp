#include "catalogue/FilledColumns.h"

#include "catalogue/ProgramTableModel.h"

#include <QEvent>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QTableView>
#include <QTimer>

namespace trel::desktop {

namespace {

constexpr int kName = ProgramTableModel::NameColumn;
constexpr int kFolder = ProgramTableModel::FolderColumn;
/// A picture with the beginning of a name.
constexpr int kLeastName = 90;
/// So close to the edge, a column is meant to end there.
constexpr int kNear = 4;
constexpr int kPasses = 3;

} // namespace

FilledColumns::FilledColumns(QTableView& table)
    : QObject(&table)
    , m_table(table)
    , m_name(table.columnWidth(kName))
    , m_folder(table.columnWidth(kFolder))
{
    connect(table.horizontalHeader(), &QHeaderView::sectionResized, this,
            [this](int column, int, int width) { takeWidth(column, width); });
    table.installEventFilter(this);
    table.viewport()->installEventFilter(this);
}

void FilledColumns::takeWidths()
{
    m_name = m_table.columnWidth(kName);
    m_folder = m_table.columnWidth(kFolder);
    m_isOther = true;
    m_isFilling = isAtEdge();
}

bool FilledColumns::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_table.viewport() && event->type() == QEvent::Resize) {
        if (m_hasBegun && !m_isAtWork) {
            fill();
        }
    } else if (watched == &m_table && event->type() == QEvent::Show && !m_hasBegun) {
        // The panels take their places in several passes.
        QTimer::singleShot(0, this, &FilledColumns::begin);
    }
    return QObject::eventFilter(watched, event);
}

void FilledColumns::begin()
{
    m_isFilling = !m_isOther || isAtEdge();
    m_hasBegun = true;
    fill();
}

void FilledColumns::takeWidth(int column, int width)
{
    if (m_isAtWork) {
        return;
    }
    if (column == kName) {
        m_name = width;
    } else if (column == kFolder) {
        m_folder = width;
    }
    m_isOther = true;
    if (!m_hasBegun) {
        return;
    }
    if (column == kFolder) {
        m_isFilling = isAtEdge();
        return;
    }
    fill();
    // One that leaves no room for the folder is meant to.
    if (m_table.columnWidth(column) != width) {
        m_isFilling = false;
        const QScopedValueRollback<bool> atWork(m_isAtWork, true);
        m_table.horizontalHeader()->resizeSection(column, width);
    }
}

bool FilledColumns::isAtEdge() const
{
    const QHeaderView& header = *m_table.horizontalHeader();
    const int edge = m_table.viewport()->width();
    int end = 0;
    for (int place = 0; place < header.count(); ++place) {
        end += header.sectionSize(header.logicalIndex(place));
        if (qAbs(end - edge) <= kNear) {
            return true;
        }
    }
    return false;
}

/// What the columns that are seen whole have beside name and folder.
int FilledColumns::othersWithin(int edge) const
{
    const QHeaderView& header = *m_table.horizontalHeader();
    int others = 0;
    bool hasName = false;
    bool hasFolder = false;
    for (int place = 0; place < header.count(); ++place) {
        const int column = header.logicalIndex(place);
        const int width = header.sectionSize(column);
        if (column == kName || column == kFolder) {
            (column == kName ? hasName : hasFolder) = true;
        } else if (!hasName || !hasFolder || others + m_name + m_folder + width <= edge) {
            others += width;
        } else {
            break;
        }
    }
    return others;
}

void FilledColumns::fill()
{
    if (!m_isFilling) {
        return;
    }
    QHeaderView& header = *m_table.horizontalHeader();
    const QScopedValueRollback<bool> atWork(m_isAtWork, true);
    // A bar to scroll by may come or go with the widths.
    for (int edge = -1, pass = 0; edge != m_table.viewport()->width() && pass < kPasses; ++pass) {
        edge = m_table.viewport()->width();
        const int left = edge - othersWithin(edge);
        const int leastFolder = header.minimumSectionSize();
        const int name = qMax(kLeastName, qMin(m_name, left - leastFolder));
        header.resizeSection(kName, name);
        header.resizeSection(kFolder, qMax(leastFolder, left - name));
    }
}

} // namespace trel::desktop
