#include "catalogue/SearchText.h"

#include <QHash>

#include <algorithm>

namespace trel::desktop {

namespace {

/// Letters that have no parts by the rules of the script, and that people type without them.
QString plainLetters(QChar letter)
{
    static const QHash<QChar, QString> letters = {
        {QChar(0x00e6), QStringLiteral("ae")}, {QChar(0x0153), QStringLiteral("oe")},
        {QChar(0x00df), QStringLiteral("ss")}, {QChar(0x00f8), QStringLiteral("o")},
        {QChar(0x0142), QStringLiteral("l")},  {QChar(0x0111), QStringLiteral("d")},
        {QChar(0x00f0), QStringLiteral("d")},  {QChar(0x0127), QStringLiteral("h")},
        {QChar(0x0167), QStringLiteral("t")},  {QChar(0x0131), QStringLiteral("i")},
        {QChar(0x00fe), QStringLiteral("th")},
    };
    return letters.value(letter, letter);
}

/// Accents have the higher classes; below them are the marks that make another letter.
bool isAccent(QChar letter)
{
    constexpr int kFirstAccent = 10;
    return letter.combiningClass() >= kFirstAccent;
}

} // namespace

QString foldedText(const QString& text)
{
    const QString parts = text.normalized(QString::NormalizationForm_KD).toCaseFolded();
    constexpr ushort kLastPlain = 0x7f;
    QString folded;
    folded.reserve(parts.size());
    for (const QChar letter : parts) {
        if (letter.unicode() <= kLastPlain) {
            folded.append(letter);
        } else if (!isAccent(letter)) {
            folded.append(plainLetters(letter));
        }
    }
    return folded;
}

SearchWords::SearchWords(const QString& typed)
    : m_words(foldedText(typed).simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts))
{}

bool SearchWords::areIn(const QString& folded) const
{
    return std::all_of(m_words.begin(), m_words.end(),
                       [&folded](const QString& word) { return folded.contains(word); });
}

} // namespace trel::desktop
