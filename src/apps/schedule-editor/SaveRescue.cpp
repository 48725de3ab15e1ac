#include "SaveRescue.h"

#include "DateWords.h"
#include "HostPrompts.h"
#include "KeptEdits.h"
#include "ProblemWords.h"
#include "changes/ChangesDialog.h"
#include "draft/DraftKeeper.h"
#include "exchange/ScheduleFile.h"
#include "merge/ConflictsDialog.h"
#include "merge/MergeWords.h"
#include "place/PlaceWords.h"
#include "service/TaskPeriods.h"
#include "service/scheduleManage.h"
#include "trelprogramschedule/faults/FaultWords.h"
#include "versions/DifferenceWords.h"

#include <QApplication>
#include <QDateTime>
#include <QEvent>
#include <QEventLoop>
#include <QMetaObject>
#include <QWidget>

#include <array>
#include <utility>
#include <vector>

using namespace trel::mediadispatch;

namespace trel::desktop {

namespace {

QString goOnEditing()
{
    return SaveRescue::tr("Go on editing");
}

} // namespace

SaveRescue::SaveRescue(ScheduleHost& host, DraftKeeper& drafts, QWidget* window)
    : QObject(window)
    , m_host(host)
    , m_drafts(drafts)
    , m_window(window)
{
    connect(&m_host, &ScheduleHost::saveFailed, this, &SaveRescue::rescue, Qt::DirectConnection);
    connect(qApp, &QGuiApplication::commitDataRequest, this, &SaveRescue::leave,
            Qt::DirectConnection);
    m_window->installEventFilter(this);
}

SaveRescue::Answer SaveRescue::ask(const StoreResult& reason)
{
    ScheduleVersion other;
    std::map<int, PlayTask> tasks;
    if (reason.problem != StoreProblem::MovedOn || !m_host.readNewestSave(other, tasks)) {
        return askPlainly(reason);
    }
    if (other.number != m_other.number) {
        m_choices.clear();
    }
    m_other = other;
    m_merge.emplace(m_drafts.saved(), std::move(tasks), m_host.workingSet());
    return askAboutOther();
}

SaveRescue::Answer SaveRescue::askPlainly(const StoreResult& reason) const
{
    const int button = prompts::confirm(
        tr("The schedule was not saved. %1\n\nWhat do you want to do with your changes?")
            .arg(problems::sentence(reason)),
        tr("Try again"), tr("Write to a file"), goOnEditing());
    switch (button) {
    case 1:
        return Answer::TryAgain;
    case 2:
        return Answer::WriteFile;
    default:
        return Answer::GoOn;
    }
}

SaveRescue::Answer SaveRescue::askAboutOther() const
{
    const QString store = place::placeName(m_host.path());
    const QString saved = dateAndTimeText(QDateTime::fromMSecsSinceEpoch(m_other.saved));
    changes::ChangesQuestion question;
    question.text =
        (m_other.by.isEmpty()
             ? tr("While you were editing, %1 was saved by another program. Your changes are not "
                  "saved.")
                   .arg(store)
             : tr("While you were editing, %1 was saved by %2, on %3. Your changes are not saved.",
                  "the database, a program, and the time")
                   .arg(store, m_other.by, saved)) +
        QStringLiteral("\n\n") + merge::MergeWords::outlook(*m_merge) + QStringLiteral("\n\n") +
        tr("If you keep yours, what was saved there stays among the versions. If you take theirs, "
           "yours can be brought back until the next save.");
    question.listTitle = tr("What was changed there:");
    question.lines = versions::DifferenceWords::lines(m_merge->base(), m_merge->theirs(),
                                                      *m_host.catalogue(), changes::kMostLines);
    if (question.lines.isEmpty()) {
        question.lines.append(tr("Nothing that you would see."));
    }
    question.lines += merge::MergeWords::renumbered(*m_merge).mid(0, changes::kMostLines);
    question.former = {tr("As it was saved there"), m_merge->theirs()};
    question.later = {tr("With your changes"), m_merge->mine()};
    question.answers = QStringList{goOnEditing(), merge::MergeWords::answer(*m_merge),
                                   tr("Keep mine"), tr("Take theirs"), tr("Write mine to a file")};
    constexpr std::array answers = {Answer::GoOn,     Answer::GoOn,      Answer::Merge,
                                    Answer::SaveOver, Answer::TakeOther, Answer::WriteFile};
    return answers.at(static_cast<std::size_t>(m_drafts.ask(question)));
}

std::optional<StoreResult> SaveRescue::merge(const StoreResult& movedOn)
{
    if (!m_merge->conflicts().empty()) {
        merge::ConflictsDialog dialog(*m_merge, *m_host.catalogue(), m_choices, m_window);
        const bool isChosen = dialog.ask();
        m_choices = dialog.choices();
        if (!isChosen) {
            return movedOn;
        }
    }
    StoreResult result = m_drafts.mergeWith(m_other.number, m_merge->merged(m_choices));
    if (!result) {
        return result;
    }
    return firstTaskOverlap(m_host.workingSet()) ? std::nullopt : std::optional(m_host.trySave());
}

StoreResult SaveRescue::saveOver()
{
    // Nobody saves over what nobody was told of: where a third program has saved, it is refused.
    StoreResult result = m_drafts.mergeWith(m_other.number, m_host.workingSet());
    return result ? m_host.trySave() : result;
}

StoreResult SaveRescue::takeOther()
{
    StoreResult result = m_host.reload();
    if (result) {
        // A third program may have saved since it was asked. What the others have changed is no
        // edit of mine, though the working set has it otherwise.
        const ScheduleMerge taken(m_merge->base(), m_drafts.saved(), m_merge->mine());
        m_drafts.giveUp(taken.edits());
    }
    return result;
}

bool SaveRescue::writeFile()
{
    const QString file = prompts::saveFileName(m_window, tr("Write the schedule to a file"),
                                               tr("Schedules (*.json)"), QStringLiteral("json"));
    if (file.isEmpty()) {
        return false;
    }
    if (const Fault fault =
            writeSchedule(file, scheduleManage::getInstance().getAllTask(), FileHashes::LeaveOut)) {
        prompts::notice(problems::unwritable(file, fault));
        return false;
    }
    emit written(file);
    return true;
}

void SaveRescue::rescue(const StoreResult& reason)
{
    m_isAsking = true;
    // Until it is asked the next time, the tasks may have been edited.
    m_choices.clear();
    askUntilDone(reason);
    m_isAsking = false;
    if (std::exchange(m_isLeft, false)) {
        // The caller still closes what it has to close.
        QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
    }
}

void SaveRescue::askUntilDone(const StoreResult& reason)
{
    StoreResult outcome = reason;
    while (!outcome) {
        if (m_isLeft) {
            keep();
            return;
        }
        switch (ask(outcome)) {
        case Answer::TryAgain:
            outcome = m_host.trySave();
            break;
        case Answer::Merge:
            if (auto merged = merge(outcome)) {
                outcome = *std::move(merged);
                break;
            }
            goOn();
            return;
        case Answer::SaveOver:
            outcome = saveOver();
            break;
        case Answer::TakeOther:
            outcome = takeOther();
            break;
        case Answer::WriteFile:
            if (writeFile()) {
                return;
            }
            break;
        case Answer::GoOn:
            goOn();
            return;
        }
    }
}

void SaveRescue::goOn()
{
    if (isLeaving()) {
        keep();
    } else {
        m_drafts.goOnEditing();
        emit goesOn();
    }
}

bool SaveRescue::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_window && event->type() == QEvent::Close && m_isAsking) {
        // It closes with the program, once the edits are safe.
        event->ignore();
        leave();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

void SaveRescue::leave()
{
    if (!m_isAsking) {
        return;
    }
    m_isLeft = true;
    // The question itself, or a file dialog over it.
    for (QWidget* top = QApplication::activeModalWidget(); top != nullptr && top->close();) {
        top = QApplication::activeModalWidget();
    }
}

bool SaveRescue::isLeaving() const
{
    // Once the program quits, no event loop runs any more: a question would come back unanswered at
    // once, for ever.
    QEventLoop trial;
    QMetaObject::invokeMethod(&trial, &QEventLoop::quit, Qt::QueuedConnection);
    return m_isLeft || trial.exec() != 0;
}

void SaveRescue::keep()
{
    const KeptEdits edits = keepEdits(scheduleManage::getInstance().getAllTask(), m_host.path());
    if (edits.file.isEmpty()) {
        qWarning("The changes that were not saved could not be kept: %s",
                 qUtf8Printable(englishSentence(edits.fault)));
    } else {
        qWarning("The changes that were not saved stand in %s", qUtf8Printable(edits.file));
    }
    emit kept(edits.file);
}

} // namespace trel::desktop
