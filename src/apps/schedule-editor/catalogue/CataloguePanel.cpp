#include "catalogue/CataloguePanel.h"

#include "EditorMenus.h"
#include "HostPrompts.h"
#include "ProblemWords.h"
#include "catalogue/CatalogueFilter.h"
#include "catalogue/CatalogueOrder.h"
#include "catalogue/FilledColumns.h"
#include "catalogue/ProgramDelegate.h"
#include "catalogue/ProgramLookup.h"
#include "catalogue/ProgramPreview.h"
#include "catalogue/ProgramTable.h"
#include "catalogue/ProgramTableModel.h"
#include "catalogue/Thumbnails.h"
#include "catalogue/UseWords.h"
#include "catalogue/UsesWindow.h"
#include "service/ProgramUses.h"
#include "trelprogramschedule/ScheduleHost.h"

#include <QAction>
#include <QDataStream>
#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <QScrollBar>
#include <QVBoxLayout>

#include <utility>

using namespace trel::mediadispatch;

namespace trel::desktop {

namespace {

constexpr qint32 kStateVersion = 1;
/// Above and below a picture, in its row.
constexpr int kAbovePicture = 6;
constexpr int kAroundHint = 12;

} // namespace

CataloguePanel::CataloguePanel(EditorMenus& menus, QWidget* parent)
    : QWidget(parent)
    , m_menus(menus)
    , m_programs(new ProgramTableModel(this))
    , m_pictures(new Thumbnails(this))
    , m_filter(new CatalogueFilter(this))
    , m_table(new ProgramTable(*m_programs, this))
    , m_names(new ProgramDelegate(*m_programs, *m_pictures, m_table))
    , m_hint(new QLabel(this))
    , m_order(new CatalogueOrder(this))
    , m_lookup(new ProgramLookup(this))
    , m_colours(look::darkColours())
{
    setObjectName(QStringLiteral("cataloguePanel"));
    m_hint->setObjectName(QStringLiteral("programHint"));
    m_hint->setTextFormat(Qt::PlainText);
    m_hint->setAlignment(Qt::AlignCenter);
    m_hint->setWordWrap(true);
    m_hint->setMargin(kAroundHint);
    buildTable();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_filter);
    layout->addWidget(m_hint, 1);
    layout->addWidget(m_table, 1);

    connectMenus();
    connectOrder();
    retranslate();
    wish();
    reload();
}

void CataloguePanel::buildTable()
{
    m_table->setObjectName(QStringLiteral("programTable"));
    QHeaderView* columns = m_table->horizontalHeader();
    columns->setHighlightSections(false);
    columns->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    columns->setSectionsClickable(true);
    columns->setSectionsMovable(true);
    columns->setSortIndicator(ProgramTableModel::IndexColumn, Qt::AscendingOrder);
    columns->setSortIndicatorShown(true);
    // Name and folder fill the panel as it first opens; the others are scrolled to.
    columns->resizeSection(ProgramTableModel::NameColumn, 158);
    columns->resizeSection(ProgramTableModel::FolderColumn, 114);
    columns->resizeSection(ProgramTableModel::KindColumn, 66);
    columns->resizeSection(ProgramTableModel::LengthColumn, 82);
    columns->resizeSection(ProgramTableModel::IndexColumn, 80);
    m_widths = new FilledColumns(*m_table);
    m_table->setItemDelegateForColumn(ProgramTableModel::NameColumn, m_names);
    m_table->verticalHeader()->setDefaultSectionSize(Thumbnails::frame().height() + kAbovePicture);
    connect(m_table, &ProgramTable::sightChanged, this, &CataloguePanel::readPictures);
    connect(m_pictures, &Thumbnails::ready, m_table->viewport(), qOverload<>(&QWidget::update));
    m_table->setContextMenuPolicy(Qt::ActionsContextMenu);
}

