#pragma once

#include <QObject>
#include <QString>

namespace trel::player {

/// Writes the log to the standard error, in the thread that it lives in, since whoever reads there
/// may be slow.
class LogWriter : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// A line, with the line feed apart.
    void write(const QString& line);
};

} // namespace trel::player
