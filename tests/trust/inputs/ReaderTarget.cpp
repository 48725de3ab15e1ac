#include "FuzzTarget.h"

#include "media/MediaReaderClient.h"

#include <cmath>

using namespace trel::mediadispatch;

namespace trust {

namespace {

/// Whatever a media reader answers, the service makes a program of it that makes sense, or refuses
/// the file. The first byte of the input chooses the question, the others are the answer, which the
/// reader in the place of the real one finds in the file that it is asked about.
void tryAnswer(const QByteArray& input)
{
    using namespace std::chrono_literals;
    MediaReading reading;
    reading.program = QStringLiteral(ECHO_READER);
    reading.deadline = 10s;
    const InputFile file(input.mid(1));
    const auto question = static_cast<quint8>(input.isEmpty() ? 0 : input.front());
    if (question % 2 == 0) {
        MediaReaderClient client(MediaReaderClient::Purpose::Facts, reading);
        const MediaFacts facts = client.facts(file.path(), question > 127, {});
        expect(std::isfinite(facts.durationMs) && facts.durationMs >= 0.0, "a length is one");
        expect(!facts.fault || facts.durationMs == 0.0, "a file that is refused has no length");
        const bool hasLength = facts.kind == ProgramKind::Video || facts.kind == ProgramKind::Audio;
        expect(!hasLength || facts.durationMs > 0.0, "what plays has a length");
        return;
    }
    const QSize bound(question / 2, 40);
    MediaReaderClient client(MediaReaderClient::Purpose::Pictures, reading);
    const ProgramKind kind = question > 127 ? ProgramKind::Image : ProgramKind::Video;
    const MediaPicture picture = client.picture(file.path(), kind, bound, {});
    expect(picture.dots.size() == (picture.size.isEmpty() ? 0
                                                          : std::size_t(picture.size.width()) *
                                                                std::size_t(picture.size.height())),
           "a picture has as many dots as its size says");
    expect(picture.dots.empty() || (picture.size.width() <= qMax(bound.width(), 1) &&
                                    picture.size.height() <= bound.height()),
           "a picture keeps in its bound");
}

} // namespace

const std::vector<FuzzTarget>& targets()
{
    static const std::vector<FuzzTarget> all = {{"answer", tryAnswer}};
    return all;
}

} // namespace trust
