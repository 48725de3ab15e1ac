// Shows a window of the bare toolkit and tells what the start has cost.
//
// bench_bare                            an empty dialog
// bench_bare FONTS PROGRAMS             the windows of the start out of plain widgets, that of the
//                                       editor hidden, in the first of these fonts that there is,
//                                       with so many programs

#include "FirstPaint.h"
#include "PlainDialog.h"
#include "PlainWindow.h"

#include <QApplication>

namespace {

constexpr int kArguments = 3;
constexpr int kTextPixels = 12;

void setFont(const QString& families)
{
    QFont font;
    font.setFamilies(families.split(QLatin1Char(',')));
    font.setPixelSize(kTextPixels);
    QApplication::setFont(font);
}

[[noreturn]] void startDialog()
{
    QDialog dialog;
    dialog.show();
    bench::waitForPaint(dialog);
    bench::reportStart();
}

[[noreturn]] void startWidgets(const QStringList& arguments)
{
    setFont(arguments.at(1));
    bench::PlainWindow window(arguments.at(2).toInt());
    bench::PlainDialog dialog;
    dialog.build(0);
    window.show();
    bench::waitForPaint(window);
    bench::reportStart();
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    if (argc == kArguments) {
        startWidgets(QCoreApplication::arguments());
    }
    startDialog();
}
