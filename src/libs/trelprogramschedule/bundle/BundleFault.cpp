#include "BundleFault.h"

#include "faults/FaultWords.h"

namespace trel::mediadispatch {

namespace {

/// Such as "at byte 1024, in media/…".
QString placeOf(const BundleFault& fault)
{
    QString place =
        fault.position < 0 ? QString() : QStringLiteral(" at byte %1").arg(fault.position);
    if (!fault.entry.isEmpty()) {
        place += (place.isEmpty() ? QStringLiteral(" in ") : QStringLiteral(", in ")) + fault.entry;
    }
    return place;
}

QString reasonOf(const BundleFault& fault)
{
    return fault.words.isEmpty() ? QString() : QStringLiteral(": ") + fault.words;
}

/// A file that is neither read nor written, or the bundle itself.
QString fileOf(const BundleFault& fault)
{
    return fault.words.isEmpty() ? QStringLiteral("it") : fault.words;
}

} // namespace

QString englishClause(const BundleFault& fault)
{
    const QString place = placeOf(fault);
    switch (fault.problem) {
    case BundleProblem::None:
        break;
    case BundleProblem::Unreadable:
        return QStringLiteral("it cannot be read") + place + QStringLiteral(": ") +
               englishClause(fault.cause);
    case BundleProblem::NotABundle:
        return QStringLiteral("it is no bundle") + reasonOf(fault);
    case BundleProblem::Damaged:
        return QStringLiteral("it is damaged") + place + reasonOf(fault);
    case BundleProblem::Cut:
        return QStringLiteral("it is cut") + place;
    case BundleProblem::Unexpected:
        return QStringLiteral("it is damaged") + place +
               (fault.words.isEmpty() ? QStringLiteral(": something else stands there")
                                      : QStringLiteral(": \"%1\" stands there").arg(fault.words));
    case BundleProblem::MoreBehind:
        return QStringLiteral("it is damaged") + place +
               QStringLiteral(": \"%1\" stands behind its end").arg(fault.words);
    case BundleProblem::OtherSize:
        return QStringLiteral("it is damaged") + place +
               QStringLiteral(": the size is another one");
    case BundleProblem::OtherContent:
        return QStringLiteral("it is damaged") + place +
               QStringLiteral(": the content is not that of its hash");
    case BundleProblem::TooLarge:
        return QStringLiteral("what stands") + place + QStringLiteral(" is too large");
    case BundleProblem::BadText:
        return QStringLiteral("it is damaged") + place +
               (fault.words.isEmpty() ? QStringLiteral(": ")
                                      : QStringLiteral(": %1: ").arg(fault.words)) +
               englishClause(fault.cause);
    case BundleProblem::CannotWrite:
        return fileOf(fault) + QStringLiteral(" cannot be written: ") + englishClause(fault.cause);
    case BundleProblem::NoName:
        return fileOf(fault) + QStringLiteral(" cannot be written: another file has its name");
    case BundleProblem::SourceGone:
        return fileOf(fault) + QStringLiteral(" cannot be read");
    case BundleProblem::SourceChanged:
        return fileOf(fault) + QStringLiteral(" was changed while it was read");
    }
    return QString();
}

} // namespace trel::mediadispatch
