#pragma once

#include <QString>
#include <QtGlobal>

#include <memory>

namespace trel::mediadispatch {

/// The file of a draft, which this object alone works with: two processes of one desk have a file
/// each. Freed when the object, or the process, goes, however that ends.
class DraftLock
{
public:
    enum class Missing { IsMade, IsRefused };

    /// Null, with the reason in errno, where the file is no regular one, cannot be opened or made,
    /// or another one has it: EWOULDBLOCK then. One that is made may be read by its owner alone.
    static std::unique_ptr<DraftLock> of(const QString& path, Missing missing);
    /// Takes over a handle of a file that takes the place of the one at the path, and locks it.
    /// Null, with the reason in errno, when that is not possible.
    static std::unique_ptr<DraftLock> ofHandle(const QString& path, int handle);

    ~DraftLock();
    Q_DISABLE_COPY(DraftLock)

    QString path() const { return m_path; }
    int handle() const { return m_handle; }
    /// The file still stands at its path.
    bool isInPlace() const;
    /// False, with the reason in errno, when it stays.
    bool remove() const;

private:
    DraftLock(QString path, int handle);

    QString m_path;
    int m_handle;
};

} // namespace trel::mediadispatch
