#pragma once

#include "ScreenFixture.h"

#include <map>
#include <optional>

/// Holds what is out on a screen against what its timeline plays.
///
/// Where all is well that is the very picture. For a while after something went wrong it may be the
/// stand-by picture or a still picture of the same play; and for a tenth of a second after a change
/// that could not be foreseen, what was out before.
class ScreenWatch
{
public:
    explicit ScreenWatch(ScreenFixture& screen)
        : m_screen(screen)
    {}

    /// Lets time go by, and looks. Returns what is wrong; empty where nothing is.
    QString step(qint64 milliseconds);

    /// Right before a change that could not be foreseen.
    void expectChange();
    /// Something went wrong with what is out.
    void expectFault();
    /// What is out is at another place in its program, in milliseconds.
    void expectDrift();
    /// The media cannot be loaded until it is mended.
    void expectBroken(const QString& media, bool isBroken);
    /// The decks do not count what they loaded by the clock as it is now.
    void expectLeap();

    int looks() const { return m_looks; }
    int exact() const { return m_exact; }
    int standBys() const { return m_standBys; }
    int formers() const { return m_formers; }
    int stills() const { return m_stills; }

private:
    struct Expected
    {
        trel::mediadispatch::ScreenState state;
        trel::mediadispatch::ProgramIten program;
        QString media() const { return QString::fromStdString(program.mediaPath); }
        bool hasPosition() const;
    };

    Expected expected() const;
    QString look();
    bool isExact(const Expected& expected) const;
    bool isOfThePlay(const Expected& expected) const;
    QString problem(const Expected& expected, const char* words) const;

    ScreenFixture& m_screen;
    qint64 m_steady = 0;
    qint64 m_troubledUntil = 4000; ///< By then it has begun.
    qint64 m_driftedUntil = 0;
    qint64 m_graceUntil = -1;
    trel::mediadispatch::Instant m_leaptAt = 0;
    std::optional<trel::screen::StagePicture> m_former;
    std::map<QString, bool> m_broken;
    int m_looks = 0;
    int m_exact = 0;
    int m_standBys = 0;
    int m_formers = 0;
    int m_stills = 0;
};
