#include "AsRunSpoolRecord.h"

#include <QDataStream>
#include <QIODevice>

namespace trel::mediadispatch {

namespace {

/// Also says which form it is.
constexpr quint8 kForm = 1;

/// Calls a function for each member, in the order in which they are kept.
template <typename Record, typename Visit>
void visitMembers(Record& record, const Visit& visit)
{
    visit(record.kind);
    visit(record.revision);
    visit(record.schedule);
    visit(record.picture);
    visit(record.taskId);
    visit(record.planId);
    visit(record.planRow);
    visit(record.entry);
    visit(record.play);
    visit(record.run);
    visit(record.insertion);
    visit(record.progIndex);
    visit(record.program);
    visit(record.plannedBegin);
    visit(record.plannedEnd);
    visit(record.begins);
    visit(record.ends);
    visit(record.steadyBegin);
    visit(record.steadyEnd);
    visit(record.boot);
    visit(record.shown);
    visit(record.outcome);
    visit(record.late);
    visit(record.why);
}

bool isWhole(const AsRunRecord& record)
{
    const auto isOneOf = [](auto value, auto first, auto last) {
        return value >= first && value <= last;
    };
    return isOneOf(record.kind, AsRunKind::Picture, AsRunKind::ScheduleTaken) &&
           isOneOf(record.picture, ScreenPicture::Black, ScreenPicture::Frozen) &&
           isOneOf(record.shown, AsRunShown::AsPlanned, AsRunShown::FormerPicture) &&
           isOneOf(record.outcome, AsRunOutcome::Complete, AsRunOutcome::NotRecorded);
}

} // namespace

QByteArray asRunSpoolBytes(const AsRunRecord& record)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setVersion(QDataStream::Qt_5_15);
    out << kForm;
    visitMembers(record, [&out](const auto& member) { out << member; });
    return bytes;
}

std::optional<AsRunRecord> asRunSpoolRecord(const QByteArray& bytes)
{
    QDataStream in(bytes);
    in.setVersion(QDataStream::Qt_5_15);
    quint8 form = 0;
    in >> form;
    AsRunRecord record;
    visitMembers(record, [&in](auto& member) { in >> member; });
    const bool isRead = form == kForm && in.status() == QDataStream::Ok && in.atEnd();
    return isRead && isWhole(record) ? std::optional(std::move(record)) : std::nullopt;
}

} // namespace trel::mediadispatch
