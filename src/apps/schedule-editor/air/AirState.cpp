#include "air/AirState.h"

#include "DateWords.h"
#include "air/AirLight.h"
#include "clock/Clock.h"
#include "draft/DraftKeeper.h"
#include "screen/ElidedText.h"
#include "screen/ScreenFollower.h"
#include "service/ScheduleRecords.h"
#include "trelprogramschedule/ScheduleHost.h"
#include "trelprogramschedule/history/ScheduleVersion.h"

#include <QDateTime>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>

#include <vector>

using namespace trel::mediadispatch;

namespace trel::desktop::air {

namespace {

constexpr int kSpace = 12;

} // namespace

AirState::AirState(ScreenFollower& follower, const DraftKeeper& drafts, QWidget* parent)
    : QWidget(parent)
    , m_follower(follower)
    , m_drafts(drafts)
    , m_saved(new ElidedText(this))
    , m_light(new AirLight(this))
    , m_time(new QLabel(this))
{
    setObjectName(QStringLiteral("airState"));
    m_saved->setObjectName(QStringLiteral("airSaved"));
    m_saved->setAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
    m_time->setObjectName(QStringLiteral("airTime"));
    m_time->setTextFormat(Qt::PlainText);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(kSpace, 0, kSpace, 0);
    layout->setSpacing(kSpace);
    layout->addWidget(m_saved, 1);
    layout->addWidget(m_light);
    layout->addWidget(m_time);

    m_follower.addViewer(*this);
    connect(&m_follower, &ScreenFollower::ticked, this, &AirState::showTime);
    connect(&m_follower, &ScreenFollower::changed, this, &AirState::showLight);
    connect(&m_drafts, &DraftKeeper::unsavedChanged, this, &AirState::showSaved);
    const ScheduleHost& host = ScheduleHost::instance();
    connect(&host, &ScheduleHost::effectChanged, this, &AirState::showLight);
    m_reading.setSingleShot(true);
    connect(&m_reading, &QTimer::timeout, this, &AirState::reload);
    // Several of them may come in one turn: the store is read once.
    const auto readSoon = [this] { m_reading.start(0); };
    connect(&host, &ScheduleHost::storedSetChanged, this, readSoon);
    connect(&host, &ScheduleHost::savedElsewhere, this, readSoon);
    showTime();
    showLight();
    reload();
}

void AirState::showTime()
{
    const QDateTime now =
        QDateTime::fromMSecsSinceEpoch(Clock::current().msecsSinceEpoch(), Clock::current().zone());
    const QString time = now.toString(kTimeFormat);
    m_time->setText(time);
    m_time->setAccessibleName(tr("Time of day: %1").arg(time));
}

void AirState::showLight()
{
    m_light->setOn(ScheduleHost::instance().started().has_value());
    showSaved();
}

void AirState::reload()
{
    std::vector<ScheduleVersion> versions;
    m_savedAt = 0;
    if (ScheduleHost::instance().versions(versions) && !versions.empty()) {
        m_savedAt = versions.front().saved;
    }
    showSaved();
}

void AirState::showSaved()
{
    const auto started = ScheduleHost::instance().started();
    QStringList parts;
    if (m_drafts.isUnsaved()) {
        parts.append(tr("Not saved"));
    } else if (m_savedAt > 0) {
        parts.append(tr("Saved: %1").arg(momentText(m_savedAt)));
    }
    if (started) {
        parts.append(tr("Started: %1").arg(momentText(started->since)));
    }
    m_saved->setText(parts.join(QStringLiteral("  ·  ")));
}

void AirState::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        showTime();
        showSaved();
    }
}

} // namespace trel::desktop::air
