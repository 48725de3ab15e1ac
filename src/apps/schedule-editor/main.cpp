#include "EditorApplication.h"
#include "FreedMemory.h"
#include "common/VersionText.h"

#include <QCoreApplication>
#include <QTextStream>

#include <cstdio>

using namespace trel::desktop;

namespace {

/// The toolkit words its help by the name of a running application, and the one with windows comes
/// only after the options.
EditorOptionsResult readOptions(int& argc, char** argv)
{
    const QCoreApplication console(argc, argv);
    return readEditorOptions(QCoreApplication::arguments());
}

} // namespace

int main(int argc, char** argv)
{
    joinFreedMemoryAtOnce();
    const EditorOptionsResult read = readOptions(argc, argv);
    if (read.next == EditorOptionsResult::Next::Version) {
        QTextStream(stdout) << trel::hosts::versionText("schedule-editor") << Qt::endl;
        return 0;
    }
    if (read.next != EditorOptionsResult::Next::Start) {
        const bool misuse = read.next == EditorOptionsResult::Next::Misuse;
        QTextStream(misuse ? stderr : stdout) << read.text << Qt::endl;
        return misuse ? 2 : 0;
    }
    return EditorApplication::run(argc, argv, read.options);
}
