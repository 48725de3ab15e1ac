#include "support/TestProgram.h"

#include <QFileInfo>

#include <iostream>
#include <map>
#include <string>

namespace trel::tests {

namespace {

std::map<std::string, TestProgram::Run>& classes()
{
    static std::map<std::string, TestProgram::Run> known;
    return known;
}

} // namespace

TestProgram::TestProgram(const char* file, Run tests)
{
    const QString source = QFileInfo(QString::fromLocal8Bit(file)).completeBaseName();
    classes()[source.mid(QStringLiteral("tst_").size()).toStdString()] = tests;
}

int TestProgram::run(int argc, char** argv)
{
    const auto found = argc > 1 ? classes().find(argv[1]) : classes().end();
    if (found == classes().end()) {
        std::cerr << "Usage: " << argv[0] << " NAME [OPTION...], with one of these names:\n";
        for (const auto& known : classes()) {
            std::cerr << "  " << known.first << '\n';
        }
        return 2;
    }
    // The class sees its own options alone.
    argv[1] = argv[0];
    return found->second(argc - 1, argv + 1);
}

} // namespace trel::tests

int main(int argc, char** argv)
{
    return trel::tests::TestProgram::run(argc, argv);
}
