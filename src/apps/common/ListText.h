#pragma once

#include <QCoreApplication>
#include <QStringList>

namespace trel::hosts {

/// How things are told in a row: in English, or as the language does it that a program has
/// installed.
class ListText
{
    Q_DECLARE_TR_FUNCTIONS(ListText)

public:
    /// The parts with what the language puts between them, such as "Mon, Wed".
    static QString joined(const QStringList& parts);
};

} // namespace trel::hosts
