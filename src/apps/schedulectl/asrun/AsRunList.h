#pragma once

#include "trelprogramschedule/asrun/AsRunRecord.h"
#include "trelprogramschedule/dispatch/MomentFormat.h"

#include <QJsonObject>
#include <QString>

namespace trel::console {

class Console;

/// Writes a list of records line by line, as it comes: nothing of it is kept.
class AsRunList
{
public:
    enum class Form { Text, Json, Csv };

    AsRunList(Console& console, const trel::mediadispatch::MomentFormat& local, Form form);

    /// `head` is for JSON: the members in front of the list.
    void begin(const QJsonObject& head);
    void write(const QString& screen, const trel::mediadispatch::AsRunRecord& record);
    void end();

private:
    void writeText(const QString& screen, const trel::mediadispatch::AsRunRecord& record);
    void writeCsv(const QString& screen, const trel::mediadispatch::AsRunRecord& record);
    void writeJson(const QString& screen, const trel::mediadispatch::AsRunRecord& record);

    Console& m_console;
    const trel::mediadispatch::MomentFormat& m_local;
    Form m_form;
    QString m_screen; ///< Of the line before.
    bool m_isFirst = true;
};

/// Begins a JSON object with a list in it, whose members are written line by line.
void beginJsonList(Console& console, const QJsonObject& head, const char* name);
void writeJsonElement(Console& console, const QJsonObject& element, bool isFirst);
void endJsonList(Console& console, bool isEmpty);

/// ISO 8601, or null for a moment that never comes.
QJsonValue asRunMoment(const trel::mediadispatch::MomentFormat& local,
                       trel::mediadispatch::Instant moment);

} // namespace trel::console
