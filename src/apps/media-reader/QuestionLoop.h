#pragma once

#include "trelprogramschedule/media/MediaProtocol.h"

#include <QImage>

namespace trel::mediareader {

class InputFile;
struct NameHint;

/// Answers what the service asks over a line, one question after the other.
class QuestionLoop
{
public:
    QuestionLoop(int line, bool hasFonts)
        : m_line(line)
        , m_hasFonts(hasFonts)
    {}

    /// Says who this is. False when the other end is closed.
    bool greet(bool isFiltered) const;
    /// Answers until the service goes, or asks what makes no sense.
    void run() const;

private:
    /// A question with its file; -1 when there is no more.
    int receive(trel::mediadispatch::wire::Question& question) const;
    bool answer(const trel::mediadispatch::wire::Question& question, const InputFile& file) const;
    bool send(const void* bytes, std::size_t count) const;

    /// The picture that is asked for; null when there is none.
    QImage picture(const trel::mediadispatch::wire::Question& question, const InputFile& file,
                   const NameHint& hint) const;

    const int m_line;
    const bool m_hasFonts;
};

} // namespace trel::mediareader
