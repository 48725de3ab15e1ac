#pragma once

#include <QString>
#include <QStringList>

#include <string_view>

namespace trel::console {

/// What stands in a usage line for an argument or the value of an option, such as "FILE", "PATH..."
/// or "day|week".
class PlaceHolder
{
public:
    explicit PlaceHolder(std::string_view text);

    /// The names of files and folders can stand there.
    bool namesFiles() const;
    /// The words to choose from; empty where the place takes other things.
    QStringList words() const;
    /// Without the dots of what can be repeated.
    QString text() const { return m_alternatives.join(QLatin1Char('|')); }

private:
    QStringList m_alternatives;
};

} // namespace trel::console
