#pragma once

#include <QString>
#include <QStringList>

namespace trel::desktop {

/// A text as searches compare it: in one case, without accents, with ligatures and letters with a
/// stroke taken apart, and in one width. The marks that make another letter of one, as in kana,
/// stay.
QString foldedText(const QString& text);

/// What somebody types to find something: words, all of which have to be found, anywhere and in any
/// order.
class SearchWords
{
public:
    SearchWords() = default;
    explicit SearchWords(const QString& typed);

    bool isEmpty() const { return m_words.isEmpty(); }
    /// Whether a text that foldedText() has made holds them all.
    bool areIn(const QString& folded) const;

private:
    QStringList m_words;
};

} // namespace trel::desktop
