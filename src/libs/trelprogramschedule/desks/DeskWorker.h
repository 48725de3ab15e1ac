#pragma once

#include "trelprogramschedule/desks/DeskNote.h"

#include <QObject>
#include <QTimer>

#include <chrono>
#include <memory>
#include <vector>

namespace trel::mediadispatch {

class DeskNoteBoard;

/// What a DeskWatch has done in its thread.
class DeskWorker : public QObject
{
    Q_OBJECT

public:
    DeskWorker(QString desk, std::chrono::milliseconds round);
    ~DeskWorker() override;

    /// From now on beside this store; beside none for an empty path.
    void begin(const QString& store);
    /// Without tasks the own note is taken away.
    void tell(const DeskNote& note);

signals:
    void found(const QString& store, const std::vector<trel::mediadispatch::DeskNote>& others);

private:
    void look();

    QString m_desk;
    QString m_store;
    std::unique_ptr<DeskNoteBoard> m_notes; ///< Null beside no store.
    DeskNote m_note;
    bool m_isWritten = true; ///< The note stands where others find it.
    QTimer* m_round;
};

} // namespace trel::mediadispatch

Q_DECLARE_METATYPE(std::vector<trel::mediadispatch::DeskNote>)
