#include "Comparison.h"
#include "EditorWaits.h"
#include "FollowCases.h"
#include "KeystrokeCases.h"
#include "StartCases.h"
#include "StoreCases.h"
#include "WaitCases.h"

#include <QApplication>

#include <exception>
#include <iostream>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    bench::initialize(argc, argv);
    bench::addStoreCases();
    bench::addStartCases();
    bench::addWaitCases();
    bench::addEditorWaits();
    bench::addKeystrokeCases();
    bench::addFollowCases();
    try {
        bench::run();
        return 0;
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
