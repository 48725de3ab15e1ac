#include "EditorApplication.h"

#include <QTextStream>

#include <cstdio>

namespace {

/// The arguments without the ones that the toolkit takes for itself.
QStringList textArguments(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments.append(QString::fromLocal8Bit(argv[i]));
    }
    return arguments;
}

} // namespace

int main(int argc, char** argv)
{
    const EditorOptionsResult read = readEditorOptions(textArguments(argc, argv));
    if (read.next != EditorOptionsResult::Next::Start) {
        const bool misuse = read.next == EditorOptionsResult::Next::Misuse;
        QTextStream(misuse ? stderr : stdout) << read.text << Qt::endl;
        return misuse ? 2 : 0;
    }
    return EditorApplication::run(argc, argv, read.options);
}
