#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>

/// The terminal or the pipes that the program talks to, in UTF-8 whatever the locale says. Results
/// go to the standard output, everything else to the standard error.
class Console
{
public:
    Console() = default;
    ~Console();
    Q_DISABLE_COPY(Console)

    /// Writes a result as it is.
    void write(const QByteArray& utf8);
    void write(const QString& text) { write(text.toUtf8()); }
    /// Writes a result and ends the line.
    void writeLine(const QString& line) { write(line + QLatin1Char('\n')); }
    void writeJson(const QJsonObject& object);
    /// False once something that was written did not arrive.
    bool arrives() const { return !m_hasFailed; }

    /// Hands over what was written so far, so that a reader at the other end has it; false when
    /// that, or anything written before, did not arrive.
    bool flush();

    /// Tells the user what went wrong or should be known, under the program's name.
    void tell(const QString& sentence);
    /// Tells the user without the program's name in front.
    void tellLine(const QString& line);

    /// Shows how far a long work has come, in one line that the next call takes the place of. Does
    /// nothing unless a person watches the standard error.
    void showProgress(int done, int total, const QString& what);

    /// Hands the results over; a sentence when they did not all arrive, an empty text otherwise.
    QString finish();

private:
    void clearProgress();

    bool m_showsProgress = false;
    bool m_hasFailed = false;
};