void CataloguePanel::connectMenus()
{
    m_table->addActions({m_menus.previewProgram(), m_menus.whereUsed(), m_menus.importFiles(),
                         m_menus.removePrograms()});
    connect(m_menus.previewProgram(), &QAction::triggered, this, [this] {
        if (const int program = m_table->meantProgram(); program >= 0) {
            preview(program);
        }
    });
    connect(m_table, &ProgramTable::previewAsked, this, &CataloguePanel::preview);
    connect(m_menus.removePrograms(), &QAction::triggered, this, &CataloguePanel::removeSelected);
    connect(m_menus.whereUsed(), &QAction::triggered, this, &CataloguePanel::showUses);
    connect(m_lookup, &ProgramLookup::answered, this, &CataloguePanel::askRemoval);
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &CataloguePanel::enableActions);
    enableActions();
}

void CataloguePanel::enableActions()
{
    const bool isAnySelected = m_table->selectionModel()->hasSelection();
    m_menus.removePrograms()->setEnabled(isAnySelected);
    m_menus.whereUsed()->setEnabled(isAnySelected);
    m_menus.previewProgram()->setEnabled(isAnySelected);
}

void CataloguePanel::connectOrder()
{
    const ScheduleHost& host = ScheduleHost::instance();
    connect(&host, &ScheduleHost::catalogueChanged, this, &CataloguePanel::reload);
    connect(&host, &ScheduleHost::workingSetChanged, this, &CataloguePanel::takeUsed);
    connect(m_order, &CatalogueOrder::ordered, this, &CataloguePanel::show);
    connect(m_table->horizontalHeader(), &QHeaderView::sortIndicatorChanged, this,
            &CataloguePanel::wish);
    connect(m_filter, &CatalogueFilter::changed, this, &CataloguePanel::wish);
    connect(m_filter, &CatalogueFilter::done, m_table, [this] {
        if (!m_table->currentIndex().isValid()) {
            m_table->setCurrentIndex(m_programs->index(0, 0));
        }
        m_table->setFocus(Qt::OtherFocusReason);
    });
}

void CataloguePanel::reload()
{
    takeUsed();
    m_pictures->renew();
    m_order->setCatalogue(ScheduleHost::instance().catalogue());
}

void CataloguePanel::takeUsed()
{
    // A pass through all plans; nobody needs it as long as nobody asks.
    if (m_order->wish().isOnlyUnused) {
        m_order->setUsed(programsInUse(ScheduleHost::instance().workingSet()));
    }
}

void CataloguePanel::wish()
{
    CatalogueWish wish = m_order->wish();
    m_filter->fill(wish);
    const QHeaderView* columns = m_table->horizontalHeader();
    wish.sortBy(static_cast<ProgramColumn>(columns->sortIndicatorSection()),
                columns->sortIndicatorOrder());
    m_isWishNew = true;
    m_order->setWish(wish);
    takeUsed();
}

void CataloguePanel::show(const follow::SharedCatalogue& catalogue, const ProgramRows& rows)
{
    const std::vector<int> selected = m_table->selectedPrograms();
    const int current = m_table->currentProgram();
    const int place = m_table->verticalScrollBar()->value();
    bool isOther = false;
    const auto watch =
        connect(m_programs, &QAbstractItemModel::modelReset, this, [&isOther] { isOther = true; });
    m_programs->show(catalogue, rows);
    disconnect(watch);
    const bool isEmpty = catalogue->empty();
    m_hint->setVisible(isEmpty);
    m_filter->setVisible(!isEmpty);
    m_table->setVisible(!isEmpty);
    m_filter->showCount(rows.size(), catalogue->size());
    if (isOther) {
        m_table->selectPrograms(selected, current);
        m_table->verticalScrollBar()->setValue(place);
    }
    if (std::exchange(m_isWishNew, false) && isOther) {
        showCurrent();
    }
}

