#pragma once

#include "trelprogramschedule/draft/LeftDrafts.h"

#include <QCoreApplication>
#include <QLocale>
#include <QString>

namespace trel::desktop {

/// What is told of edits that were not saved.
class DraftWords
{
    Q_DECLARE_TR_FUNCTIONS(DraftWords)

public:
    /// How old they are at a moment, in milliseconds since 1970, UTC, and which tasks they touch,
    /// given what is saved, and what is wrong with them.
    static QString offer(const trel::mediadispatch::LeftDraft& left,
                         const std::map<int, trel::mediadispatch::PlayTask>& saved, qint64 now);
    /// Why nothing of them can be offered.
    static QString unreadable(const trel::mediadispatch::LeftDraft& left);
    /// That edits are not kept at the moment, and why.
    static QString notKept(const trel::mediadispatch::Fault& fault);

    /// That they could not be kept when they were to be.
    static QString couldNotBeKept();

    static QString takeOver() { return tr("Take over"); }
    static QString putIntoFile() { return tr("Put into a file"); }
    static QString drop() { return tr("Drop"); }
    static QString deleteFile() { return tr("Delete the file"); }
    static QString decideLater() { return tr("Decide later"); }
    /// What is told of the list of differences, and of the two states.
    static QString whatDiffers() { return tr("What differs from what is saved:"); }
    static QString asSaved() { return tr("As it is saved"); }
    static QString withChanges() { return tr("With these changes"); }
};

} // namespace trel::desktop
