#include "catalogue/CataloguePanel.h"

#include "EditorMenus.h"
#include "HostPrompts.h"
#include "ProblemWords.h"
#include "catalogue/ProgramTableModel.h"
#include "trelprogramschedule/ScheduleHost.h"

#include <QAction>
#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <QTableView>
#include <QVBoxLayout>

using namespace trel::mediadispatch;

namespace trel::desktop {

CataloguePanel::CataloguePanel(EditorMenus& menus, QWidget* parent)
    : QWidget(parent)
    , m_menus(menus)
    , m_programs(new ProgramTableModel(this))
    , m_table(new QTableView(this))
    , m_hint(new QLabel(this))
{
    setObjectName(QStringLiteral("cataloguePanel"));
    m_hint->setObjectName(QStringLiteral("programHint"));
    m_hint->setTextFormat(Qt::PlainText);
    m_hint->setAlignment(Qt::AlignCenter);
    m_hint->setWordWrap(true);
    buildTable();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_hint, 1);
    layout->addWidget(m_table, 1);

    connectMenus();
    connect(&ScheduleHost::instance(), &ScheduleHost::catalogueChanged, this,
            &CataloguePanel::reload);
    retranslate();
    reload();
}

void CataloguePanel::buildTable()
{
    m_table->setObjectName(QStringLiteral("programTable"));
    m_table->setModel(m_programs);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setAlternatingRowColors(true);
    m_table->setShowGrid(false);
    m_table->setWordWrap(false);
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_table->horizontalHeader()->setHighlightSections(false);
    m_table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_table->setColumnWidth(ProgramTableModel::IndexColumn, 60);
    m_table->setColumnWidth(ProgramTableModel::NameColumn, 260);
    m_table->setDragEnabled(true);
    m_table->setContextMenuPolicy(Qt::ActionsContextMenu);
}

void CataloguePanel::connectMenus()
{
    QAction* remove = m_menus.removePrograms();
    m_table->addAction(m_menus.importFiles());
    m_table->addAction(remove);
    remove->setEnabled(false);
    connect(remove, &QAction::triggered, this, &CataloguePanel::removeSelected);
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, remove,
            [this, remove] { remove->setEnabled(m_table->selectionModel()->hasSelection()); });
}

void CataloguePanel::reload()
{
    m_programs->reload();
    const bool empty = m_programs->rowCount() == 0;
    m_hint->setVisible(empty);
    m_table->setVisible(!empty);
}

void CataloguePanel::retranslate()
{
    m_table->setAccessibleName(m_menus.programsTitle());
    m_hint->setText(
        tr("No programs yet. Drop media files or folders here, or choose “Import files”."));
    m_programs->retranslate();
}

std::vector<int> CataloguePanel::selectedPrograms() const
{
    std::vector<int> indexes;
    const QModelIndexList rows = m_table->selectionModel()->selectedRows();
    for (const QModelIndex& row : rows) {
        indexes.push_back(row.data(ProgramTableModel::ProgramIndexRole).toInt());
    }
    return indexes;
}

void CataloguePanel::removeSelected()
{
    // While the question stands, programs may come and go, and with them the rows.
    const std::vector<int> indexes = selectedPrograms();
    if (indexes.empty()) {
        return;
    }
    const int answer =
        prompts::confirm(tr("Remove %n programs from the catalog? Plans that use them will show "
                            "their entries as invalid. The files are not deleted.",
                            nullptr, static_cast<int>(indexes.size())),
                         tr("Remove"), tr("Cancel"));
    if (answer != 1) {
        return;
    }
    if (const StoreResult result = ScheduleHost::instance().removePrograms(indexes); !result) {
        prompts::notice(problems::sentence(result));
    }
}

void CataloguePanel::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    QWidget::changeEvent(event);
}

} // namespace trel::desktop
