#include "effect/EffectLines.h"

#include "DateWords.h"
#include "effect/EffectWords.h"
#include "screen/ElidedText.h"
#include "screen/ScreenFollower.h"
#include "trelprogramschedule/ScheduleHost.h"

#include <QEvent>
#include <QLocale>
#include <QVBoxLayout>

#include <chrono>

using namespace trel::mediadispatch;

namespace trel::desktop {

namespace {

/// More tasks fill no line and no screen.
constexpr std::size_t kShownInLine = 20;
constexpr std::size_t kShownInToolTip = 500;
/// When a store that could not be read is read again.
constexpr std::chrono::seconds kAgain{1};
/// With the date and the time it is longer than the panel is wide in most languages.
constexpr int kSinceLines = 2;

} // namespace

EffectLines::EffectLines(const ScreenFollower& follower, QWidget* parent)
    : QWidget(parent)
    , m_follower(follower)
    , m_since(new ElidedText(this, kSinceLines))
    , m_differing(new ElidedText(this))
{
    m_since->setObjectName(QStringLiteral("effectSince"));
    m_since->setForegroundRole(QPalette::PlaceholderText);
    m_differing->setObjectName(QStringLiteral("effectDiffering"));
    m_differing->hide();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(m_since);
    layout->addWidget(m_differing);

    m_comparison.setSingleShot(true);
    connect(&m_comparison, &QTimer::timeout, this, &EffectLines::compare);
    // A database that is closed ends what is on screen, and nothing else tells of it.
    connect(&follower, &ScreenFollower::changed, this, &EffectLines::showStart);
    const ScheduleHost& host = ScheduleHost::instance();
    connect(&host, &ScheduleHost::effectChanged, this, &EffectLines::showStart);
    connect(&host, &ScheduleHost::effectChanged, this, &EffectLines::compareSoon);
    connect(&host, &ScheduleHost::storedSetChanged, this, &EffectLines::compareSoon);
    connect(&host, &ScheduleHost::savedElsewhere, this, &EffectLines::compareSoon);
    showStart();
    compareSoon();
}

void EffectLines::showStart()
{
    const std::optional<EffectStart> started = ScheduleHost::instance().started();
    setVisible(started.has_value());
    if (!started) {
        m_differing->hide();
        return;
    }
    const QDate date = m_follower.local(started->since).date();
    const QString text =
        EffectWords::since(dateText(date), m_follower.timeText(started->since), started->saved);
    m_since->setText(text);
    m_since->setLongText(started->by.isEmpty()
                             ? QString()
                             : text + QLatin1Char('\n') + EffectWords::startedBy(started->by));
}

void EffectLines::compareSoon()
{
    // A start saves first, and a save may be followed by others: they are compared once.
    m_comparison.start(0);
}

void EffectLines::compare()
{
    std::set<int> taskIds;
    if (!ScheduleHost::instance().tasksNotInEffect(taskIds)) {
        m_comparison.start(kAgain);
        return;
    }
    m_differing->setVisible(!taskIds.empty());
    m_differing->setText(EffectWords::differing(taskIds, kShownInLine));
    m_differing->setLongText(taskIds.size() > kShownInLine
                                 ? EffectWords::differing(taskIds, kShownInToolTip)
                                 : QString());
}

void EffectLines::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::LocaleChange) {
        showStart();
        compare();
    }
    QWidget::changeEvent(event);
}

} // namespace trel::desktop
