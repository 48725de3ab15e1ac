#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace trel::mediadispatch {

/// Which store a file is, however it is named: a file that is put in its place is another one.
/// Empty where there is no file.
QByteArray storeIdentity(const QString& store);

/// Where the drafts of a desk stand: STORE.unsaved-DESK, and for further ones STORE.unsaved-DESK+2
/// and on, where STORE is the file of the store, or for one on a server a path in a folder aside.
/// Of the desk, what does not go well into the name of a file is written as %XX.
class DraftPlace
{
public:
    DraftPlace(const QString& store, const QString& desk);

    /// From 1.
    QString path(int number) const;
    /// Those that are there, whatever they hold, in the order of their numbers. Looks at the folder
    /// by name alone.
    QStringList files() const;

private:
    QString m_start;
};

} // namespace trel::mediadispatch
