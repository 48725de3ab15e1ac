#include "HostLanguageCheck.h"

#include "HostTexts.h"
#include "Terms.h"
#include "common/DisplayText.h"

#include <QHash>
#include <QLocale>
#include <QRegularExpression>

#include <algorithm>
#include <optional>

using namespace trel::hosts;

namespace trel::console {

namespace {

using Kind = LanguageFinding::Kind;

bool isNeeded(const LanguageText& known, const QString& language)
{
    return known.isPlural || !language.startsWith(QLatin1String("en"));
}

/// How many forms a plural has; none for a language that nothing is known of.
std::optional<int> pluralForms(const QString& language)
{
    switch (QLocale(language).language()) {
    case QLocale::Chinese:
    case QLocale::Japanese:
    case QLocale::Korean:
        return 1;
    case QLocale::English:
    case QLocale::French:
    case QLocale::German:
    case QLocale::Portuguese:
    case QLocale::Spanish:
        return 2;
    case QLocale::Russian:
        return 3;
    default:
        return std::nullopt;
    }
}

QStringList placeMarks(const QString& text)
{
    static const QRegularExpression mark(QStringLiteral("%[0-9n]"));
    QStringList marks;
    QRegularExpressionMatchIterator matches = mark.globalMatch(text);
    while (matches.hasNext()) {
        marks.append(matches.next().captured());
    }
    marks.sort();
    return marks;
}

/// The letter that opens a menu or chooses an entry; null when there is none.
QChar letterOf(const QString& text)
{
    static const QRegularExpression mark(QStringLiteral("&([^&])"));
    const QRegularExpressionMatch match = mark.match(text);
    return match.hasMatch() ? match.captured(1).front().toLower() : QChar();
}

/// Holds the texts of one file against those of the host's code.
class HostChecker
{
public:
    explicit HostChecker(const LanguageTexts& file)
        : m_file(file)
        , m_terms(file.language)
        , m_forms(pluralForms(file.language))
    {
        for (const LanguageText& known : hostTexts()) {
            m_known.insert(hostTextName(known), &known);
        }
        for (const LanguageText& text : file.texts) {
            m_texts.insert(hostTextName(text), &text);
        }
    }

    std::vector<LanguageFinding> check()
    {
        findMissing();
        for (const LanguageText& text : m_file.texts) {
            const LanguageText* known = m_known.value(hostTextName(text));
            if (known == nullptr) {
                add(Kind::Unknown, text);
            } else {
                lookAt(*known, text);
            }
        }
        findRepeated();
        findClashes();
        sortByKind(m_findings);
        return m_findings;
    }

private:
    void add(Kind kind, const LanguageText& text, const QString& remark = QString())
    {
        m_findings.push_back({kind, hostTextName(text), remark});
    }

    void findMissing()
    {
        for (const LanguageText& known : hostTexts()) {
            if (isNeeded(known, m_file.language) && !m_texts.contains(hostTextName(known))) {
                add(Kind::Missing, known);
            }
        }
    }

    void findRepeated()
    {
        QHash<QString, int> counts;
        for (const LanguageText& text : m_file.texts) {
            const QString name = hostTextName(text);
            const int count = ++counts[name + QLatin1Char('\n') + text.context];
            if (count == 2) {
                add(Kind::Repeated, text);
            }
        }
    }

    void lookAt(const LanguageText& known, const LanguageText& text)
    {
        if (!text.isFinished) {
            add(Kind::Unfinished, text);
        }
        const auto isEmpty = [](const QString& form) { return form.trimmed().isEmpty(); };
        if (std::any_of(text.forms.begin(), text.forms.end(), isEmpty)) {
            add(Kind::Empty, text);
            return;
        }
        lookAtForms(known, text);
        lookAtPlaceMarks(known, text);
        if (letterOf(known.key).isNull() != letterOf(text.text).isNull()) {
            add(Kind::Letter, text,
                letterOf(known.key).isNull() ? QStringLiteral("an \"&\" stands where no menu is")
                                             : QStringLiteral("no letter chooses it"));
        }
        if (const QString word = m_terms.bannedIn(text.forms); !word.isEmpty()) {
            add(Kind::Term, text, word);
        }
    }

    void lookAtForms(const LanguageText& known, const LanguageText& text)
    {
        const int wanted = known.isPlural ? m_forms.value_or(text.forms.size()) : 1;
        if (text.forms.size() != wanted) {
            add(Kind::Plural, text,
                QStringLiteral("it has %1 of %2").arg(text.forms.size()).arg(wanted));
        }
    }

    void lookAtPlaceMarks(const LanguageText& known, const LanguageText& text)
    {
        const QStringList wanted = placeMarks(known.key);
        for (int i = 0; i < text.forms.size(); ++i) {
            const QStringList marks = placeMarks(text.forms[i]);
            // A form that stands for one thing alone need not count it.
            const bool isSingular = i == 0 && known.isPlural && m_forms == 2;
            if (marks != wanted && !(isSingular && marks.isEmpty())) {
                add(Kind::PlaceMark, text,
                    QStringLiteral("%1 has %2 for %3")
                        .arg(inQuotes(text.forms[i]), listed(marks), listed(wanted)));
            }
        }
    }

    static QString listed(const QStringList& marks)
    {
        return marks.isEmpty() ? QStringLiteral("no mark") : marks.join(QLatin1Char(' '));
    }

    void findClashes()
    {
        for (const HostMenu& menu : hostMenus()) {
            QHash<QChar, QString> taken;
            for (const QString& entry : menu.entries) {
                const LanguageText* text = m_texts.value(entry);
                const QChar letter = text == nullptr ? QChar() : letterOf(text->text);
                if (letter.isNull()) {
                    continue;
                }
                if (taken.contains(letter)) {
                    add(Kind::Letter, *text,
                        QStringLiteral("%1, as %2; in %3 they have to differ")
                            .arg(inQuotes(QString(letter.toUpper())), taken[letter], menu.name));
                }
                taken.insert(letter, entry);
            }
        }
    }

    const LanguageTexts& m_file;
    Terms m_terms;
    std::optional<int> m_forms;
    QHash<QString, const LanguageText*> m_known;
    QHash<QString, const LanguageText*> m_texts;
    std::vector<LanguageFinding> m_findings;
};

} // namespace

int neededHostTexts(const QString& language)
{
    const auto isNeededHere = [&language](const LanguageText& known) {
        return isNeeded(known, language);
    };
    return static_cast<int>(std::count_if(hostTexts().begin(), hostTexts().end(), isNeededHere));
}

std::vector<LanguageFinding> checkHostLanguage(const LanguageTexts& file)
{
    return HostChecker(file).check();
}

} // namespace trel::console