void CataloguePanel::showCurrent()
{
    if (m_table->currentIndex().isValid()) {
        m_table->scrollTo(m_table->currentIndex());
    } else {
        m_table->scrollToTop();
    }
}

void CataloguePanel::readPictures()
{
    m_pictures->setDotsPerPoint(devicePixelRatioF());
    const ProgramTable::Sight sight = m_table->sight();
    std::vector<ProgramIten> programs;
    for (int row = sight.first; row <= sight.last; ++row) {
        programs.push_back(m_programs->program(row));
    }
    m_pictures->wish(programs);
}

void CataloguePanel::setColours(const look::ThemeColours& colours)
{
    m_colours = colours;
    m_names->setColours(colours);
    if (m_uses != nullptr) {
        m_uses->setColours(colours);
    }
    m_table->viewport()->update();
}

void CataloguePanel::focusSearch()
{
    m_filter->focusSearch();
}

QByteArray CataloguePanel::saveState() const
{
    QByteArray state;
    QDataStream out(&state, QIODevice::WriteOnly);
    out << kStateVersion << m_table->horizontalHeader()->saveState() << m_filter->saveState();
    return state;
}

void CataloguePanel::restoreState(const QByteArray& state)
{
    QDataStream in(state);
    qint32 version = 0;
    QByteArray columns;
    QByteArray filter;
    in >> version >> columns >> filter;
    if (in.status() != QDataStream::Ok || version != kStateVersion) {
        return;
    }
    QHeaderView* header = m_table->horizontalHeader();
    if (header->restoreState(columns)) {
        m_widths->takeWidths();
        wish();
    }
    m_filter->restoreState(filter);
}

void CataloguePanel::retranslate()
{
    m_table->setAccessibleName(m_menus.programsTitle());
    m_table->setEmptyText(tr("No program fits what is searched for."));
    m_hint->setText(
        tr("No programs yet. Drop media files or folders here, or choose “Import files”."));
    m_programs->retranslate();
    m_order->setKindWords();
}

void CataloguePanel::removeSelected()
{
    // While the answer is looked for and the question stands, programs may come and go, and with
    // them the rows.
    const std::vector<int> indexes = m_table->selectedPrograms();
    if (!indexes.empty()) {
        m_lookup->ask(indexes);
    }
}

void CataloguePanel::askRemoval(const LookupAnswer& answer)
{
    const int count = static_cast<int>(answer.programs.size());
    QStringList lines{
        tr("Remove %n programs from the catalog? The files are not deleted.", nullptr, count)};
    const QStringList broken = UseWords::removal(answer, locale());
    if (!broken.isEmpty()) {
        lines.append(QString());
        lines.append(broken);
    }
    if (!prompts::confirmLoss(lines.join(QLatin1Char('\n')), tr("Remove"), tr("Cancel"))) {
        return;
    }
    const StoreResult result = ScheduleHost::instance().removePrograms(answer.programs);
    if (!result) {
        prompts::notice(problems::sentence(result));
    }
}

void CataloguePanel::showUses()
{
    const int program = m_table->meantProgram();
    if (program < 0) {
        return;
    }
    if (m_uses == nullptr) {
        m_uses = new UsesWindow(window());
        m_uses->setColours(m_colours);
        connect(m_uses, &UsesWindow::planAsked, this, &CataloguePanel::planAsked);
    }
    m_uses->setProgram(program);
    m_uses->show();
    m_uses->raise();
    m_uses->activateWindow();
}

void CataloguePanel::preview(int program)
{
    if (m_preview == nullptr) {
        m_preview = new ProgramPreview(window());
    }
    m_preview->setProgram(program);
    m_preview->show();
    m_preview->raise();
    m_preview->activateWindow();
}

void CataloguePanel::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    if (event->type() == QEvent::LocaleChange) {
        m_order->setLocale(locale());
    }
    QWidget::changeEvent(event);
}

} // namespace trel::desktop
