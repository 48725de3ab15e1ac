#pragma once

#include "store/StoreStatement.h"

#include <QByteArray>
#include <QString>

#include <unordered_map>

namespace trel::mediadispatch {

/// The texts that records name by numbers, as far as they have been asked for.
class AsRunWords
{
public:
    AsRunWords(const StoreConnection& connection, const QString& path);

    struct Word
    {
        QByteArray bytes;
        QString text;
    };

    /// Empty for 0, and for a number that is not there.
    const Word& word(qint64 number);
    /// The number of a text, which is written where it is new. Within a transaction.
    qint64 number(const QByteArray& bytes);

private:
    std::unordered_map<qint64, Word> m_words;
    StoreStatement m_read;
    StoreStatement m_find;
    StoreStatement m_add;
};

} // namespace trel::mediadispatch
