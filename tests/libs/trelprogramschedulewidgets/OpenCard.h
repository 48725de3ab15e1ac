#pragma once

#include "PlanTaskWidget.h"
#include "support/PlanRecords.h"
#include "support/PlanTaskWidgetInspector.h"
#include "support/RecordingService.h"

#include <QAbstractButton>
#include <QtTest>

/// A card on screen, of a task that stands in the service. What its building did is wiped from the
/// log, so that a test counts from here.
class OpenCard
{
public:
    explicit OpenCard(const trel::mediadispatch::PlayTask& task)
        : card(keep(task), &m_window)
        , rows(card)
    {
        m_window.show();
        card.adjustSize();
        RecordingService::instance().clearLog();
    }

    /// How often the whole task has been handed to the service.
    static int stores() { return RecordingService::instance().count(QStringLiteral("addTask")); }

private:
    QWidget m_window; // Goes last.

public:
    trel::mediadispatch::PlanTaskWidget card;
    trel::mediadispatch::PlanTaskWidgetInspector rows;

private:
    static const trel::mediadispatch::PlayTask& keep(const trel::mediadispatch::PlayTask& task)
    {
        return RecordingService::instance().working[task.id] = task;
    }
};

inline void click(QAbstractButton& button)
{
    QTest::mouseClick(&button, Qt::LeftButton);
}

/// A widget or layout of the card by its name.
template <typename T>
inline T& named(const QWidget& card, const char* name)
{
    T* const found = card.findChild<T*>(QLatin1String(name));
    Q_ASSERT(found);
    return *found;
}
