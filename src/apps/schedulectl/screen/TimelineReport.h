#pragma once

#include "ScreenReport.h"

#include <QByteArray>
#include <QString>

#include <map>
#include <optional>
#include <utility>

namespace trel::console {

class Console;

/// Writes the list of what is on screen line by line, as it comes: nothing of it is kept.
class TimelineReport
{
public:
    enum class Lines {
        Spans, ///< One for each time that a plan has the screen, and for each stretch between.
        Plays, ///< One for each play of a program, and for each picture between.
    };

    TimelineReport(Console& console, const ScreenReport& words, Lines lines);

    void writeTitles();
    /// `after` is what the screen shows once the list of a span is over, if that comes within it.
    void write(const trel::mediadispatch::ScreenState& state,
               const std::optional<trel::mediadispatch::ScreenState>& after);

private:
    QString listText(const trel::mediadispatch::ScreenState& state);
    QString contentText(const trel::mediadispatch::ScreenState& state,
                        const std::optional<trel::mediadispatch::ScreenState>& after);

    Console& m_console;
    const ScreenReport& m_words;
    Lines m_lines;
    std::map<std::pair<int, int>, QString> m_lists; ///< By task and row.
};

/// The same list as one JSON object, one line for each member of the list.
class TimelineJson
{
public:
    TimelineJson(Console& console, const ScreenReport& words, TimelineReport::Lines lines);

    /// Begins with the members that stand before the list.
    void begin(const QJsonObject& head, const QString& listName);
    void write(const trel::mediadispatch::ScreenState& state,
               const std::optional<trel::mediadispatch::ScreenState>& after);
    void end();

private:
    Console& m_console;
    const ScreenReport& m_words;
    TimelineReport::Lines m_lines;
    bool m_isFirst = true;
};

} // namespace trel::console
