#include "CardCases.h"
#include "ChooserCases.h"
#include "Comparison.h"
#include "ConflictCases.h"
#include "Fixture.h"
#include "FreedMemory.h"
#include "ListCases.h"
#include "QuietService.h"

#include <QApplication>

int main(int argc, char** argv)
{
    // As the application does.
    trel::desktop::joinFreedMemoryAtOnce();
    QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("fusion"));
    bench::initialize(argc, argv);
    bench::loadLanguage();
    bench::QuietService::instance().programs = bench::samplePrograms(1000);
    bench::addCardCases();
    bench::addConflictCases();
    bench::addListCases();
    bench::addChooserCases();
    bench::run();
    return 0;
}
