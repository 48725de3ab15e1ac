#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace trel::mediadispatch {

/// Reads JSON front to back without building a tree, and knows at every moment where it is: the
/// first thing that is wrong is kept as a sentence that names the member and the line and column.
///
/// Every read returns false when the reader has failed, now or before; nothing is read after that.
/// Numbers are taken by their digits, so no value is rounded on its way.
class JsonReader
{
public:
    enum class Kind { Object, Array, Text, Number, Boolean, Null, None };

    /// Reads from bytes in UTF-8; a byte order mark is passed over. The bytes must outlive the
    /// reader.
    explicit JsonReader(const QByteArray& json);

    /// What stands next; None at the end and before anything that is no JSON.
    Kind nextKind();

    /// Reads an object. onMember gets the name of each member, reads the value and returns whether
    /// to go on.
    template <typename OnMember>
    bool readObject(OnMember&& onMember)
    {
        if (!expect(Kind::Object)) {
            return false;
        }
        std::string name;
        for (bool first = true; nextMember(first, name); first = false) {
            m_steps.push_back({name, -1});
            if (!onMember(std::string_view(name))) {
                return false;
            }
            m_steps.pop_back();
        }
        return !hasFailed();
    }

    /// Reads an array. onElement reads each element and returns whether to go on.
    template <typename OnElement>
    bool readArray(OnElement&& onElement)
    {
        if (!expect(Kind::Array)) {
            return false;
        }
        for (int index = 0; nextElement(index == 0); ++index) {
            m_steps.push_back({{}, index});
            if (!onElement()) {
                return false;
            }
            m_steps.pop_back();
        }
        return !hasFailed();
    }

    bool readInt(int& value);
    bool readBoolean(bool& value);
    /// Reads a text, which comes out as well-formed UTF-8.
    bool readText(std::string& utf8);
    /// Passes over a value of any kind, however deeply nested, and checks its form.
    bool skipValue();
    /// Reads to the end, where nothing but blanks may stand.
    bool readEnd();

    /// Where the next value begins, for a refusal that is known only when it has been read.
    std::size_t mark();

    /// Refuses the value or the name that was read last. The reason goes on from a place and a
    /// colon. Always returns false.
    bool fail(const QString& reason) { return fail(reason, m_valueStart); }
    /// Refuses the value that begins at a mark.
    bool fail(const QString& reason, std::size_t mark);
    /// Refuses what stands next as being of the wrong kind, with a name for what belongs there.
    bool failKind(const QString& expected);

    bool hasFailed() const { return !m_error.isEmpty(); }
    QString error() const { return m_error; }

private:
    /// One step of the way from the top to the value in hand: a member or an element.
    struct Step
    {
        std::string_view member;
        int index;
    };

    bool atEnd() const { return m_at >= m_text.size(); }
    void skipBlanks();
    bool expect(Kind kind);
    bool take(char byte);
    bool nextMember(bool first, std::string& name);
    bool nextElement(bool first);
    bool goesOn(bool first, char closing);
    bool skipScalar();
    bool takeText(std::string& utf8);
    bool takeEscape(std::string& utf8);
    bool takeCodeUnit(unsigned& unit);
    bool takeNumber(std::string_view& digits);
    bool takeDigits();
    bool takeWord(std::string_view word);
    bool failForm(const QString& reason);
    bool failValue();
    QString place() const;
    QString position() const;

    std::string_view m_text;
    std::size_t m_at = 0;
    std::size_t m_valueStart = 0; ///< Where the value read last begins.
    std::vector<Step> m_steps;
    QString m_error;
};

} // namespace trel::mediadispatch
