#include "SaveRescue.h"

#include "HostPrompts.h"
#include "KeptEdits.h"
#include "ProblemWords.h"
#include "service/scheduleManage.h"
#include "trelprogramschedule/faults/FaultWords.h"
#include "trelprogramschedule/json/ScheduleJson.h"

#include <QApplication>
#include <QEvent>
#include <QEventLoop>
#include <QMetaObject>
#include <QWidget>

#include <utility>

using namespace trel::mediadispatch;

namespace trel::desktop {

SaveRescue::SaveRescue(ScheduleHost& host, QWidget* window)
    : QObject(window)
    , m_host(host)
    , m_window(window)
{
    connect(&m_host, &ScheduleHost::saveFailed, this, &SaveRescue::rescue, Qt::DirectConnection);
    connect(qApp, &QGuiApplication::commitDataRequest, this, &SaveRescue::leave,
            Qt::DirectConnection);
    m_window->installEventFilter(this);
}

SaveRescue::Answer SaveRescue::ask(const QString& reason)
{
    const int button = prompts::confirm(
        tr("The schedule was not saved. %1\n\nWhat do you want to do with your changes?")
            .arg(reason),
        tr("Try again"), tr("Write to a file"), tr("Discard changes"));
    switch (button) {
    case 1:
        return Answer::TryAgain;
    case 2:
        return Answer::WriteFile;
    case 3:
        return Answer::GiveUp;
    default:
        return Answer::None;
    }
}

bool SaveRescue::writeFile()
{
    const QString file = prompts::saveFileName(m_window, tr("Write the schedule to a file"),
                                               tr("Schedules (*.json)"), QStringLiteral("json"));
    if (file.isEmpty()) {
        return false;
    }
    if (const Fault fault = writeScheduleFile(file, scheduleManage::getInstance().getAllTask())) {
        prompts::notice(problems::unwritable(file, fault));
        return false;
    }
    emit written(file);
    return true;
}

void SaveRescue::rescue(const StoreResult& reason)
{
    m_isAsking = true;
    askUntilDone(reason);
    m_isAsking = false;
    if (std::exchange(m_isLeft, false)) {
        // The caller still closes what it has to close.
        QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
    }
}

void SaveRescue::askUntilDone(const StoreResult& reason)
{
    QString sentence = problems::sentence(reason);
    for (;;) {
        const Answer answer = ask(sentence);
        if (answer == Answer::None && isLeaving()) {
            keep();
            return;
        }
        switch (answer) {
        case Answer::TryAgain: {
            const StoreResult again = m_host.trySave();
            if (again) {
                return;
            }
            sentence = problems::sentence(again);
            break;
        }
        case Answer::WriteFile:
            if (writeFile()) {
                return;
            }
            break;
        case Answer::GiveUp:
            emit givenUp();
            return;
        case Answer::None:
            break;
        }
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
