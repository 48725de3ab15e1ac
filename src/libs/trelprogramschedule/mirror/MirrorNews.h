#pragma once

#include "catalogue/ProgramCatalogue.h"
#include "catalogue/ProgramContent.h"
#include "store/StoredEffect.h"

#include <QMetaType>
#include <QString>
#include <QtGlobal>

#include <map>
#include <memory>
#include <optional>
#include <string>

namespace trel::mediadispatch {

/// Which state of which schedule a mirror holds.
struct MirrorState
{
    /// Which schedule, as its server tells it: another one that takes its place, or a copy of it
    /// that was restored, has another. Empty where the mirror holds nothing.
    QString identity;
    // The revisions of the schedule on its server. Saves are no matter to a screen.
    qint64 effect = 0;
    qint64 catalogue = 0;

    bool operator==(const MirrorState& other) const
    {
        return identity == other.identity && effect == other.effect && catalogue == other.catalogue;
    }
    bool operator!=(const MirrorState& other) const { return !(*this == other); }
};

/// The catalog of a schedule, with what is known of its files.
struct MirroredCatalogue
{
    ProgramMap programs;
    std::map<int, std::string> removedNames; ///< Of programs that were taken out, by index.
    ProgramContents contents;
};

/// What turns one state of a mirror into another, read of the server in one transaction.
struct MirrorNews
{
    MirrorState from; ///< The state that it is for; without an identity it is for any.
    MirrorState to;
    std::optional<StoredEffect> effect;         ///< None where it stays as it is.
    std::optional<MirroredCatalogue> catalogue; ///< The same.

    /// Whether it says all there is to say, so that it is for any state.
    bool isWhole() const { return effect && catalogue; }
};

using MirrorNewsPointer = std::shared_ptr<const MirrorNews>;

} // namespace trel::mediadispatch

Q_DECLARE_METATYPE(trel::mediadispatch::MirrorNewsPointer)
Q_DECLARE_METATYPE(trel::mediadispatch::MirrorState)
