#include "SoakLog.h"

#include "FaultInjector.h"
#include "PlayedScreen.h"
#include "clock/Clock.h"
#include "log/EventWords.h"

#include <QFileInfo>

using trel::mediadispatch::Clock;
using trel::player::PlayerDeck;

namespace {

QString wordsOf(int way)
{
    static const QStringList ways{
        QStringLiteral("missing"), QStringLiteral("text"),       QStringLiteral("cut short"),
        QStringLiteral("emptied"), QStringLiteral("pipe"),       QStringLiteral("folder"),
        QStringLiteral("stalls"),  QStringLiteral("breaks off"), QStringLiteral("unreachable"),
        QStringLiteral("silent"),  QStringLiteral("dead")};
    return ways.value(way, QString::number(way));
}

} // namespace

SoakLog::SoakLog(QTextStream& out, const PlayedScreen& screen, const FaultInjector* faults,
                 const StreamServer& server)
    : m_out(out)
    , m_local(Clock::current().zone())
{
    const auto follow = [this](const PlayerDeck& deck, const char* name) {
        connect(&deck, &PlayerDeck::loadBegins, this, [this, name](const QString& media) {
            tell(QStringLiteral("deck %1: %2")
                     .arg(QLatin1String(name), QFileInfo(media).fileName()));
        });
    };
    follow(screen.firstDeck(), "one");
    follow(screen.secondDeck(), "two");
    connect(&server, &StreamServer::asked, this, [this] { tell(QStringLiteral("server: asked")); });
    if (faults != nullptr) {
        connect(faults, &FaultInjector::broke, this, [this](int program, int way) {
            tell(QStringLiteral("fault: program %1, %2").arg(program).arg(wordsOf(way)));
        });
        connect(faults, &FaultInjector::mended, this,
                [this] { tell(QStringLiteral("fault: all mended")); });
    }
}

void SoakLog::note(const trel::screen::ScreenEvent& event)
{
    m_out << trel::player::eventLine(event, m_local) << Qt::endl;
}

void SoakLog::tell(const QString& what)
{
    m_out << m_local.text(Clock::current().msecsSinceEpoch()) << "  " << what << Qt::endl;
}
