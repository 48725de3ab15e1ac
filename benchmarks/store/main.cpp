#include "Comparison.h"
#include "StartCases.h"
#include "StoreCases.h"

#include <QApplication>

#include <cstring>
#include <exception>
#include <iostream>

int main(int argc, char** argv)
{
    if (argc == 3 && std::strcmp(argv[1], "--start") == 0) {
        bench::startEditor(argc, argv, QString::fromLocal8Bit(argv[2]));
    }
    QApplication application(argc, argv);
    bench::initialize(argc, argv);
    bench::addStoreCases();
    bench::addStartCases();
    try {
        bench::run();
        return 0;
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
