#include "catalogue/ProgramTable.h"

#include "catalogue/ProgramTableModel.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

namespace trel::desktop {

ProgramTable::ProgramTable(ProgramTableModel& model, QWidget* parent)
    : QTableView(parent)
    , m_model(model)
{
    setModel(&model);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setTextElideMode(Qt::ElideMiddle);
    setDragEnabled(true);
    setTabKeyNavigation(false);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_look.setSingleShot(true);
    connect(&m_look, &QTimer::timeout, this, &ProgramTable::sightChanged);
    const auto look = qOverload<>(&QTimer::start);
    connect(&model, &QAbstractItemModel::modelReset, &m_look, look);
    connect(&model, &QAbstractItemModel::dataChanged, &m_look, look);
    connect(this, &QAbstractItemView::doubleClicked, this, &ProgramTable::askPreview);
}

ProgramTable::Sight ProgramTable::sight() const
{
    const int rows = m_model.rowCount();
    if (!isVisible() || rows == 0) {
        return {};
    }
    const int first = rowAt(0);
    const int last = rowAt(viewport()->height() - 1);
    return {first < 0 ? 0 : first, last < 0 ? rows - 1 : last};
}

std::vector<int> ProgramTable::selectedPrograms() const
{
    std::vector<int> rows;
    const QItemSelection selection = selectionModel()->selection();
    for (const QItemSelectionRange& range : selection) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            rows.push_back(row);
        }
    }
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    std::transform(rows.begin(), rows.end(), rows.begin(),
                   [this](int row) { return m_model.program(row).progIndex; });
    return rows;
}

int ProgramTable::meantProgram() const
{
    const int current = currentProgram();
    const std::vector<int> selected = current < 0 ? selectedPrograms() : std::vector<int>();
    return selected.empty() ? current : selected.front();
}

int ProgramTable::currentProgram() const
{
    return currentIndex().isValid() ? m_model.program(currentIndex().row()).progIndex : -1;
}

void ProgramTable::selectPrograms(std::vector<int> programs, int current)
{
    std::sort(programs.begin(), programs.end());
    QItemSelection selection;
    int currentRow = -1;
    int first = -1;
    const int rows = m_model.rowCount();
    const auto isSelected = [&](int row) {
        return row < rows &&
               std::binary_search(programs.begin(), programs.end(), m_model.program(row).progIndex);
    };
    for (int row = 0; row <= rows; ++row) {
        if (row < rows && m_model.program(row).progIndex == current) {
            currentRow = row;
        }
        // Neighbours become one range.
        if (isSelected(row)) {
            first = first < 0 ? row : first;
        } else if (first >= 0) {
            selection.append(
                {m_model.index(first, 0), m_model.index(row - 1, m_model.columnCount() - 1)});
            first = -1;
        }
    }
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    if (currentRow >= 0) {
        selectionModel()->setCurrentIndex(m_model.index(currentRow, 0),
                                          QItemSelectionModel::NoUpdate);
    }
}

void ProgramTable::setEmptyText(const QString& text)
{
    m_emptyText = text;
    viewport()->update();
}

void ProgramTable::askPreview(const QModelIndex& index)
{
    if (index.isValid()) {
        emit previewAsked(m_model.program(index.row()).progIndex);
    }
}

void ProgramTable::paintEvent(QPaintEvent* event)
{
    QTableView::paintEvent(event);
    if (m_model.rowCount() == 0 && !m_emptyText.isEmpty()) {
        constexpr int kMargin = 12;
        QPainter painter(viewport());
        painter.setPen(palette().color(QPalette::Text));
        painter.drawText(viewport()->rect().adjusted(kMargin, kMargin, -kMargin, -kMargin),
                         static_cast<int>(Qt::AlignCenter) | static_cast<int>(Qt::TextWordWrap),
                         m_emptyText);
    }
}

void ProgramTable::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        askPreview(currentIndex());
        event->accept();
        return;
    }
    QTableView::keyPressEvent(event);
}

void ProgramTable::showEvent(QShowEvent* event)
{
    QTableView::showEvent(event);
    m_look.start();
}

void ProgramTable::hideEvent(QHideEvent* event)
{
    QTableView::hideEvent(event);
    m_look.start();
}

void ProgramTable::resizeEvent(QResizeEvent* event)
{
    QTableView::resizeEvent(event);
    m_look.start();
}

void ProgramTable::scrollContentsBy(int dx, int dy)
{
    QTableView::scrollContentsBy(dx, dy);
    m_look.start();
}

} // namespace trel::desktop
