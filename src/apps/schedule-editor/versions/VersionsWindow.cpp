#include "versions/VersionsWindow.h"

#include "HostPrompts.h"
#include "ProblemWords.h"
#include "clock/Clock.h"
#include "exchange/ScheduleFile.h"
#include "fit/ColumnRoom.h"
#include "fit/ScrolledContent.h"
#include "memory/RememberedDialog.h"
#include "scheduleControlUI.h"
#include "service/InvalidEntries.h"
#include "service/scheduleManage.h"
#include "trelprogramschedule/ScheduleHost.h"
#include "trelprogramschedule/dispatch/ScreenDispatch.h"
#include "trelprogramschedule/history/VersionReader.h"
#include "trelwidgets/PlainToolTip.h"
#include "versions/ComparisonPanel.h"
#include "versions/VersionModel.h"
#include "versions/VersionNameDialog.h"
#include "versions/VersionTables.h"
#include "versions/VersionWords.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShowEvent>
#include <QSignalBlocker>
#include <QSplitter>
#include <QVBoxLayout>

#include <memory>
#include <utility>

using namespace trel::mediadispatch;

namespace trel::desktop::versions {

namespace {

constexpr int kNumberRole = Qt::UserRole + 1;
/// In less room the states to compare with end in dots; their list shows them whole.
constexpr int kLeastOther = 120;

} // namespace

VersionsWindow::VersionsWindow(scheduleControlUI& editor, QWidget* parent)
    : QDialog(parent)
    , m_editor(editor)
    , m_model(new VersionModel(this))
    , m_table(new QTableView(this))
    , m_summary(new QLabel(this))
    , m_name(addButton("versionNameButton"))
    , m_restore(addButton("versionRestoreButton"))
    , m_write(addButton("versionWriteButton"))
    , m_otherLabel(new QLabel(this))
    , m_other(new QComboBox(this))
    , m_swap(addButton("versionSwapButton"))
    , m_panel(new ComparisonPanel(this))
{
    setObjectName(QStringLiteral("versionsWindow"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    build();
    connectControls();
    followStore();
    resize(1340, 700);
    new RememberedDialog(*this);
}

VersionsWindow::~VersionsWindow() = default;

QPushButton* VersionsWindow::addButton(const char* name)
{
    auto* button = new QPushButton(this);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);
    return button;
}

void VersionsWindow::build()
{
    m_table->setObjectName(QStringLiteral("versionTable"));
    prepareTable(*m_table, m_model);
    QHeaderView* columns = m_table->horizontalHeader();
    columns->resizeSection(VersionModel::NumberColumn, 74);
    columns->resizeSection(VersionModel::SavedColumn, columns->minimumSectionSize());
    columns->resizeSection(VersionModel::ByColumn, 100);
    columns->resizeSection(VersionModel::ChangeColumn, 140);
    columns->resizeSection(VersionModel::NameColumn, 80);
    // The last one only grows by itself, and would leave a bar to scroll by where others need more.
    columns->setStretchLastSection(false);
    columns->setSectionResizeMode(VersionModel::NoteColumn, QHeaderView::Stretch);
    m_summary->setObjectName(QStringLiteral("versionSummary"));
    m_summary->setTextFormat(Qt::PlainText);
    m_summary->setWordWrap(true);
    m_other->setObjectName(QStringLiteral("versionOther"));
    m_other->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_other->setMinimumContentsLength(28);
    m_other->setMinimumWidth(kLeastOther);
    m_otherLabel->setTextFormat(Qt::PlainText);
    m_otherLabel->setBuddy(m_other);
    m_swap->setText(QStringLiteral("⇄"));
    m_swap->setCheckable(true);

    auto* list = new QWidget(this);
    auto* actions = new QHBoxLayout;
    for (QPushButton* button : {m_name, m_restore, m_write}) {
        actions->addWidget(button);
    }
    actions->addStretch();
    auto* listLayout = new QVBoxLayout(list);
    listLayout->setContentsMargins(0, 0, 0, 0);
    listLayout->addWidget(m_table, 1);
    listLayout->addWidget(m_summary);
    listLayout->addLayout(actions);

    auto* comparison = new QWidget(this);
    auto* choice = new QHBoxLayout;
    choice->addWidget(m_otherLabel);
    choice->addWidget(m_other);
    choice->addWidget(m_swap);
    choice->addStretch();
    auto* comparisonLayout = new QVBoxLayout(comparison);
    comparisonLayout->setContentsMargins(0, 0, 0, 0);
    comparisonLayout->addLayout(choice);
    comparisonLayout->addWidget(m_panel, 1);

    auto* halves = new QSplitter(this);
    halves->setObjectName(QStringLiteral("versionHalves"));
    halves->setChildrenCollapsible(false);
    halves->addWidget(list);
    halves->addWidget(comparison);
    halves->setStretchFactor(1, 1);
    // The title of the last column is whole in every language.
    halves->setSizes({616, 704});
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new fit::ScrolledContent(*halves, this));
}

void VersionsWindow::connectControls()
{
    const auto compareUnlessTaking = [this] {
        if (!m_isTaking) {
            compare();
        }
    };
    connect(m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            compareUnlessTaking);
    connect(m_other, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            compareUnlessTaking);
    connect(m_swap, &QPushButton::toggled, this, &VersionsWindow::compare);
    connect(m_name, &QPushButton::clicked, this, &VersionsWindow::nameChosen);
    connect(m_restore, &QPushButton::clicked, this, &VersionsWindow::restoreChosen);
    connect(m_write, &QPushButton::clicked, this, &VersionsWindow::writeChosen);
}

void VersionsWindow::followStore()
{
    const ScheduleHost& host = ScheduleHost::instance();
    // A window that is hidden reads when it comes up.
    const auto read = [this] {
        if (isVisible()) {
            readAgain();
        }
    };
    connect(&host, &ScheduleHost::storedSetChanged, this, read);
    connect(&host, &ScheduleHost::savedElsewhere, this, read);
    connect(&host, &ScheduleHost::effectChanged, this, [this] {
        if (isVisible() && other().kind == ScheduleState::InEffect) {
            compare();
        }
    });
    connect(&host, &ScheduleHost::catalogueChanged, this, [this] {
        if (isVisible()) {
            compare();
        }
    });
}

void VersionsWindow::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (!event->spontaneous()) {
        readAgain();
    }
}

