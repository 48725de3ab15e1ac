// Names everything that the installed headers declare for others, so that the linker has to find
// it.

#include <ProgramSheduleWidgetTranslateManager.h>
#include <clock/Clock.h>
#include <scheduleControlUI.h>
#include <service/DateText.h>
#include <service/FixedText.h>
#include <service/InvalidEntries.h>
#include <service/NewPlan.h>
#include <service/PlanCollisions.h>
#include <service/PlanConflicts.h>
#include <service/PlanFaults.h>
#include <service/PlanInsertion.h>
#include <service/PlanTiming.h>
#include <service/ProgramOffers.h>
#include <service/ProgramText.h>
#include <service/ProgramTotal.h>
#include <service/ProgramUses.h>
#include <service/ScheduleDifferences.h>
#include <service/TaskPeriods.h>
#include <service/TaskPlans.h>
#include <service/TimeText.h>
#include <service/Version.h>
#include <service/WeekDays.h>
#include <service/scheduleManage.h>
#include <trelprogramschedule/ScheduleHost.h>
#include <trelprogramschedule/ScheduleImporter.h>
#include <trelprogramschedule/catalogue/ProgramContent.h>
#include <trelprogramschedule/catalogue/ProgramImporter.h>
#include <trelprogramschedule/catalogue/ShownAddress.h>
#include <trelprogramschedule/catalogue/StoredContents.h>
#include <trelprogramschedule/dispatch/ClockChanges.h>
#include <trelprogramschedule/dispatch/ProgramVerdict.h>
#include <trelprogramschedule/dispatch/ScreenDispatch.h>
#include <trelprogramschedule/dispatch/ScreenTimeline.h>
#include <trelprogramschedule/faults/FaultWords.h>
#include <trelprogramschedule/history/ScheduleVersion.h>
#include <trelprogramschedule/json/NamedSchedule.h>
#include <trelprogramschedule/json/ProgramMatch.h>
#include <trelprogramschedule/json/ScheduleJson.h>
#include <trelprogramschedule/media/MediaReading.h>
#include <trelprogramschedule/media/PictureRequest.h>
#include <trelprogramschedule/merge/ScheduleMerge.h>
#include <trelwidgets/ComboBox.h>
#include <trelwidgets/Dialog.h>
#include <trelwidgets/TipDialog.h>
#include <tstranslate/LanguageFile.h>
#include <tstranslate/Translator.h>

#include <QFile>

#include <cstddef>
#include <iostream>
#include <string>

using namespace trel::mediadispatch;

namespace {

/// Of a class the meta-object, which is there only when its library exports the class.
template <typename Class>
bool hasMetaObject()
{
    return Class::staticMetaObject.className() != nullptr;
}

template <typename... Functions>
bool areThere(Functions... functions)
{
    return (... && (functions != nullptr));
}

} // namespace

int main()
{
    const bool areClassesThere =
        hasMetaObject<scheduleControlUI>() && hasMetaObject<scheduleManage>() &&
        hasMetaObject<ScheduleHost>() && hasMetaObject<ScreenDispatch>() &&
        hasMetaObject<trel::widgets::ComboBox>() && hasMetaObject<trel::widgets::Dialog>() &&
        hasMetaObject<trel::widgets::TipDialog>() &&
        areThere(&ClockChangeSearch::setTask, &ProgramSheduleWidgetTranslateManager::instance,
                 &ProgramVerdict::plays, &Clock::current, &ClockAlarm::set, &ScheduleMerge::merged,
                 &ScreenTimeline::at, &tessark::trans::Translator::load);
    const bool areFunctionsThere = areThere(
        &addDuration, &allTaskOverlaps, &buryInvalidEntry, &clockChanges, &clockChangesOfTask,
        &claimsCollide, &collidingClaims, &collisionsOf, &firstCollisions, &completeNewPlan,
        &containsNoDuration, &countsRuns, &dateFromText, &dateToText, &digitsAt, &englishClause,
        &englishSentence, static_cast<QString (*)(const StoreResult&)>(&englishText),
        static_cast<QString (*)(const ScheduleFromJson&)>(&englishText), &exceedsDay, &faultName,
        &faultOfVersionTexts, &firstPlanWithId, &firstTaskOverlap, &followingCopy, &hasForm,
        &importSchedule, &holdsAsInvalid, &lostPrograms, &markLostEntries, &insertedPlan,
        &insertionScope, &isInvalidReadBack, &tessark::trans::isLanguageFile, &joinWeeks,
        &lastPlanWithId, &listFromRow, &loadedVersion, &matchPrograms, &mediaReading,
        &mediaSuffixes, &namedPrograms, &namedScheduleFromJson, &namedScheduleToJson, &namesAnyDay,
        &nextClockChanges, &nextPlanId, &offeredPrograms, &parseWeeks, &planAt, &planClaims,
        &planFault, &plannedEnd, &planTemplate, &programListText, &programText, &entryText,
        &differencesOfNote, &programVerdict, &programsInEntries, &programsInUse,
        &readStoredContents, &renumberEntries, &tessark::trans::readLanguageFile, &readFilmPicture,
        &readPicture, &readScheduleJson, &removeFirstPlanWithId, &runsLessThanOnce,
        &setMediaReading, &scanMedia, &scheduleDifferences, &scheduleFromJson, &scheduleToJson,
        &shownAddress, &storeProblemName, &storedFileContents, &timeFromText, &timeToText,
        &totalText, &tessark::trans::translate, &usesOf, &weeksOverlap, &writeNamedScheduleFile,
        &writeScheduleFile);
    static_assert(TREL_VERSION >= TREL_VERSION_CHECK(0, 2, 0));
    std::cout << "Version: " << loadedVersion()
              << (std::string(loadedVersion()) == TREL_VERSION_STRING ? ", as compiled\n" : "\n");
    std::cout << "Languages: "
              << ProgramSheduleWidgetTranslateManager::languageFolder().toStdString() << '\n';
    std::cout << "Images:";
    for (const char* name : {"refresh.gif", "checked.png", "unchecked@2x.png", "add.svg"}) {
        std::cout << ' ' << (QFile::exists(QLatin1String(":/qss/img/") + name) ? name : "none");
    }
    std::cout << '\n';
    std::cout << (areClassesThere && areFunctionsThere ? "All there\n" : "Something is missing\n");
}
