#include "common/SentenceText.h"

namespace trel::hosts {

QString SentenceText::joined(const QStringList& sentences)
{
    QString text;
    for (const QString& sentence : sentences) {
        if (!sentence.isEmpty()) {
            text = text.isEmpty() ? sentence : tr("%1 %2", "two sentences").arg(text, sentence);
        }
    }
    return text;
}

} // namespace trel::hosts
