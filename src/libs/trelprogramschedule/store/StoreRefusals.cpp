#include "StoreRefusals.h"

#include <cerrno>

namespace trel::mediadispatch {

namespace {

/// What is said where no more is known.
Fault usualCause(StoreProblem problem)
{
    switch (problem) {
    case StoreProblem::DiskFull:
        return {FaultCode::DiskFull, {}};
    case StoreProblem::ReadOnly:
        return {FaultCode::FileReadOnly, {}};
    default:
        return {};
    }
}

} // namespace

bool isLackOfSpace(int systemError)
{
    return systemError == ENOSPC || systemError == EDQUOT || systemError == EFBIG;
}

FaultCode lackOf(int systemError)
{
    switch (systemError) {
    case EFBIG:
        return FaultCode::FileSizeLimit;
    case EDQUOT:
        return FaultCode::QuotaUsedUp;
    default:
        return FaultCode::DiskFull;
    }
}

StoreResult refusal(StoreProblem problem, const QString& path, const Fault& cause)
{
    return {problem, path, cause ? cause : usualCause(problem)};
}

StoreResult refusalOfSystem(int systemError, const QString& path)
{
    return isLackOfSpace(systemError)
               ? refusal(StoreProblem::DiskFull, path, {lackOf(systemError), {}})
               : refusal(StoreProblem::Other, path, faultOf(FaultCode::System, systemError));
}

} // namespace trel::mediadispatch
