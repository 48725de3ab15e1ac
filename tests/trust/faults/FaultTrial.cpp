#include "FaultTrial.h"

#include <QRegularExpression>

#include <cerrno>

namespace {

std::vector<int> errorsOf(FileCall call)
{
    switch (call) {
    case FileCall::Write:
    case FileCall::Truncate:
        return {EIO, ENOSPC};
    case FileCall::Open:
        return {EIO, EMFILE};
    case FileCall::Rename:
        return {EIO, EACCES};
    case FileCall::Map:
        return {ENOMEM};
    case FileCall::Lock:
        return {ENOLCK};
    case FileCall::Mode:
        return {EPERM};
    case FileCall::Read:
    case FileCall::Sync:
    case FileCall::Remove:
    case FileCall::Look:
        break;
    }
    return {EIO};
}

QString textOf(const Fault& fault)
{
    return QStringLiteral("%1: %2 %3 %4 with %5")
        .arg(QLatin1String(fault.command->name), QLatin1String(nameOf(fault.call)))
        .arg(fault.nth)
        .arg(fault.isForGood ? QStringLiteral("for good") : QStringLiteral("once"),
             qt_error_string(fault.systemError));
}

bool isSentence(const QByteArray& errors)
{
    return errors.startsWith("schedulectl: ") && errors.endsWith('.');
}

/// What a program puts beside a file for as long as it writes it.
QStringList draftsOf(const QStringList& names)
{
    static const QRegularExpression draft(QStringLiteral("\\.new-|^out\\.json\\."));
    return names.filter(draft);
}

} // namespace

FaultTrial::FaultTrial(TrialProgram& program, const TrialFolder& folder)
    : m_program(program)
    , m_folder(folder)
    , m_console(QStringLiteral(SCHEDULECTL), folder.path())
{}

std::vector<Fault> FaultTrial::find(const WritingCommand& command)
{
    Usual& usual = m_usual[&command];
    m_folder.reset(command);
    usual.before = m_folder.contents(command);
    m_folder.reset(command);
    usual.calls = {};
    const ProcessEnd end = m_console.run(m_folder.argumentsOf(command), [&usual](FileCall call) {
        ++usual.calls[std::size_t(call)];
        return CallFate();
    });
    usual.after = m_folder.contents(command);
    if (end.status != 0 || usual.before == usual.after || !m_folder.leftovers().isEmpty()) {
        m_program.fault(QStringLiteral("%1 does not work without a fault: %2")
                            .arg(QLatin1String(command.name), QString::fromUtf8(end.errors)));
    }
    std::vector<Fault> faults;
    for (int call = 0; call < kFileCalls; ++call) {
        for (int nth = 1; nth <= usual.calls[std::size_t(call)]; ++nth) {
            for (const int error : errorsOf(FileCall(call))) {
                faults.push_back({&command, FileCall(call), nth, false, error});
                faults.push_back({&command, FileCall(call), nth, true, error});
            }
        }
    }
    return faults;
}

void FaultTrial::attempt(const Fault& fault)
{
    m_folder.reset(*fault.command);
    int count = 0;
    const ProcessEnd end = m_console.run(m_folder.argumentsOf(*fault.command), [&](FileCall call) {
        count += call == fault.call ? 1 : 0;
        const bool isDue =
            call == fault.call && (fault.isForGood ? count >= fault.nth : count == fault.nth);
        return isDue ? CallFate{CallFate::Fails, fault.systemError} : CallFate();
    });
    m_program.count();
    judge(fault, end);
}

void FaultTrial::judge(const Fault& fault, const ProcessEnd& end)
{
    const Usual& usual = m_usual[fault.command];
    // Drafts that could not be removed are removed by the next program.
    const QStringList drafts = draftsOf(m_folder.leftovers());
    const QByteArray found = m_folder.contents(*fault.command);
    const QByteArray errors = end.errors.trimmed();
    const auto complain = [&](const char* what) {
        m_program.fault(QStringLiteral("%1: %2; exit %3, signal %4, said: %5; left: %6; %7")
                            .arg(textOf(fault), QLatin1String(what))
                            .arg(end.status)
                            .arg(end.signal)
                            .arg(QString::fromUtf8(errors),
                                 (drafts + m_folder.leftovers()).join(QLatin1Char(' ')),
                                 found == usual.before  ? QStringLiteral("old")
                                 : found == usual.after ? QStringLiteral("new")
                                                        : QString::fromUtf8(found.left(200))));
    };
    if (end.isLate) {
        complain("it does not end");
    } else if (end.signal != 0 || (end.status != 0 && end.status != 1)) {
        complain("it dies");
    } else if (found != usual.before && found != usual.after) {
        complain("the contents are neither the old nor the new ones");
    } else if (end.status == 0 && found != usual.after) {
        complain("it claims to have done what it has not");
    } else if (end.status != 0 && found != usual.before) {
        complain("it was refused, and yet has done it");
    } else if (end.status != 0 && !isSentence(errors)) {
        complain("a refusal has no sentence");
    } else if (!drafts.isEmpty() && fault.call != FileCall::Remove) {
        complain("a draft lies around");
    } else if (found == usual.before && !worksNow(*fault.command)) {
        complain("the command does not work afterwards");
    } else if (!m_folder.leftovers().isEmpty() &&
               !(fault.command->isExport && fault.call == FileCall::Remove)) {
        complain("something is left after the next command");
    }
}

bool FaultTrial::worksNow(const WritingCommand& command)
{
    const ProcessEnd end =
        m_console.run(m_folder.argumentsOf(command), [](FileCall) { return CallFate(); });
    return end.status == 0 && m_folder.contents(command) == m_usual[&command].after;
}
