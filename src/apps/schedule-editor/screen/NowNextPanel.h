#pragma once

#include <QWidget>

class QLabel;

namespace trel::desktop {

namespace look {
struct ThemeColours;
}

class Badge;
class ComingPrograms;
class CutInLine;
class EffectLines;
class ElidedText;
class PlayBar;
class ProgramName;
class ScreenFollower;

/// What is on screen, why, for how long, what comes next, and since when the schedule has been in
/// effect. Remaining times count down.
class NowNextPanel : public QWidget
{
    Q_OBJECT

public:
    /// The follower outlives the panel.
    NowNextPanel(ScreenFollower& follower, QWidget* parent);

    /// Those of the theme, for the programs.
    void setColours(const look::ThemeColours& colours);

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void build();
    void retranslate();
    void showScreen();
    void showTimes();
    void showNext();
    void showNextTime();
    /// What was cut in, and in the place of what.
    QString insertionText(const QObject* badge) const;

    ScreenFollower& m_follower;
    QLabel* m_nowTitle;
    Badge* m_picture;
    Badge* m_inserted;
    ProgramName* m_program;
    PlayBar* m_bar;
    QLabel* m_gone;
    QLabel* m_toCome;
    ElidedText* m_entry;
    ElidedText* m_plan;
    ElidedText* m_reason;
    QWidget* m_nextPart;
    QLabel* m_nextTitle;
    Badge* m_nextInserted;
    ProgramName* m_nextProgram;
    ElidedText* m_nextPlan;
    ElidedText* m_nextTime;
    ComingPrograms* m_coming;
    CutInLine* m_cutIn;
    EffectLines* m_effect;
};

} // namespace trel::desktop