void VersionsWindow::readAgain()
{
    m_isReading = true;
    tellList();
    m_reading.start([this, store = ScheduleHost::instance().path()](
                        const follow::Cancellation&) -> follow::NewestWork::Outcome {
        auto result = std::make_shared<StoreResult>();
        auto versions = std::make_shared<std::vector<ScheduleVersion>>();
        if (!store.isEmpty()) {
            *result = VersionReader(store).versions(*versions);
        }
        // Runs in the thread of the window, and not once that has gone.
        return [this, result, versions] { takeVersions(*result, std::move(*versions)); };
    });
}

void VersionsWindow::takeVersions(const StoreResult& result, std::vector<ScheduleVersion> versions)
{
    m_isReading = false;
    m_result = result;
    const std::optional<qint64> former = chosen();
    const bool wasNewest = former && m_model->rowOf(*former) == 0;
    m_isTaking = true;
    m_model->setVersions(std::move(versions), Clock::current().zone());
    fit::widenToContents(*m_table, VersionModel::SavedColumn);
    fillStates();
    // The newest is what is saved, from which it does not differ.
    if (former && !wasNewest && m_model->rowOf(*former) >= 0) {
        choose(*former);
    } else if (!m_model->versions().empty()) {
        const std::size_t row = m_model->versions().size() > 1 ? 1 : 0;
        choose(m_model->versions()[row].number);
    }
    m_isTaking = false;
    tellList();
    compare();
}

