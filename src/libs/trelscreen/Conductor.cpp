#include "Conductor.h"

#include "clock/Clock.h"
#include "trelscreen/DeckSlot.h"
#include "trelscreen/WakeUp.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

using namespace trel::mediadispatch;

namespace trel::screen {

namespace {

/// How long before its time a play is loaded.
constexpr qint64 kAhead = 2000;
/// The least of that which it is left where the present play, which broke, is just coming back.
constexpr qint64 kAheadAtLeast = 1000;
/// What a deck is given to be ready in the middle of a program, so that it begins to the frame.
constexpr qint64 kLead = 250;
/// How long a picture may stay whose time ended without notice.
constexpr qint64 kGrace = 100;
/// How often the position is looked at.
constexpr qint64 kLook = 250;
/// How long a play that was broken has to last before it counts as recovered.
constexpr qint64 kWell = 1000;
/// More than two readings of the clock and of the running time are ever apart.
constexpr qint64 kLeap = 250;

StagePicture pictureOf(const DeckSlot& slot)
{
    if (slot.deck().hasPicture()) {
        return {StagePicture::Kind::Deck, &slot.deck(), {}};
    }
    return {StagePicture::Kind::StandBy, nullptr, slot.play().name};
}

} // namespace

Conductor::Conductor(Stage& stage, Deck& first, Deck& second, ScreenLog& log, QObject* parent)
    : QObject(parent)
    , m_stage(stage)
    , m_log(log)
    , m_slots({new DeckSlot(first, this), new DeckSlot(second, this)})
    , m_alarm(Clock::current().makeAlarm([this] { follow(); }))
    , m_picture({StagePicture::Kind::StandBy, nullptr, {}})
{
    m_running.start();
    look();
    for (DeckSlot* slot : m_slots) {
        connect(slot, &DeckSlot::changed, this, &Conductor::follow);
    }
    m_stage.show(m_picture);
}

Conductor::~Conductor() = default;

void Conductor::setSchedule(ScreenSchedule schedule)
{
    m_schedule = std::move(schedule);
    note(ScreenEvent::Kind::ScheduleTaken, m_current.play);
    follow();
}

ScreenStatus Conductor::status() const
{
    ScreenStatus status;
    status.play = m_current.play;
    status.picture = m_picture.kind;
    status.isOnTimeline = m_isShown;
    status.keepsLastPicture = !m_isShown && m_picture.kind == StagePicture::Kind::Deck &&
                              m_onStage && m_onStage->play().isOfSamePlay(m_current.play);
    status.onScreenSince = m_shownSince;
    status.fault = m_isShown ? DeckFault() : m_current.fault;
    return status;
}

qint64 Conductor::longestOff() const
{
    return m_tally.longestOff(Clock::current().elapsed(m_running));
}

void Conductor::follow()
{
    const qint64 leap = look();
    if (!m_schedule) {
        return;
    }
    if (leap != 0) {
        note(ScreenEvent::Kind::ClockLeapt, m_current.play, leap);
    }
    const ScreenPlay play = screenPlayAt(*m_schedule, m_now);
    if (m_over == kEver || !play.isSamePlay(m_current.play)) {
        begin(play, leap != 0);
    } else {
        m_current.play = play;
        if (leap != 0 && !m_isShown && m_current.slot) {
            join();
        }
    }
    m_over = play.isTooShort() ? endOfShortPlays(*m_schedule, m_now) : play.state.until;
    prepareNext();
    attendNext();
    attendCurrent();
    if (m_next && !m_next->slot) {
        // A deck may have become free.
        prepareNext();
    }
    m_tally.setOnTimeline(m_isShown && !m_current.backAt, m_steady);
    sleep();
    if (std::exchange(m_isChanged, false)) {
        emit changed();
    }
}

qint64 Conductor::look()
{
    const Clock& clock = Clock::current();
    const Instant now = clock.msecsSinceEpoch();
    const qint64 steady = clock.elapsed(m_running);
    const qint64 leap = (now - m_now) - (steady - m_steady);
    m_now = now;
    m_steady = steady;
    return std::abs(leap) > kLeap ? leap : 0;
}

// Another play.

void Conductor::begin(const ScreenPlay& play, bool hasLeapt)
{
    const bool isThereAlready = isThere(play);
    const std::optional<qint64> grace = m_graceUntil;
    leave();
    m_isSwitch = !hasLeapt && m_over != kEver && play.state.since >= m_over && m_over <= m_now;
    m_dueAt = m_isSwitch ? std::min(play.state.since, m_now) : m_now;
    DeckSlot* former = std::exchange(m_current, PlayAttempt()).slot;
    m_current.play = play;
    if (m_next && m_next->play.isSamePlay(play) && !isThereAlready) {
        m_current = *std::exchange(m_next, std::nullopt);
        m_current.play = play;
        if (m_current.failures > 0) {
            m_current.failedAt = m_steady;
        }
    } else {
        dropNext();
    }
    if (former && former != m_onStage) {
        former->clear();
    }
    noteDue();

    if (play.isBlack()) {
        showBlack();
    } else if (isThereAlready) {
        adopt(play);
    } else if (m_current.slot && m_current.slot->isReady()) {
        show();
    } else {
        beginWithout(grace);
    }
}

void Conductor::beginWithout(std::optional<qint64> grace)
{
    const ScreenPlay& play = m_current.play;
    if (!m_isSwitch) {
        m_graceUntil = grace.value_or(m_steady + kGrace);
    } else {
        if (!m_current.fault && !play.isTooShort()) {
            note(ScreenEvent::Kind::Late, play);
        }
        // A picture of the same play stands, where it goes on elsewhere in the program.
        if (m_onStage && m_onStage->play().isOfSamePlay(play)) {
            m_onStage->pause();
            noteStandIn(StandIn::LastPicture);
        } else {
            standBy();
        }
    }
    // Before the next one is prepared.
    if (!m_current.slot && m_current.isDue(m_steady)) {
        join();
    }
}

void Conductor::leave()
{
    if (m_current.backAt) {
        settleCurrent();
    }
    if (m_isShown && !m_current.play.isBlack()) {
        note(ScreenEvent::Kind::Left, m_current.play);
    }
    m_isShown = false;
    m_shownSince = kNever;
    m_graceUntil.reset();
}

bool Conductor::isThere(const ScreenPlay& play) const
{
    if (!m_onStage || m_onStage->trouble(m_now, m_now, m_steady)) {
        return false;
    }
    if (!play.isFrozen()) {
        return m_onStage->isStarted() && m_onStage->play().isSamePlay(play);
    }
    const qint64 position =
        m_onStage->deck().position().value_or(m_onStage->play().positionAt(m_now));
    return m_onStage->play().isOfSamePlay(play) &&
           (!play.hasPosition() ||
            std::abs(position - play.state.position) <= PositionHold::kTooFar);
}

void Conductor::adopt(const ScreenPlay& play)
{
    m_current.slot = m_onStage;
    m_onStage->relabel(play);
    if (play.isFrozen()) {
        m_onStage->pause();
    }
    m_isShown = true;
    noteShown();
}

void Conductor::join()
{
    const ScreenPlay& play = m_current.play;
    DeckSlot* slot = slotForCurrent();
    // What is over before it could be there would only be in the way of what follows.
    const bool isAlmostOver = m_graceUntil && play.state.until - m_now <= kGrace;
    if (!slot || play.isTooShort() || isAlmostOver) {
        return;
    }
    const bool isWorthWaiting =
        play.isPlaying() && play.hasPosition() && play.state.until - m_now > 2 * kLead;
    load(m_current, *slot, isWorthWaiting ? m_now + kLead : m_now);
}

DeckSlot* Conductor::slotForCurrent() const
{
    for (DeckSlot* slot : m_slots) {
        if (slot != m_onStage && !(m_next && m_next->slot == slot)) {
            return slot;
        }
    }
    return nullptr;
}

// The play after it.

void Conductor::prepareNext()
{
    if (m_over == kNever || m_over - m_now > kAhead) {
        dropNext();
        return;
    }
    const ScreenPlay next = screenPlayAt(*m_schedule, m_over);
    if (!needsDeck(next)) {
        dropNext();
        return;
    }
    if (m_next && m_next->play.isSamePlay(next)) {
        m_next->play = next;
    } else {
        dropNext();
        m_next.emplace().play = next;
    }
    if (!m_next->slot && m_next->isDue(m_steady)) {
        if (DeckSlot* slot = slotForNext()) {
            load(*m_next, *slot, next.moment);
        }
    }
}

bool Conductor::needsDeck(const ScreenPlay& next) const
{
    const bool goesOver = next.isFrozen() && m_isShown && next.isOfSamePlay(m_current.play);
    return !next.isBlack() && !next.isTooShort() && !goesOver;
}

DeckSlot* Conductor::slotForNext()
{
    for (DeckSlot* slot : m_slots) {
        if (slot != m_onStage && slot != m_current.slot) {
            return slot;
        }
    }
    // A play whose last picture stands gives way to the one after it.
    const bool isComingBack = m_onStage && m_current.slot != m_onStage && !m_graceUntil;
    if (isComingBack && m_over - m_now <= kAheadAtLeast) {
        return std::exchange(m_current.slot, nullptr);
    }
    return nullptr;
}

void Conductor::dropNext()
{
    if (m_next && m_next->slot) {
        m_next->slot->clear();
    }
    m_next.reset();
}

void Conductor::attendNext()
{
    if (!m_next || !m_next->slot) {
        return;
    }
    if (m_next->failures > 0 && m_next->slot->isReady()) {
        note(m_next->recover(m_steady));
    }
    if (const DeckFault fault = m_next->slot->trouble(m_now, kNever, m_steady)) {
        fail(*m_next, fault);
    }
}

// The present play.

void Conductor::attendCurrent()
{
    if (m_current.play.isBlack()) {
        return;
    }
    if (isLookDue()) {
        m_current.slot->watch(m_steady);
    }
    if (m_current.slot) {
        if (const DeckFault fault =
                m_current.slot->trouble(m_now, m_current.play.state.until, m_steady)) {
            loseCurrent(fault);
        }
    }
    attendPicture();
    attendGrace();
    if (!m_current.slot && m_current.isDue(m_steady)) {
        join();
    }
    if (isLookDue()) {
        m_lookAt = m_steady + kLook;
        attendPosition();
    }
    if (m_current.backAt && m_steady - *m_current.backAt >= kWell) {
        settleCurrent();
    }
}

void Conductor::attendPicture()
{
    DeckSlot* slot = m_current.slot;
    if (!slot || !slot->isReady() || m_now < slot->startsAt()) {
        return;
    }
    if (!m_isShown) {
        show();
    } else if (m_current.play.isPlaying() && !slot->isStarted()) {
        start();
    }
}

void Conductor::attendGrace()
{
    if (!m_graceUntil || m_steady < *m_graceUntil) {
        return;
    }
    m_graceUntil.reset();
    if (m_isShown) {
        return;
    }
    const bool isSomethingElse = m_picture.kind != StagePicture::Kind::StandBy || m_onStage;
    // Its first picture stands until its moment comes, rather than the stand-by picture in between.
    if (isSomethingElse && m_current.slot && m_current.slot->isReady()) {
        show();
    } else {
        standBy();
    }
}

void Conductor::attendPosition()
{
    DeckSlot* slot = m_current.slot;
    put(pictureOf(*slot));
    const ScreenPlay& play = m_current.play;
    // What stands still is not helped by being sent elsewhere; it would only look alive.
    if (!slot->hasMoved() || !play.hasPosition() ||
        play.state.until - m_now < PositionHold::kTooFar) {
        return;
    }
    const PositionHold::Step step =
        m_hold->step(play.positionAt(m_now), slot->deck().position(), m_steady);
    if (step.speed) {
        slot->setSpeed(*step.speed);
        if (*step.speed != 1.0) {
            note(ScreenEvent::Kind::CorrectedBySpeed, play, step.ahead);
        }
    }
    if (step.seek) {
        slot->seek(*step.seek);
        note(ScreenEvent::Kind::Sought, play, step.ahead);
    }
}

void Conductor::settleCurrent()
{
    m_tally.setOnTimeline(true, *m_current.backAt);
    note(m_current.recover(m_steady));
}

void Conductor::fail(PlayAttempt& attempt, const DeckFault& fault)
{
    DeckSlot* slot = attempt.slot;
    const bool isNew = attempt.fail(fault, m_steady);
    if (slot != m_onStage) {
        slot->clear();
    }
    if (isNew) {
        ScreenEvent event;
        event.kind = ScreenEvent::Kind::Fault;
        event.play = attempt.play;
        event.fault = fault;
        note(event);
    }
}

void Conductor::loseCurrent(const DeckFault& fault)
{
    DeckSlot* slot = m_current.slot;
    fail(m_current, fault);
    if (!m_isShown) {
        return;
    }
    note(ScreenEvent::Kind::Left, m_current.play);
    m_isShown = false;
    m_shownSince = kNever;
    m_isSwitch = false;
    m_dueAt = m_now;
    if (m_picture.kind == StagePicture::Kind::Deck && slot->deck().hasPicture()) {
        slot->pause();
        noteStandIn(StandIn::LastPicture);
    } else {
        standBy();
    }
}

void Conductor::load(PlayAttempt& attempt, DeckSlot& slot, Instant startsAt)
{
    attempt.retryAt.reset();
    attempt.slot = &slot;
    attempt.triedAt = m_steady;
    slot.load(attempt.play, startsAt, m_steady, attempt.failures);
}

bool Conductor::isLookDue() const
{
    return isWatched() && m_steady >= m_lookAt;
}

bool Conductor::isWatched() const
{
    return m_isShown && m_current.slot && m_current.slot->isStarted() &&
           m_current.play.kind != ProgramKind::Image;
}

// What is out.

void Conductor::show()
{
    DeckSlot* former = std::exchange(m_onStage, m_current.slot);
    put(pictureOf(*m_onStage));
    if (m_current.play.isPlaying() && m_now >= m_onStage->startsAt()) {
        start();
    }
    if (former && former != m_onStage) {
        former->clear();
    }
    m_isShown = true;
    m_current.triedAt.reset();
    m_graceUntil.reset();
    m_isSwitch = m_isSwitch && m_current.failures == 0;
    if (m_current.failures > 0) {
        m_current.backAt = m_steady;
    }
    noteShown();
}

void Conductor::start()
{
    m_hold.emplace(m_current.slot->deck().pictureLength());
    m_lookAt = m_steady;
    m_current.slot->start(m_steady);
}

void Conductor::showBlack()
{
    put({StagePicture::Kind::Black, nullptr, {}});
    if (DeckSlot* former = std::exchange(m_onStage, nullptr)) {
        former->clear();
    }
    m_isShown = true;
    noteShown();
}

void Conductor::standBy()
{
    put({StagePicture::Kind::StandBy, nullptr, {}});
    if (DeckSlot* former = std::exchange(m_onStage, nullptr)) {
        former->clear();
    }
    noteStandIn(StandIn::StandByPicture);
}

void Conductor::put(const StagePicture& picture)
{
    if (picture != m_picture) {
        m_picture = picture;
        m_isChanged = true;
        m_stage.show(picture);
    }
}

void Conductor::noteShown()
{
    // The time that it took to change the picture counts.
    m_shownSince = std::max(m_now, Clock::current().msecsSinceEpoch());
    ScreenEvent event;
    event.kind = ScreenEvent::Kind::Shown;
    event.play = m_current.play;
    event.isSwitch = m_isSwitch;
    event.amount = m_shownSince - m_dueAt;
    event.isAgain = m_current.backAt.has_value();
    note(event);
}

void Conductor::noteDue()
{
    ScreenEvent event;
    event.kind = ScreenEvent::Kind::Due;
    event.play = m_current.play;
    event.isSwitch = m_isSwitch;
    note(event);
}

void Conductor::noteStandIn(StandIn standIn)
{
    ScreenEvent event;
    event.kind = ScreenEvent::Kind::StoodIn;
    event.play = m_current.play;
    event.fault = m_current.fault;
    event.standIn = standIn;
    note(event);
}

// What is next.

void Conductor::sleep()
{
    WakeUp wake(m_now, m_steady, m_over);
    if (m_over != kNever) {
        wake.at(m_over - kAhead);
    }
    wake.atSteady(m_graceUntil);
    wake.atSteady(m_current.retryAt);
    if (m_current.backAt) {
        wake.atSteady(*m_current.backAt + kWell);
    }
    if (const DeckSlot* slot = m_current.slot) {
        if (slot->isLoading()) {
            wake.atSteady(slot->deadline());
        } else if (!m_isShown || !slot->isStarted()) {
            wake.at(slot->startsAt());
        }
        if (isWatched()) {
            wake.atSteady(m_lookAt);
        }
    }
    if (m_next) {
        if (!m_next->slot) {
            wake.at(m_over - kAheadAtLeast);
        }
        wake.atSteady(m_next->retryAt);
        if (m_next->slot && m_next->slot->isLoading()) {
            wake.atSteady(m_next->slot->deadline());
        }
    }
    m_alarm->set(wake.earliest());
}

void Conductor::note(ScreenEvent::Kind kind, const ScreenPlay& play, qint64 amount)
{
    ScreenEvent event;
    event.kind = kind;
    event.play = play;
    event.amount = amount;
    note(event);
}

void Conductor::note(ScreenEvent event)
{
    event.moment = Clock::current().msecsSinceEpoch();
    event.onScreenSince = m_shownSince;
    m_isChanged = true;
    m_tally.note(event);
    m_log.note(event);
}

} // namespace trel::screen
