#pragma once

#include "ScreenWords.h"

#include <QByteArray>
#include <QString>

#include <map>
#include <utility>

class Console;

/// Writes the list of what is on screen line by line, as it comes: nothing of it is kept.
class TimelineReport
{
public:
    enum class Lines {
        Spans, ///< One for each time that a plan has the screen, and for each stretch between.
        Plays, ///< One for each play of a program, and for each picture between.
    };

    TimelineReport(Console& console, const ScreenWords& words, Lines lines);

    void writeTitles();
    void write(const trel::mediadispatch::ScreenState& state);

private:
    QString listText(const trel::mediadispatch::ScreenState& state);
    QString contentText(const trel::mediadispatch::ScreenState& state);

    Console& m_console;
    const ScreenWords& m_words;
    Lines m_lines;
    std::map<std::pair<int, int>, QString> m_lists; ///< By task and row.
};

/// The same list as one JSON object, one line for each member of the list.
class TimelineJson
{
public:
    TimelineJson(Console& console, const ScreenWords& words);

    /// Begins with the members that stand before the list.
    void begin(const QJsonObject& head, const QString& listName);
    void write(const trel::mediadispatch::ScreenState& state);
    void end();

private:
    Console& m_console;
    const ScreenWords& m_words;
    bool m_isFirst = true;
};
