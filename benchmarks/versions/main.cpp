#include "Comparison.h"
#include "VersionCases.h"

#include <QCoreApplication>

#include <exception>
#include <iostream>

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    bench::initialize(argc, argv);
    bench::addVersionCases();
    try {
        bench::run();
        return 0;
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
