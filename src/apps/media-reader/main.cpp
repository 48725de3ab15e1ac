// Reads media files for the schedule service, which starts this program and hands it each file
// open. It is of no use to anybody else.

#include "Confinement.h"
#include "Drawing.h"
#include "ImagePicture.h"
#include "QuestionLoop.h"

#include <QGuiApplication>

#include <cstdio>
#include <cstring>

#include <malloc.h>
#include <sys/socket.h>
#include <unistd.h>

extern "C" {
#include <libavutil/log.h>
}

using namespace trel::mediadispatch;
using namespace trel::mediareader;

namespace {

/// Each file takes and gives back some megabytes. They are kept for the next one instead of being
/// fetched from the system every time.
void keepFreedMemory()
{
#ifdef __GLIBC__
    constexpr int kKept = 64 * 1024 * 1024;
    mallopt(M_TRIM_THRESHOLD, kKept);
    mallopt(M_TOP_PAD, 4 * 1024 * 1024);
    // No larger threshold is taken.
    mallopt(M_MMAP_THRESHOLD, 32 * 1024 * 1024);
#endif
}

/// Whether the line to the service is there.
bool isStartedByService()
{
    int kind = 0;
    socklen_t size = sizeof kind;
    return ::getsockopt(wire::kDescriptor, SOL_SOCKET, SO_TYPE, &kind, &size) == 0;
}

void drop(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& /*text*/) {}

/// What a user's session asks of programs with windows, and what would bring services of it along.
void forgetSession()
{
    for (const char* name : {"QT_ACCESSIBILITY", "QT_LINUX_ACCESSIBILITY_ALWAYS_ON",
                             "QT_QPA_GENERIC_PLUGINS", "QT_QPA_PLATFORMTHEME"}) {
        qunsetenv(name);
    }
    qputenv("QT_IM_MODULE", "none");
    qputenv("QT_NO_GLIB", "1");
}

int serve(bool hasFonts)
{
    confinement::setLimits();
    const bool isFiltered =
        confinement::refuseCalls(wire::kDescriptor) == confinement::Filter::InForce;
    const QuestionLoop loop(wire::kDescriptor, hasFonts);
    if (loop.greet(isFiltered)) {
        loop.run();
    }
    // Nothing is left to be done, and much of what is done at an end would be refused.
    ::_exit(0);
}

int serveDrawings()
{
    char name[] = "media-reader";
    char option[] = "-platform";
    char platform[] = "offscreen";
    char* arguments[] = {name, option, platform, nullptr};
    int count = 3;
    const QGuiApplication application(count, arguments);
    // What is opened for these cannot be opened later.
    prepareImageFormats();
    prepareTextFonts();
    return serve(true);
}

int servePictures(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    prepareImageFormats();
    return serve(false);
}

} // namespace

int main(int argc, char** argv)
{
    const auto isFor = [argc, argv](const char* purpose) {
        return argc == 2 && std::strcmp(argv[1], purpose) == 0;
    };
    const bool isKnown = isFor(wire::kFacts) || isFor(wire::kPictures) || isFor(wire::kDrawings);
    if (!isKnown || !isStartedByService()) {
        std::fputs("This program reads media files for the schedule service, which starts it.\n",
                   stderr);
        return 2;
    }
    confinement::dieWithParent();
    keepFreedMemory();
    // What is wrong with a file is told by the service, in its own words.
    av_log_set_level(AV_LOG_QUIET);
    qInstallMessageHandler(drop);
    forgetSession();
    if (isFor(wire::kDrawings)) {
        return serveDrawings();
    }
    return isFor(wire::kPictures) ? servePictures(argc, argv) : serve(false);
}
