#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QObject>

/// Counts the events of one type, and keeps them from their receivers.
class EventCount : public QObject
{
public:
    explicit EventCount(QEvent::Type type)
        : m_type(type)
    {
        QCoreApplication::instance()->installEventFilter(this);
    }

    int count = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        const bool isCounted = event->type() == m_type;
        count += isCounted ? 1 : 0;
        return isCounted;
    }

private:
    QEvent::Type m_type;
};

/// Takes the events of one type that wait for the event loop, and tells how many there were.
inline int takeWaiting(QEvent::Type type)
{
    const EventCount waiting(type);
    QCoreApplication::sendPostedEvents(nullptr, type);
    return waiting.count;
}
