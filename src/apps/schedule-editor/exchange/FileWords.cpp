#include "FileWords.h"

#include "common/DisplayText.h"
#include "common/ListText.h"

namespace trel::desktop {

namespace {

/// Of a name, in columns of a terminal.
constexpr int kMostColumns = 40;
/// So many are named.
constexpr int kMostTold = 8;

QString named(const QStringList& programs)
{
    QStringList words;
    for (const QString& program : programs.mid(0, kMostTold)) {
        words.append(hosts::shortened(program, kMostColumns));
    }
    if (programs.size() > kMostTold) {
        words.append(QStringLiteral("…"));
    }
    return hosts::ListText::joined(words);
}

} // namespace

QString FileWords::missing(const QStringList& programs)
{
    return tr("%n programs in this file are not in the catalog. Their entries will be invalid: %1",
              nullptr, programs.size())
        .arg(named(programs));
}

QString FileWords::otherContents(const QStringList& programs)
{
    return tr("%n programs in the catalog may have another content than in this file: %1", nullptr,
              programs.size())
        .arg(named(programs));
}

QString FileWords::otherNames(const QStringList& programs)
{
    return tr("%n programs have another name in the catalog than in this file: %1", nullptr,
              programs.size())
        .arg(named(programs));
}

} // namespace trel::desktop
