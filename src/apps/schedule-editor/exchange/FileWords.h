#pragma once

#include <QCoreApplication>
#include <QStringList>

namespace trel::desktop {

/// What is told of the programs of a schedule in a file, each with their names.
class FileWords
{
    Q_DECLARE_TR_FUNCTIONS(FileWords)

public:
    static QString missing(const QStringList& programs);
    static QString otherContents(const QStringList& programs);
    static QString otherNames(const QStringList& programs);
};

} // namespace trel::desktop
