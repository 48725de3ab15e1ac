#pragma once

#include <QCoreApplication>
#include <QString>

#include <cstddef>
#include <functional>
#include <set>

namespace trel::mediadispatch {
struct ScreenState;
struct StoreResult;
} // namespace trel::mediadispatch

namespace trel::desktop {

struct CutIn;

/// What the host says about the schedule in effect, in the language in use.
class EffectWords
{
    Q_DECLARE_TR_FUNCTIONS(EffectWords)

public:
    /// "In effect since 11/22/26 at 08:00:00 (save 12)", of the date and time as they are shown.
    static QString since(const QString& date, const QString& time, qint64 save);
    /// "Started by schedule-editor@studio."
    static QString startedBy(const QString& program);
    /// "What is saved differs in 2 tasks: 3, 7", with as many numbers as are to be shown.
    static QString differing(const std::set<int>& taskIds, std::size_t shown);

    /// What words are needed for a text on a cut in: the name of a program by its number, and an
    /// instant as it is shown.
    using Name = std::function<QString(int progIndex)>;
    using Time = std::function<QString(qint64 moment)>;
    /// "“Opening” was cut off at 08:00:12; “News” comes at 08:00:30."
    static QString cutIn(const CutIn& cutIn, const Name& name, const Time& time);
    /// A moment of another day than today.
    static QString timeOn(const QString& time, const QString& date);

    /// Why what is in effect is what it was.
    static QString refused(const trel::mediadispatch::StoreResult& reason);

private:
    static QString shown(const trel::mediadispatch::ScreenState& state, const Name& name);
};

} // namespace trel::desktop
