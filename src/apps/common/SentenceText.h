#pragma once

#include <QCoreApplication>
#include <QStringList>

namespace trel::hosts {

/// How sentences follow one another in a line: in English, or as the language does it that a
/// program has installed.
class SentenceText
{
    Q_DECLARE_TR_FUNCTIONS(SentenceText)

public:
    /// Whole sentences with what the language puts between them: a blank, or nothing as in Chinese
    /// and Japanese. Empty ones are left out.
    static QString joined(const QStringList& sentences);
};

} // namespace trel::hosts