void VersionsWindow::choose(qint64 number)
{
    const int row = m_model->rowOf(number);
    // Checked with Qt 5.15.8: selectRow() looks for a column at the left edge, where there may be
    // none when one reads from the right.
    m_table->setCurrentIndex(m_model->index(row, 0));
    m_table->scrollTo(m_model->index(row, 0));
}

std::optional<qint64> VersionsWindow::chosen() const
{
    const QModelIndex current = m_table->currentIndex();
    return current.isValid()
               ? std::make_optional(
                     m_model->versions()[static_cast<std::size_t>(current.row())].number)
               : std::nullopt;
}

void VersionsWindow::fillStates()
{
    const QSignalBlocker quiet(m_other);
    const ScheduleState former = other();
    m_other->clear();
    const auto add = [this](const ScheduleState& state, const QString& text) {
        m_other->addItem(text, static_cast<int>(state.kind));
        m_other->setItemData(m_other->count() - 1, state.number, kNumberRole);
    };
    for (const ScheduleState& state :
         {ScheduleState{ScheduleState::Saved}, ScheduleState{ScheduleState::InEffect}}) {
        add(state, VersionWords::state(state));
    }
    for (const ScheduleVersion& version : m_model->versions()) {
        add({ScheduleState::Version, version.number},
            VersionWords::choice(version, m_model->zone()));
    }
    for (int row = 0; row < m_other->count(); ++row) {
        if (m_other->itemData(row).toInt() == former.kind &&
            m_other->itemData(row, kNumberRole).toLongLong() == former.number) {
            m_other->setCurrentIndex(row);
        }
    }
}

ScheduleState VersionsWindow::other() const
{
    if (m_other->currentIndex() < 0) {
        return {};
    }
    return {static_cast<ScheduleState::Kind>(m_other->currentData().toInt()),
            m_other->currentData(kNumberRole).toLongLong()};
}

void VersionsWindow::compare()
{
    const std::optional<qint64> number = chosen();
    for (QPushButton* button : {m_name, m_restore, m_write}) {
        button->setEnabled(number.has_value());
    }
    const ScheduleHost& host = ScheduleHost::instance();
    const auto nothing = [](const follow::Cancellation&) {
        return follow::NewestWork::Outcome([] {});
    };
    if (!number) {
        m_comparing.start(nothing);
        m_panel->clear(ComparisonPanel::Without::Nothing);
        return;
    }
    ComparisonQuestion question;
    question.store = host.path();
    question.former = {ScheduleState::Version, *number};
    question.later = other();
    question.catalogue = host.catalogue();
    question.zone = Clock::current().zone();
    question.firstDay = m_panel->firstDay();
    if (question.later.kind == ScheduleState::InEffect) {
        if (!host.started()) {
            m_comparing.start(nothing);
            m_panel->clear(ComparisonPanel::Without::NothingInEffect);
            return;
        }
        question.inEffect = std::make_shared<const week::WeekSchedule::Tasks>(
            ScheduleHost::instance().dispatch().tasks());
    }
    if (m_swap->isChecked()) {
        std::swap(question.former, question.later);
    }
    auto former = m_panel->comparison();
    m_panel->clear(ComparisonPanel::Without::OnItsWay);
    // What was shown goes in the other thread: to free thousands of plans takes its time.
    m_comparing.start([this, question, former = std::move(former)](
                          const follow::Cancellation& cancellation) -> follow::NewestWork::Outcome {
        const auto made = compareStates(question, cancellation);
        return [this, made] { m_panel->setComparison(made); };
    });
}

void VersionsWindow::tellList()
{
    if (m_isReading) {
        m_summary->setText(tr("Reading…"));
    } else if (!m_result) {
        m_summary->setText(problems::sentence(m_result));
    } else {
        m_summary->setText(m_model->versions().empty() ? tr("No versions are kept yet.")
                                                       : QString());
    }
    m_summary->setVisible(!m_summary->text().isEmpty());
}

