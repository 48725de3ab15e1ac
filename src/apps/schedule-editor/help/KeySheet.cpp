#include "help/KeySheet.h"

#include <QHeaderView>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace trel::desktop {

namespace {

enum Column { TextColumn, KeysColumn, ColumnCount };

} // namespace

KeySheet::KeySheet(const std::vector<KeySection>& sections, QWidget* parent)
    : QDialog(parent)
    , m_list(new QTreeWidget(this))
{
    setObjectName(QStringLiteral("keySheet"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("Keyboard shortcuts"));
    m_list->setObjectName(QStringLiteral("keyList"));
    m_list->setAccessibleName(windowTitle());
    m_list->setColumnCount(ColumnCount);
    m_list->setHeaderHidden(true);
    m_list->setRootIsDecorated(false);
    m_list->setItemsExpandable(false);
    m_list->setSelectionMode(QAbstractItemView::SingleSelection);
    m_list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    fill(sections);
    auto* close = new QPushButton(tr("Close"), this);
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(close);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_list, 1);
    layout->addLayout(row);
    resize(560, 620);
}

void KeySheet::fill(const std::vector<KeySection>& sections)
{
    for (const KeySection& section : sections) {
        auto* title = new QTreeWidgetItem(m_list, {section.title});
        title->setFirstColumnSpanned(true);
        QFont bold = font();
        bold.setBold(true);
        title->setFont(TextColumn, bold);
        for (const KeyLine& line : section.lines) {
            new QTreeWidgetItem(title, {line.text, line.keys});
        }
    }
    m_list->expandAll();
}

} // namespace trel::desktop
