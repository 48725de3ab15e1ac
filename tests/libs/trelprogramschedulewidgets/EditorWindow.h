#pragma once

#include "centerWidget.h"
#include "scheduleControlUI.h"
#include "support/RefusedConnections.h"
#include "support/TestClock.h"

#include <QPushButton>
#include <QtTest>

/// A clock that stands a second after the window was built, so that the window can be shown.
class ClockAfterStart : public TestClock
{
public:
    ClockAfterStart()
        : TestClock(QDateTime(QDate(2024, 3, 10), QTime(12, 0)))
    {
        setElapsed(1000);
    }
};

/// The dialog with its panel and what it asked of its list.
struct EditorWindow : RefusedConnections
{
    EditorWindow()
        : updates(&dialog, &trel::mediadispatch::scheduleControlUI::signalUpdatePlanList)
        , clears(&dialog, &trel::mediadispatch::scheduleControlUI::sigclearPlanList)
    {}

    trel::mediadispatch::centerWidget& panel() const
    {
        return *dialog.findChild<trel::mediadispatch::centerWidget*>();
    }
    QPushButton* button(const char* name) const
    {
        return dialog.findChild<QPushButton*>(QString::fromLatin1(name));
    }

    trel::mediadispatch::scheduleControlUI dialog;
    QSignalSpy updates;
    QSignalSpy clears;
};
