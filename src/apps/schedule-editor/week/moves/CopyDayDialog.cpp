#include "week/moves/CopyDayDialog.h"

#include "DateWords.h"
#include "week/WeekLayout.h"
#include "week/WeekTasks.h"
#include "week/moves/MoveWords.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

using namespace trel::mediadispatch;

namespace trel::desktop::week {

CopyDayDialog::CopyDayDialog(const WeekLayout& week, const QDate& day, const EditTarget& target,
                             const QLocale& locale, QWidget* parent)
    : QDialog(parent)
    , m_day(day)
    , m_tasks(target.tasks())
    , m_week(std::make_unique<WeekTasks>(m_tasks))
    , m_programs(target.programs())
    , m_summary(new QLabel(this))
{
    setObjectName(QStringLiteral("copyDay"));
    setLocale(locale);
    setWindowTitle(MoveWords::copyDay(day, locale));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(tr("Copy onto these days, whose own plans stay:"), this));
    addDays(week);
    m_summary->setObjectName(QStringLiteral("copyDaySummary"));
    m_summary->setTextFormat(Qt::PlainText);
    m_summary->setWordWrap(true);
    m_summary->setMinimumSize(360, m_summary->fontMetrics().lineSpacing() * 3);
    m_summary->setAlignment(Qt::AlignLeading | Qt::AlignTop);
    layout->addWidget(m_summary, 1);
    addButtons(*layout);
    update();
}

CopyDayDialog::~CopyDayDialog() = default;

void CopyDayDialog::addDays(const WeekLayout& week)
{
    for (const WeekColumn& column : week.days) {
        if (column.date == m_day) {
            continue;
        }
        const QString date = weekdayText(column.date, locale());
        const bool hasTask = m_week->inEffectOn(column.date).has_value();
        auto* box =
            new QCheckBox(hasTask ? date : tr("%1 (no task is valid)", "a day").arg(date), this);
        box->setEnabled(hasTask);
        connect(box, &QCheckBox::toggled, this, &CopyDayDialog::update);
        m_days.emplace_back(column.date, box);
        layout()->addWidget(box);
    }
}

void CopyDayDialog::addButtons(QVBoxLayout& layout)
{
    // As in the prompts: what is meant ends the row. They come last, so that Tab comes to them
    // last.
    auto* cancel = new QPushButton(tr("Cancel"), this);
    m_confirm = new QPushButton(tr("Copy"), this);
    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(cancel);
    row->addWidget(m_confirm);
    layout.addLayout(row);
    m_confirm->setObjectName(QStringLiteral("copyDayConfirm"));
    m_confirm->setDefault(true);
    m_confirm->setProperty("style", QStringLiteral("general"));
    cancel->setAutoDefault(false);
    connect(m_confirm, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
}

DayCopy CopyDayDialog::copy() const
{
    std::vector<QDate> onto;
    for (const auto& [date, box] : m_days) {
        if (box->isChecked()) {
            onto.push_back(date);
        }
    }
    return copyDay(*m_week, m_day, onto, *m_programs, noDurationIn(*m_programs));
}

undo::TaskEdits CopyDayDialog::edits() const
{
    undo::TaskEdits edits;
    for (auto& [id, task] : copy().tasks) {
        edits.push_back({id, std::make_shared<const PlayTask>(m_tasks.at(id)),
                         std::make_shared<const PlayTask>(task)});
    }
    return edits;
}

QString CopyDayDialog::outcome(const DayCopy& copy)
{
    if (copy.plans == 0) {
        return tr("There is no plan on that day.");
    }
    if (copy.tasks.empty()) {
        return tr("All of them play on these days already.");
    }
    return copy.collisions == 0
               ? tr("%n plans are copied.", nullptr, copy.plans)
               : tr("%n more plans will conflict then. Nothing is lost by that: change what you "
                    "want afterwards.",
                    nullptr, copy.collisions);
}

QString CopyDayDialog::summary(const DayCopy& copy) const
{
    const bool isAny = std::any_of(m_days.begin(), m_days.end(),
                                   [](const auto& day) { return day.second->isChecked(); });
    if (!isAny && copy.plans > 0) {
        return tr("%n plans play on that day. Choose the days to copy them onto.", nullptr,
                  copy.plans);
    }
    return outcome(copy);
}

void CopyDayDialog::update()
{
    const DayCopy now = copy();
    m_summary->setText(summary(now));
    m_confirm->setEnabled(!now.tasks.empty());
}

} // namespace trel::desktop::week
