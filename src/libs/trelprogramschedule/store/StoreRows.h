#pragma once

#include <QByteArray>
#include <QtGlobal>

namespace trel::mediadispatch {

/// What an engine does for a StoreStatement: one statement that is prepared, its values and its
/// rows. Members throw StoreError where the database refuses.
class StoreRows
{
public:
    StoreRows() = default;
    virtual ~StoreRows() = default;
    Q_DISABLE_COPY(StoreRows)

    /// Binds a value to a place, from 1; it stays bound from one run to the next.
    virtual void bind(int place, qint64 value) = 0;
    /// Copies the bytes. A null array is bound as no bytes, not as NULL.
    virtual void bindBytes(int place, const QByteArray& bytes) = 0;
    /// Copies the text.
    virtual void bindText(int place, const QByteArray& utf8) = 0;

    /// Goes to the next row; false behind the last, where the statement is ready to be run again.
    virtual bool next() = 0;
    /// Ends a run before its last row.
    virtual void reset() = 0;

    virtual qint64 number(int column) const = 0;
    /// Valid until the next call of next or reset.
    virtual QByteArray view(int column) const = 0;
};

} // namespace trel::mediadispatch