void VersionsWindow::nameChosen()
{
    const std::optional<qint64> number = chosen();
    if (!number) {
        return;
    }
    const QString store = ScheduleHost::instance().path();
    VersionNameDialog dialog(m_model->versions()[static_cast<std::size_t>(m_model->rowOf(*number))],
                             this);
    dialog.setLocale(locale());
    if (dialog.exec() != QDialog::Accepted || ScheduleHost::instance().path() != store) {
        return;
    }
    const StoreResult result =
        ScheduleHost::instance().nameVersion(*number, dialog.name(), dialog.note());
    if (!result) {
        prompts::notice(problems::sentence(result));
    }
    readAgain();
}

bool VersionsWindow::readVersion(qint64 number, std::map<int, PlayTask>& tasks) const
{
    if (const auto* const read = m_panel->tasksOf(number)) {
        tasks = *read;
        return true;
    }
    // It is still on its way in the other thread, or could not be read.
    const StoreResult result = ScheduleHost::instance().versionTasks(number, tasks);
    if (!result) {
        prompts::notice(problems::sentence(result));
    }
    return bool(result);
}

void VersionsWindow::restoreChosen()
{
    const std::optional<qint64> number = chosen();
    if (!number) {
        return;
    }
    ScheduleHost& host = ScheduleHost::instance();
    emit aboutToReplace();
    std::map<int, PlayTask> tasks;
    if (!readVersion(*number, tasks)) {
        return;
    }
    // An editor that is hidden has nothing that is not saved.
    const bool isUnsaved = m_editor.isVisible() && host.hasUnsavedChanges();
    const QString store = host.path();
    const QString question =
        VersionWords::restoring(*number, lostPrograms(tasks, *host.catalogue()), isUnsaved);
    // Tasks that came later are gone then, so Enter cancels.
    const int cancel = isUnsaved ? 3 : 2;
    const int answer =
        isUnsaved ? prompts::confirm(question, tr("Save, then restore"),
                                     tr("Restore without saving"), tr("Cancel"), cancel)
                  : prompts::confirm(question, tr("Restore"), tr("Cancel"), QString(), cancel);
    const bool isMeant = answer == 1 || (isUnsaved && answer == 2);
    // While the question stood, anything may have happened.
    if (!isMeant || host.path() != store) {
        return;
    }
    if (isUnsaved && answer == 1) {
        // Through the service, so that a failure takes the same way as any other.
        scheduleManage::getInstance().save();
        if (host.hasUnsavedChanges()) {
            return;
        }
    }
    if (const StoreResult result = host.restoreVersion(*number); !result) {
        prompts::notice(problems::sentence(result));
        return;
    }
    emit replaced();
}

void VersionsWindow::writeChosen()
{
    const std::optional<qint64> number = chosen();
    if (!number) {
        return;
    }
    std::map<int, PlayTask> tasks;
    if (!readVersion(*number, tasks)) {
        return;
    }
    const QString file = prompts::saveFileName(this, tr("Write the version to a file"),
                                               tr("Schedules (*.json)"), QStringLiteral("json"));
    if (file.isEmpty()) {
        return;
    }
    if (const Fault fault = writeSchedule(file, tasks, FileHashes::Read)) {
        prompts::notice(problems::unwritable(file, fault));
        return;
    }
    m_summary->setText(tr("Written to %1.").arg(file));
    m_summary->show();
}

void VersionsWindow::setColours(const look::ThemeColours& colours)
{
    m_panel->setColours(colours);
}

void VersionsWindow::setLanguage(const QLocale& locale)
{
    setLocale(locale);
    setWindowTitle(tr("Versions"));
    m_name->setText(tr("Name and note…"));
    m_restore->setText(tr("Restore…"));
    m_write->setText(tr("Write to a file…"));
    m_otherLabel->setText(tr("Compared with"));
    m_swap->setToolTip(trel::widgets::plainToolTip(tr("The other way round")));
    m_swap->setAccessibleName(tr("The other way round"));
    m_table->setAccessibleName(tr("Versions"));
    m_model->retranslate();
    fillStates();
    m_panel->setLanguage(locale);
    tellList();
}

} // namespace trel::desktop::versions
