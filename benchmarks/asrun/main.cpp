#include "AsRunCases.h"
#include "Comparison.h"

#include <QCoreApplication>

#include <exception>
#include <iostream>

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    bench::initialize(argc, argv);
    bench::addAsRunCases();
    try {
        bench::run();
        return 0;
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
