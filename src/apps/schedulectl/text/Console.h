#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>

namespace trel::console {

/// The terminal or the pipes that the program talks to, in UTF-8 whatever the locale says. Results
/// go to the standard output, everything else to the standard error.
class Console
{
public:
    Console() = default;
    ~Console();
    Q_DISABLE_COPY(Console)

    /// Writes lines of a result. What a terminal would obey, but the end of a line, is written as
    /// an escape; a text that came from elsewhere has to be printable() all the same, or a line of
    /// its could pass for one of the result.
    void write(const QString& lines);
    /// Writes a result and ends the line, which is one line whatever it holds.
    void writeLine(const QString& line);
    void writeJson(const QJsonObject& object);
    /// Writes JSON, or a part of it. What a terminal would obey is escaped as JSON does it.
    void writeJson(const QByteArray& json);
    /// Writes an export as it is; nothing in it may be what a terminal would obey.
    void writeExport(const QByteArray& utf8);
    /// False once something that was written did not arrive.
    bool arrives() const { return m_error == 0; }

    /// Hands over what was written so far, so that a reader at the other end has it; false when
    /// that, or anything written before, did not arrive.
    bool flush();

    /// Tells the user what went wrong or should be known, under the program's name. What a terminal
    /// would obey is written as an escape, in this and the next.
    void tell(const QString& sentence);
    /// Tells the user without the program's name in front.
    void tellLine(const QString& line);

    /// How wide a table may be: as wide as the terminal that the results go to, and 0 for as wide
    /// as it likes where they go elsewhere.
    static int tableColumns();

    /// Shows how far a long work has come, in one line that the next call takes the place of. Does
    /// nothing unless a person watches the standard error.
    void showProgress(int done, int total, const QString& what);

    /// Hands the results over; a sentence when they did not all arrive, an empty text otherwise.
    QString finish();

private:
    void writeResult(const QByteArray& utf8);
    void note(bool hasArrived);
    void clearProgress();

    bool m_showsProgress = false;
    int m_error = 0; ///< Why a result did not arrive, as errno.
};

} // namespace trel::console
