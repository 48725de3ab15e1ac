#include "draft/DraftWords.h"

#include "DateWords.h"
#include "ProblemWords.h"
#include "common/ListText.h"

#include <QDateTime>
#include <QFileInfo>
#include <QStringList>

using namespace trel::mediadispatch;

namespace trel::desktop {

namespace {

/// A prompt does not scroll.
constexpr int kMostNumbers = 12;

QString listed(const QStringList& numbers)
{
    QStringList told = numbers.mid(0, kMostNumbers);
    if (told.size() < numbers.size()) {
        told.append(QStringLiteral("…"));
    }
    return hosts::ListText::joined(told);
}

QString age(qint64 msecs)
{
    const qint64 minutes = msecs / 60000;
    if (minutes < 1) {
        return DraftWords::tr("less than a minute ago");
    }
    if (minutes < 60) {
        return DraftWords::tr("%n minutes ago", nullptr, static_cast<int>(minutes));
    }
    const qint64 hours = minutes / 60;
    // Of yesterday's, the hours still tell more than the days do.
    if (hours < 48) {
        return DraftWords::tr("%n hours ago", nullptr, static_cast<int>(hours));
    }
    return DraftWords::tr("%n days ago", nullptr, static_cast<int>(hours / 24));
}

} // namespace

QString DraftWords::offer(const LeftDraft& left, const std::map<int, PlayTask>& saved, qint64 now)
{
    QStringList added;
    QStringList changed;
    QStringList removed;
    for (const auto& [id, task] : left.draft.tasks) {
        QStringList& ids = !task ? removed : saved.count(id) > 0 ? changed : added;
        ids.append(QString::number(id));
    }
    const QString edited = dateAndTimeText(QDateTime::fromMSecsSinceEpoch(left.draft.edited));
    // A clock that was set back since would make it come from days to come.
    QStringList lines = {
        left.draft.edited > now
            ? tr("There are changes that were not saved. The last one was made on %1.").arg(edited)
            : tr("There are changes that were not saved. The last one was made %1, on %2.")
                  .arg(age(now - left.draft.edited), edited)};
    if (!added.isEmpty()) {
        lines.append(tr("New tasks: %1").arg(listed(added)));
    }
    if (!changed.isEmpty()) {
        lines.append(tr("Changed tasks: %1").arg(listed(changed)));
    }
    if (!removed.isEmpty()) {
        lines.append(tr("Deleted tasks: %1").arg(listed(removed)));
    }
    if (left.draft.state == DraftState::HalfWritten) {
        lines.append(tr("The very last change may be missing."));
    } else if (left.draft.state == DraftState::Damaged) {
        lines.append(tr("A part of them is damaged and cannot be read."));
    }
    if (left.isOfOtherStore) {
        lines.append(
            tr("They were made in another database, which stood in the place of this one."));
    } else if (left.isOfOtherSave) {
        lines.append(tr("The schedule was saved since then."));
    }
    return lines.join(QLatin1Char('\n'));
}

QString DraftWords::unreadable(const LeftDraft& left)
{
    const QString file = QFileInfo(left.path).fileName();
    if (left.fault) {
        return problems::unreadable(left.path, left.fault);
    }
    if (left.draft.state == DraftState::TooNew) {
        return tr("The file %1 keeps changes that were not saved. They were made with a newer "
                  "version of this program, which has to be used to take them over.")
            .arg(file);
    }
    return tr("The file %1 should keep changes that were not saved, but nothing in it can be read.")
        .arg(file);
}

QString DraftWords::notKept(const Fault& fault)
{
    return tr("Changes that are not saved cannot be kept beside the database at the moment: if the "
              "program ends now, they are lost. %1")
        .arg(problems::sentence(fault));
}

QString DraftWords::couldNotBeKept()
{
    return tr("The changes could not be kept beside the database. They are still in the editor.");
}

} // namespace trel::desktop
