#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

namespace trel::mediadispatch {
class ScheduleMerge;
}

namespace trel::desktop::merge {

/// Texts about what comes of a schedule that was edited at two desks, in the language in use. Those
/// about a merge are about one in which nothing is chosen yet.
class MergeWords
{
    Q_DECLARE_TR_FUNCTIONS(MergeWords)

public:
    /// Whether it can be saved as it is, and if not, what stands in the way.
    static QString outlook(const trel::mediadispatch::ScheduleMerge& merge);
    /// On the button that merges.
    static QString answer(const trel::mediadispatch::ScheduleMerge& merge);
    /// The tasks that get another number, a line each; they may be many.
    static QStringList renumbered(const trel::mediadispatch::ScheduleMerge& merge);

    /// On the button that merges what is going to be saved.
    static QString mergeAndSave();
    /// On the button that merges what the operator has to put right before it can be saved.
    static QString mergeAndGoOn();
    /// Why it cannot be saved.
    static QString overlap(int taskId, int otherId);
};

} // namespace trel::desktop::merge
