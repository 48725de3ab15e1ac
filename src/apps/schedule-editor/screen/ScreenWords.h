#pragma once

#include <QCoreApplication>
#include <QString>

#include <vector>

namespace trel::mediadispatch {
struct PlayPlan;
struct ScreenState;
struct struProgInfo;
enum class ScreenPicture;
} // namespace trel::mediadispatch

namespace trel::desktop {

class ScreenFollower;
struct ScreenScene;

/// What the host says about a screen, in the language in use.
class ScreenWords
{
    Q_DECLARE_TR_FUNCTIONS(ScreenWords)

public:
    /// "Playing", "Black" or "Frozen".
    static QString picture(trel::mediadispatch::ScreenPicture picture);
    /// The program's name, or what is there instead of one.
    static QString program(const ScreenScene& scene);
    static QString program(trel::mediadispatch::ScreenPicture picture, const QString& name);
    /// What is to be seen: the picture with its program, or with why it is black.
    static QString shown(const ScreenScene& scene);
    /// "Entry 2 of 5, play 1 of 3"; empty where no entry is on screen.
    static QString entry(const ScreenScene& scene);
    /// "Task 1, plan 2"; empty where no plan has or had the screen.
    static QString plan(const ScreenScene& scene);
    /// The rule that makes the screen show what it does, as a sentence. The plan is the one that
    /// has the screen; null where none has.
    static QString reason(const trel::mediadispatch::ScreenState& state,
                          const trel::mediadispatch::PlayPlan* plan);
    /// The names of a list in their order, with the number of plays where it is not one.
    static QString list(const std::vector<trel::mediadispatch::struProgInfo>& programs);
    /// The list that was cut in and the one in whose place it stands, in rows.
    static QString insertion(const std::vector<trel::mediadispatch::struProgInfo>& inserted,
                             const std::vector<trel::mediadispatch::struProgInfo>& original);

    /// "0:09", "12:34", "1:02:03". Of what is gone the whole seconds count, of what is to come the
    /// second that has begun, so that 0:00 is left only at the end.
    static QString gone(qint64 msecs);
    static QString toCome(qint64 msecs);
};

} // namespace trel::desktop
