#include "LanguageCheck.h"

#include "EditorTexts.h"
#include "Terms.h"
#include "common/DisplayText.h"
#include "text/TextWidth.h"

#include <QHash>
#include <QSet>

#include <algorithm>

using namespace trel::hosts;

namespace trel::console {

namespace {

using Kind = LanguageFinding::Kind;

bool belongsToEditor(const LanguageText& text)
{
    return isFoundByEditor(text.group, text.context);
}

/// A name for a text that does not stand where the editor looks.
QString placeOf(const LanguageText& text)
{
    return QStringLiteral("in context %1 with disambiguation %2")
        .arg(inQuotes(text.group), inQuotes(text.context));
}

/// Holds the texts of one file against what the editor does with them.
class Checker
{
public:
    explicit Checker(const LanguageTexts& file)
        : m_file(file)
        , m_terms(file.language)
    {
        for (const EditorText& known : editorTexts()) {
            m_known.insert(QString::fromLatin1(known.key));
        }
        for (const LanguageText& text : file.texts) {
            if (belongsToEditor(text) && m_known.contains(text.key)) {
                ++m_counts[text.key];
                m_texts.insert(text.key, text.text);
            }
        }
    }

    std::vector<LanguageFinding> check()
    {
        findMissing();
        findUnknown();
        lookAtEach();
        findSame();
        sortByKind(m_findings);
        return m_findings;
    }

private:
    void add(Kind kind, const QString& key, const QString& remark = QString())
    {
        m_findings.push_back({kind, key, remark});
    }

    void findMissing()
    {
        for (const EditorText& known : editorTexts()) {
            const QString key = QString::fromLatin1(known.key);
            if (!m_texts.contains(key)) {
                add(Kind::Missing, key);
            }
        }
    }

    void findUnknown()
    {
        for (const LanguageText& text : m_file.texts) {
            if (!belongsToEditor(text)) {
                add(Kind::Unknown, text.key, placeOf(text));
            } else if (!m_known.contains(text.key)) {
                add(Kind::Unknown, text.key);
            }
        }
    }

    void lookAtEach()
    {
        for (const LanguageText& text : m_file.texts) {
            if (belongsToEditor(text) && m_known.contains(text.key) && !text.isFinished) {
                add(Kind::Unfinished, text.key);
            }
        }
        for (const EditorText& known : editorTexts()) {
            const QString key = QString::fromLatin1(known.key);
            if (m_counts.value(key) > 1) {
                add(Kind::Repeated, key, QStringLiteral("%1 times").arg(m_counts[key]));
            }
            if (m_texts.contains(key)) {
                lookAt(known, key, m_texts[key]);
            }
        }
    }

    void lookAt(const EditorText& known, const QString& key, const QString& text)
    {
        if (text.trimmed().isEmpty()) {
            add(Kind::Empty, key);
            return;
        }
        if (text.contains(QLatin1Char('&'))) {
            add(Kind::Mark, key, QStringLiteral("a button would swallow the \"&\""));
        }
        if (listedTexts().contains(key) && text.contains(QLatin1Char(','))) {
            add(Kind::Mark, key, QStringLiteral("a comma divides the list that it stands in"));
        }
        const QString word = m_terms.bannedIn({text});
        if (!word.isEmpty()) {
            add(Kind::Term, key, word);
        }
        const QString shown = QLatin1String(known.before) + text + QLatin1String(known.after);
        const int width = textWidth(shown);
        if (known.room > 0 && width > known.room) {
            add(Kind::TooLong, key,
                QStringLiteral("%1 takes %2 px of %3")
                    .arg(inQuotes(shown), QString::number(width), QString::number(known.room)));
        }
    }

    void findSame()
    {
        for (const ComparedTexts& set : comparedTexts()) {
            QHash<QString, QString> keyByText;
            for (const QString& key : set.keys) {
                const QString text = m_texts.value(key);
                if (text.isEmpty()) {
                    continue;
                }
                if (keyByText.contains(text)) {
                    add(Kind::Same, key,
                        QStringLiteral("%1, as %2; %3 have to differ")
                            .arg(inQuotes(text), keyByText[text], set.name));
                } else {
                    keyByText.insert(text, key);
                }
            }
        }
    }

    const LanguageTexts& m_file;
    Terms m_terms;
    QSet<QString> m_known;
    QHash<QString, QString> m_texts; ///< The last one of a key, which is the one that counts.
    QHash<QString, int> m_counts;
    std::vector<LanguageFinding> m_findings;
};

struct KindName
{
    Kind kind;
    const char* text;
    const char* name;
};

constexpr KindName kKindNames[] = {
    {Kind::Missing, "missing", "missing"},
    {Kind::Unknown, "unknown", "unknown"},
    {Kind::Repeated, "repeated", "repeated"},
    {Kind::Empty, "empty", "empty"},
    {Kind::Unfinished, "unfinished", "unfinished"},
    {Kind::Same, "same", "same"},
    {Kind::Mark, "bad character", "badCharacter"},
    {Kind::TooLong, "too long", "tooLong"},
    {Kind::PlaceMark, "place mark", "placeMark"},
    {Kind::Plural, "plural", "plural"},
    {Kind::Letter, "letter", "letter"},
    {Kind::Term, "term", "term"},
};

const KindName& nameOf(Kind kind)
{
    return *std::find_if(std::begin(kKindNames), std::end(kKindNames),
                         [kind](const KindName& name) { return name.kind == kind; });
}

} // namespace

QString findingText(Kind kind)
{
    return QString::fromLatin1(nameOf(kind).text);
}

QString findingName(Kind kind)
{
    return QString::fromLatin1(nameOf(kind).name);
}

void sortByKind(std::vector<LanguageFinding>& findings)
{
    std::stable_sort(
        findings.begin(), findings.end(),
        [](const LanguageFinding& a, const LanguageFinding& b) { return a.kind < b.kind; });
}

std::vector<LanguageFinding> checkLanguage(const LanguageTexts& file)
{
    return Checker(file).check();
}

} // namespace trel::console
