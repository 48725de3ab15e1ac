#include "AnswerCatalogue.h"

#include "service/scheduleManage.h"

namespace trel::mediadispatch {

namespace {

scheduleManage& service()
{
    return scheduleManage::getInstance();
}

/// The copy for all cards that answer the same signal.
class Round : public QObject
{
public:
    static Round& instance()
    {
        static Round round;
        return round;
    }

    void begin(const QObject& sender)
    {
        m_sender = &sender;
        m_programs.reset();
    }

    bool isOf(const QObject* sender) const { return sender && sender == m_sender; }

    const std::map<int, ProgramIten>& programs()
    {
        if (!m_programs) {
            m_programs = service().getPrograms();
            // It is large, and of no use to anybody once the round is over.
            QMetaObject::invokeMethod(this, &Round::end, Qt::QueuedConnection);
        }
        return *m_programs;
    }

private:
    Round()
    {
        const auto begin = [this] { this->begin(service()); };
        connect(&service(), &scheduleManage::signalReflushConflict, this, begin);
        connect(&service(), &scheduleManage::signalUpdatePlanEndTime, this, begin);
    }

    void end()
    {
        m_sender = nullptr;
        m_programs.reset();
    }

    const QObject* m_sender = nullptr; // Compared only; it may be gone.
    std::optional<std::map<int, ProgramIten>> m_programs;
};

} // namespace

void AnswerCatalogue::followService()
{
    Round::instance();
}

void AnswerCatalogue::beginRound(const QObject& sender)
{
    Round::instance().begin(sender);
}

AnswerCatalogue::AnswerCatalogue(const QObject* sender)
    : m_isOfRound(Round::instance().isOf(sender))
{}

const std::map<int, ProgramIten>& AnswerCatalogue::programs()
{
    if (m_isOfRound) {
        return Round::instance().programs();
    }
    if (!m_own) {
        m_own = service().getPrograms();
    }
    return *m_own;
}

void AnswerCatalogue::renew()
{
    m_own.reset();
}

} // namespace trel::mediadispatch
