#include "asrun/AsRunWindow.h"

#include "asrun/AsRunModel.h"
#include "asrun/AsRunText.h"
#include "clock/Clock.h"
#include "fit/ColumnRoom.h"
#include "look/ProgramSignDelegate.h"
#include "memory/RememberedDialog.h"
#include "trelwidgets/PlainToolTip.h"

#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTableView>
#include <QVBoxLayout>

#include <memory>
#include <utility>

using namespace trel::mediadispatch;

namespace trel::desktop {

namespace {

constexpr int kSignWidth = 28;

QDate today()
{
    return QDateTime::fromMSecsSinceEpoch(Clock::current().msecsSinceEpoch(),
                                          Clock::current().zone())
        .date();
}

} // namespace

AsRunWindow::AsRunWindow(QWidget* parent)
    : QDialog(parent)
    , m_model(new AsRunModel(this))
    , m_screens(new QComboBox(this))
    , m_former(addButton("asRunFormer", QStringLiteral("‹")))
    , m_date(new QDateEdit(today(), this))
    , m_next(addButton("asRunNext", QStringLiteral("›")))
    , m_onlyDeviations(new QCheckBox(this))
    , m_screenLabel(new QLabel(this))
    , m_dayLabel(new QLabel(this))
    , m_table(new QTableView(this))
    , m_signs(new look::ProgramSignDelegate(m_table))
    , m_summary(new QLabel(this))
{
    setObjectName(QStringLiteral("asRunWindow"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    // Numbers are written as in the window that it belongs to, and not as the system has them.
    setAttribute(Qt::WA_WindowPropagation);
    build();
    connectControls();
    retranslate();
    resize(860, 520);
    new RememberedDialog(*this);
}

AsRunWindow::~AsRunWindow() = default;

QPushButton* AsRunWindow::addButton(const char* name, const QString& sign)
{
    auto* button = new QPushButton(sign, this);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);
    button->setFixedWidth(kSignWidth);
    return button;
}

void AsRunWindow::build()
{
    m_screens->setObjectName(QStringLiteral("asRunScreens"));
    m_screens->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_screenLabel->setBuddy(m_screens);
    m_screenLabel->setTextFormat(Qt::PlainText);
    m_date->setObjectName(QStringLiteral("asRunDate"));
    m_date->setDisplayFormat(QStringLiteral("yyyy.MM.dd"));
    m_date->setCalendarPopup(true);
    // A date that is half typed is no day to read.
    m_date->setKeyboardTracking(false);
    m_dayLabel->setBuddy(m_date);
    m_dayLabel->setTextFormat(Qt::PlainText);
    m_onlyDeviations->setObjectName(QStringLiteral("asRunOnlyDeviations"));
    m_summary->setObjectName(QStringLiteral("asRunSummary"));
    m_summary->setTextFormat(Qt::PlainText);
    m_summary->setWordWrap(true);

    m_table->setObjectName(QStringLiteral("asRunTable"));
    m_table->setModel(m_model);
    m_table->setItemDelegate(m_signs);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setAlternatingRowColors(true);
    m_table->setShowGrid(false);
    m_table->setWordWrap(false);
    m_table->setTabKeyNavigation(false);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    QHeaderView* columns = m_table->horizontalHeader();
    columns->setStretchLastSection(true);
    columns->setHighlightSections(false);
    columns->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    columns->resizeSection(AsRunModel::FromColumn, columns->minimumSectionSize());
    columns->resizeSection(AsRunModel::ToColumn, columns->minimumSectionSize());
    columns->resizeSection(AsRunModel::PlannedColumn, 210);
    columns->resizeSection(AsRunModel::ShownColumn, 210);

    auto* controls = new QHBoxLayout;
    controls->addWidget(m_screenLabel);
    controls->addWidget(m_screens);
    controls->addSpacing(12);
    controls->addWidget(m_dayLabel);
    controls->addWidget(m_former);
    controls->addWidget(m_date);
    controls->addWidget(m_next);
    controls->addStretch();
    controls->addWidget(m_onlyDeviations);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(controls);
    layout->addWidget(m_table, 1);
    layout->addWidget(m_summary);
}

void AsRunWindow::connectControls()
{
    connect(m_screens, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &AsRunWindow::read);
    connect(m_date, &QDateEdit::dateChanged, this, &AsRunWindow::read);
    connect(m_former, &QPushButton::clicked, m_date,
            [this] { m_date->setDate(m_date->date().addDays(-1)); });
    connect(m_next, &QPushButton::clicked, m_date,
            [this] { m_date->setDate(m_date->date().addDays(1)); });
    connect(m_onlyDeviations, &QCheckBox::toggled, m_model, &AsRunModel::setOnlyDeviations);
}

void AsRunWindow::setStore(const QString& store)
{
    m_store = store;
    read();
}

void AsRunWindow::setColours(const look::ThemeColours& colours)
{
    m_signs->setColours(colours);
    m_table->viewport()->update();
}

void AsRunWindow::read()
{
    m_day.reset();
    tellSummary();
    const Clock& clock = Clock::current();
    const AsRunQuestion question{m_store, m_screens->currentText(), m_date->date(), clock.zone()};
    m_work.start(
        [this, question](const follow::Cancellation& cancellation) -> follow::NewestWork::Outcome {
            auto day = std::make_shared<AsRunDay>(readAsRunDay(question, cancellation));
            // Runs in the thread of the window, and not once that has gone.
            return [this, day] { take(std::move(*day)); };
        });
}

void AsRunWindow::take(AsRunDay day)
{
    offer(day);
    m_day = std::move(day);
    tellSummary();
    m_model->setDay(std::move(m_day->lines), m_day->date, m_day->zone);
    fit::widenToContents(*m_table, AsRunModel::FromColumn);
    fit::widenToContents(*m_table, AsRunModel::ToColumn);
}

void AsRunWindow::tellSummary()
{
    m_summary->setText(m_day ? AsRunText::summary(*m_day, locale()) : tr("Reading…"));
}

void AsRunWindow::offer(const AsRunDay& day)
{
    const QSignalBlocker quiet(m_screens);
    QStringList offered;
    for (int i = 0; i < m_screens->count(); ++i) {
        offered.append(m_screens->itemText(i));
    }
    if (offered != day.screens) {
        m_screens->clear();
        m_screens->addItems(day.screens);
    }
    m_screens->setCurrentIndex(day.screens.indexOf(day.screen));
}

void AsRunWindow::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::LocaleChange) {
        retranslate();
    }
}

void AsRunWindow::retranslate()
{
    // A calendar keeps the first day of the week that it began with. There is none while the window
    // is being built.
    if (QCalendarWidget* const calendar = m_date->calendarWidget()) {
        calendar->setLocale(locale());
        calendar->setFirstDayOfWeek(locale().firstDayOfWeek());
    }
    setWindowTitle(tr("As-run"));
    m_screenLabel->setText(tr("Screen"));
    m_dayLabel->setText(tr("Day"));
    m_onlyDeviations->setText(tr("Only what was not as planned"));
    m_table->setAccessibleName(tr("As-run"));
    const auto setWords = [](QPushButton* button, const QString& words) {
        button->setToolTip(trel::widgets::plainToolTip(words));
        button->setAccessibleName(words);
    };
    setWords(m_former, tr("Previous day"));
    setWords(m_next, tr("Next day"));
    m_model->retranslate(locale());
    tellSummary();
}

} // namespace trel::desktop
