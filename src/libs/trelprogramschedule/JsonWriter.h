#pragma once

#include <QByteArray>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace trel::mediadispatch {

/// Writes JSON front to back: indented by two blanks a level, members in the order of the calls.
/// The same calls give the same bytes. Nesting is the caller's to keep right.
class JsonWriter
{
public:
    enum class Layout {
        Lines,   ///< Every member or element on a line of its own.
        OneLine, ///< All on one line, with everything inside.
    };

    void beginObject(Layout layout = Layout::Lines) { begin('{', '}', layout); }
    void beginArray(Layout layout = Layout::Lines) { begin('[', ']', layout); }
    /// Ends the object or array that was begun last.
    void end();

    /// The name of the member whose value is written next; plain ASCII.
    void name(std::string_view name);

    void number(std::int64_t value);
    void boolean(bool value);
    /// A text in well-formed UTF-8.
    void text(std::string_view utf8);

    /// All that was written, closed by a line feed. The writer is empty afterwards.
    QByteArray take();

private:
    struct Level
    {
        char closing;
        Layout layout;
        bool isEmpty;
    };

    void begin(char opening, char closing, Layout layout);
    void startValue();
    void separate(Level& level);
    void breakLine();
    void append(std::string_view text) { m_out.append(text); }

    std::string m_out;
    std::vector<Level> m_levels;
    bool m_named = false; ///< A name was written whose value is still to come.
};

} // namespace trel::mediadispatch
