#include "effect/EffectWords.h"

#include "ProblemWords.h"
#include "common/ListText.h"
#include "effect/CutIn.h"

#include <QStringList>

using namespace trel::mediadispatch;

namespace trel::desktop {

QString EffectWords::since(const QString& date, const QString& time, qint64 save)
{
    return tr("In effect since %1 at %2 (save %3)").arg(date, time, QString::number(save));
}

QString EffectWords::startedBy(const QString& program)
{
    return tr("Started by %1.").arg(program);
}

QString EffectWords::differing(const std::set<int>& taskIds, std::size_t shown)
{
    QStringList numbers;
    for (const int id : taskIds) {
        if (static_cast<std::size_t>(numbers.size()) == shown) {
            numbers.append(QStringLiteral("…"));
            break;
        }
        numbers.append(QString::number(id));
    }
    return tr("What is saved differs in %n tasks: %1", nullptr, static_cast<int>(taskIds.size()))
        .arg(hosts::ListText::joined(numbers));
}

QString EffectWords::shown(const ScreenState& state, const Name& name)
{
    switch (state.picture) {
    case ScreenPicture::Playing:
        return tr("“%1”", "a program").arg(name(state.progIndex));
    case ScreenPicture::Frozen:
        return tr("the last frame of “%1”").arg(name(state.progIndex));
    case ScreenPicture::Black:
        break;
    }
    return tr("a black screen");
}

QString EffectWords::cutIn(const CutIn& cutIn, const Name& name, const Time& time)
{
    const bool isWaiting = cutIn.kind == CutIn::Kind::Waiting;
    const bool isCutOff = cutIn.kind == CutIn::Kind::CutOff;
    const QString begins = time(cutIn.begins);
    const QString before = shown(cutIn.before, name);
    const QString first = shown(cutIn.first, name);
    QString text;
    if (!cutIn.after) {
        text = isWaiting  ? tr("%1 comes after %2, at %3.").arg(first, before, begins)
               : isCutOff ? tr("%1 was cut off at %2.").arg(before, begins)
                          : tr("%1 was cut in at %2.").arg(first, begins);
    } else {
        const QString after = shown(*cutIn.after, name);
        const QString ends = time(cutIn.ends);
        text =
            isWaiting ? tr("%1 comes after %2, at %3; %4 comes back at %5.")
                            .arg(first, before, begins, after, ends)
            : isCutOff
                ? tr("%1 was cut off at %2; %3 comes at %4.").arg(before, begins, after, ends)
                : tr("%1 was cut in at %2; %3 comes back at %4.").arg(first, begins, after, ends);
    }
    // What stands in the middle of a sentence otherwise.
    return text.left(1).toUpper() + text.mid(1);
}

QString EffectWords::timeOn(const QString& time, const QString& date)
{
    return tr("%1 on %2", "time and date").arg(time, date);
}

QString EffectWords::refused(const StoreResult& reason)
{
    return tr("What is in effect could not be changed. %1").arg(problems::sentence(reason));
}

} // namespace trel::desktop
