#pragma once

#include <QString>
#include <QStringList>

namespace trel::console {

/// A manual page in the macros of man(7), written from its head to its end. Texts are given as they
/// are read; what the formatter would take for a request is escaped.
class ManualPage
{
public:
    /// What all pages of the package have in their head and foot.
    struct Package
    {
        QString version;
        QString date; ///< Of the version, as 2024-03-31.
    };

    /// The name is that of a program, the purpose completes the sentence "It can ...".
    ManualPage(const QString& name, const QString& purpose, const Package& package);

    void section(const QString& title);
    void subsection(const QString& title);
    /// What is typed: the first word stands in bold, the words in capitals stand for others.
    void usage(const QString& line);
    /// Paragraphs divided by blank lines. Indented lines that begin with a dash are items of a
    /// list.
    void text(const QString& paragraphs);
    /// A term, typed as in usage(), with its meaning.
    void item(const QString& term, const QString& meaning);
    /// Requests of the formatter, taken over as they are.
    void raw(const QString& requests) { m_text += requests; }

    QString page() const { return m_text; }

private:
    static QString escaped(const QString& text);
    static QString typed(const QString& line);
    static QString line(const QString& text);

    QString m_text;
};

} // namespace trel::console
