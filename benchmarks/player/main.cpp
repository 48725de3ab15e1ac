#include "Comparison.h"
#include "PlayCases.h"
#include "system/FewArenas.h"

#include <QGuiApplication>

#include <exception>
#include <iostream>

int main(int argc, char** argv)
{
    trel::player::keepToFewArenas();
    QGuiApplication application(argc, argv);
    bench::initialize(argc, argv);
    bench::addPlayCases();
    try {
        bench::run();
        return 0;
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
