#include "DeskWorker.h"

#include "DeskNoteBoard.h"
#include "store/StoreEngines.h"

#include <utility>

namespace trel::mediadispatch {

DeskWorker::DeskWorker(QString desk, std::chrono::milliseconds round)
    : m_desk(std::move(desk))
    , m_round(new QTimer(this))
{
    qRegisterMetaType<std::vector<DeskNote>>();
    m_round->setInterval(round);
    connect(m_round, &QTimer::timeout, this, &DeskWorker::look);
}

DeskWorker::~DeskWorker() = default;

void DeskWorker::begin(const QString& store)
{
    m_store = store;
    m_notes = store.isEmpty() ? nullptr : deskNotesFor(store, m_desk);
    m_note = DeskNote();
    m_isWritten = true;
    if (m_notes) {
        m_round->start();
        look();
    } else {
        m_round->stop();
    }
}

void DeskWorker::tell(const DeskNote& note)
{
    m_note = note;
    if (m_notes && note.taskIds.empty()) {
        m_notes->withdraw();
        m_isWritten = true;
    } else if (m_notes) {
        m_isWritten = m_notes->write(note);
    }
}

void DeskWorker::look()
{
    if (!m_note.taskIds.empty() && (!m_isWritten || !m_notes->renew())) {
        m_isWritten = m_notes->write(m_note);
    }
    emit found(m_store, m_notes->others());
}

} // namespace trel::mediadispatch
