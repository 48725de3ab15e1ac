#pragma once

#include "ScheduleHost.h"
#include "service/scheduleManage.h"

#include <QSignalSpy>
#include <QStringList>

/// How often the service has emitted what, as one line such as "conflict 2, catalogue"; empty for
/// nothing at all. In the order: programs, ends, conflict, stored, catalogue, failed.
class SignalCounts
{
public:
    SignalCounts()
        : m_programs(&manager(), &Manager::sigProgIndexChanged)
        , m_ends(&manager(), &Manager::signalUpdatePlanEndTime)
        , m_conflict(&manager(), &Manager::signalReflushConflict)
        , m_stored(&host(), &Host::storedSetChanged)
        , m_catalogue(&host(), &Host::catalogueChanged)
        , m_failed(&host(), &Host::saveFailed)
    {}

    bool isValid() const
    {
        return m_programs.isValid() && m_ends.isValid() && m_conflict.isValid() &&
               m_stored.isValid() && m_catalogue.isValid() && m_failed.isValid();
    }

    /// What has come since the last call.
    QString take()
    {
        QStringList parts;
        add(parts, "programs", m_programs);
        add(parts, "ends", m_ends);
        add(parts, "conflict", m_conflict);
        add(parts, "stored", m_stored);
        add(parts, "catalogue", m_catalogue);
        add(parts, "failed", m_failed);
        return parts.join(QLatin1String(", "));
    }

private:
    using Manager = trel::mediadispatch::scheduleManage;
    using Host = trel::mediadispatch::ScheduleHost;

    static Manager& manager() { return Manager::getInstance(); }
    static Host& host() { return Host::instance(); }

    static void add(QStringList& parts, const char* name, QSignalSpy& spy)
    {
        const int count = spy.count();
        spy.clear();
        if (count > 0) {
            parts.append(count == 1 ? QLatin1String(name)
                                    : QStringLiteral("%1 %2").arg(QLatin1String(name)).arg(count));
        }
    }

    QSignalSpy m_programs;
    QSignalSpy m_ends;
    QSignalSpy m_conflict;
    QSignalSpy m_stored;
    QSignalSpy m_catalogue;
    QSignalSpy m_failed;
};
