#pragma once

#include <QtTest/QTest>

#include <QCoreApplication>

#include <type_traits>

namespace trel::tests {

/// The classes of tests that stand in one program. One of them runs a process:
///
///     PROGRAM NAME [OPTION-OF-QT-TEST...]
///
/// where the class NAME stands in tst_NAME.cpp. Many classes in one program are linked once, and
/// each of them still has a process to itself.
class TestProgram
{
public:
    using Run = int (*)(int argc, char** argv);

    /// Adds a class before main() runs. The file is the `__FILE__` of its source.
    TestProgram(const char* file, Run tests);

    /// Runs the class that the first argument names, and says which there are when it names none.
    /// Returns what the process ends with: the number of failures, or 2 for an unknown name.
    static int run(int argc, char** argv);
};

/// For rules that need no application object.
struct NoApplication
{
    NoApplication(int& /*argc*/, char** /*argv*/) {}
};

template <typename Application, typename Tests>
int runTests(int argc, char** argv)
{
    [[maybe_unused]] Application application(argc, argv);
    if constexpr (std::is_base_of_v<QCoreApplication, Application>) {
        QCoreApplication::setAttribute(Qt::AA_Use96Dpi, true);
    }
    Tests tests;
    return QTest::qExec(&tests, argc, argv);
}

} // namespace trel::tests

/// Closes the source of a class of tests, with the application object that it needs: QApplication,
/// QCoreApplication or trel::tests::NoApplication.
#define TREL_TEST(Class, Application)                                                              \
    static const trel::tests::TestProgram testProgram(__FILE__,                                    \
                                                      &trel::tests::runTests<Application, Class>);
