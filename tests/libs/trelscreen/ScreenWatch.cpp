#include "ScreenWatch.h"

#include <algorithm>
#include <cstdlib>

using namespace trel::mediadispatch;
using namespace trel::screen;

namespace {

constexpr qint64 kGrace = 100;
/// How long anything may take to be as it should again: a pause between two tries, a stall that has
/// to be noticed, and a load.
constexpr qint64 kTrouble = 3500;
/// A breath of speed makes up for half a second in this time.
constexpr qint64 kDrift = 26'000;
/// What there is no time to prepare for.
constexpr qint64 kShort = 1000;
constexpr qint64 kAhead = 2000;
/// A deck and the timeline each round to a millisecond.
constexpr qint64 kRounding = 2;

} // namespace

bool ScreenWatch::Expected::hasPosition() const
{
    return state.picture != ScreenPicture::Black && program.kind != ProgramKind::Image &&
           program.kind != ProgramKind::Live;
}

QString ScreenWatch::step(qint64 milliseconds)
{
    m_screen.advance(milliseconds);
    m_steady += milliseconds;
    return look();
}

void ScreenWatch::expectChange()
{
    m_troubledUntil = std::max(m_troubledUntil, m_steady + kTrouble);
    // Changes that follow each other leave nothing on screen that was out before the first.
    if (m_steady > m_graceUntil || isExact(expected())) {
        m_former = m_screen.stage.picture();
    }
    m_graceUntil = m_steady + kGrace;
}

void ScreenWatch::expectFault()
{
    m_troubledUntil = std::max(m_troubledUntil, m_steady + kTrouble);
    // Sound and speed of what takes its place begin anywhere.
    expectDrift();
}

void ScreenWatch::expectDrift()
{
    m_driftedUntil = m_steady + kDrift;
}

void ScreenWatch::expectBroken(const QString& media, bool isBroken)
{
    m_broken[media] = isBroken;
    expectFault();
}

void ScreenWatch::expectLeap()
{
    m_leaptAt = m_screen.clock.msecsSinceEpoch();
    expectDrift();
}

ScreenWatch::Expected ScreenWatch::expected() const
{
    Expected result;
    const Instant now = m_screen.clock.msecsSinceEpoch();
    m_screen.timeline->visitPlays(now, now + 1, m_screen.insertions,
                                  [&result](const ScreenState& state) {
                                      result.state = state;
                                      return false;
                                  });
    const auto program = m_screen.catalogue.find(result.state.progIndex);
    if (program != m_screen.catalogue.end()) {
        result.program = program->second;
    }
    return result;
}

QString ScreenWatch::look()
{
    const Expected expected = this->expected();
    const ScreenState& state = expected.state;
    const qint64 length =
        state.since == kEver || state.until == kNever ? kShort : state.until - state.since;
    ++m_looks;
    if (m_broken[expected.media()] || length < kShort) {
        expectFault();
    }
    if (length < kFrame) {
        return {};
    }
    if (isExact(expected)) {
        ++m_exact;
        return {};
    }
    const StagePicture& picture = m_screen.stage.picture();
    if (m_steady <= m_graceUntil && m_former == picture) {
        ++m_formers;
        return {};
    }
    if (state.picture == ScreenPicture::Black) {
        return problem(expected, "not black");
    }
    if (m_steady > m_troubledUntil) {
        return problem(expected, "not right, and without a reason");
    }
    switch (picture.kind) {
    case StagePicture::Kind::Black:
        return problem(expected, "black");
    case StagePicture::Kind::StandBy:
        if (!picture.caption.isEmpty() && picture.caption != expected.media()) {
            return problem(expected, "another name");
        }
        ++m_standBys;
        return {};
    case StagePicture::Kind::Deck:
        break;
    }
    if (!isOfThePlay(expected)) {
        return problem(expected, "another picture");
    }
    ++m_stills;
    return {};
}

bool ScreenWatch::isExact(const Expected& expected) const
{
    const StagePicture& picture = m_screen.stage.picture();
    if (expected.state.picture == ScreenPicture::Black) {
        return picture.kind == StagePicture::Kind::Black;
    }
    if (expected.program.kind == ProgramKind::Audio) {
        return picture.kind == StagePicture::Kind::StandBy && picture.caption == expected.media();
    }
    if (picture.kind != StagePicture::Kind::Deck || !isOfThePlay(expected)) {
        return false;
    }
    const RecordedDeck& deck = *m_screen.stage.deck();
    const bool isMoving = expected.state.isPlaying();
    if (deck.isPlaying() != isMoving) {
        return false;
    }
    if (!expected.hasPosition()) {
        return true;
    }
    const qint64 allowed =
        m_steady <= m_driftedUntil ? PositionHold::kTooFar : PositionHold::kTolerance;
    return deck.position() &&
           std::abs(*deck.position() - expected.state.position) <= allowed + kRounding;
}

bool ScreenWatch::isOfThePlay(const Expected& expected) const
{
    const RecordedDeck& deck = *m_screen.stage.deck();
    if (deck.loaded().media != expected.media()) {
        return false;
    }
    if (!expected.state.isPlaying() || !expected.hasPosition() || deck.loadedAt() <= m_leaptAt) {
        return true;
    }
    // One of an earlier play of the program was loaded earlier.
    const Instant begin = m_screen.clock.msecsSinceEpoch() - expected.state.position;
    return deck.loadedAt() >= begin - kAhead - kFrame;
}

QString ScreenWatch::problem(const Expected& expected, const char* words) const
{
    const ScreenState& state = expected.state;
    return QStringLiteral(
               "%1 %2: %3 is out, not %4 of %5 at %6 since %7, %8 ms after the last trouble")
        .arg(m_screen.clock.now().toString(QStringLiteral("hh:mm:ss.zzz")), QLatin1String(words),
             m_screen.picture(),
             QLatin1String(state.picture == ScreenPicture::Black    ? "black"
                           : state.picture == ScreenPicture::Frozen ? "frozen"
                                                                    : "a play"),
             expected.media())
        .arg(state.position)
        .arg(m_screen.clock.msecsSinceEpoch() - state.since)
        .arg(m_steady - m_troubledUntil + kTrouble);
}
