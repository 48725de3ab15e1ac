// Shows a window of the bare toolkit and tells what the start has cost.
//
// bench_bare                an empty dialog
// bench_bare PLANS...       a dialog with a plain card for each number of plans, and a plain window
//                           like the one that the editor is opened from

#include "FirstPaint.h"
#include "PlainList.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollArea>
#include <QStatusBar>
#include <QTableView>
#include <QVBoxLayout>

using namespace trel::mediadispatch;

namespace {

void setUpWindow(QMainWindow& window)
{
    for (const char* name : {"Schedule", "Programs", "View", "Language"}) {
        window.menuBar()->addMenu(QLatin1String(name));
    }
    window.setCentralWidget(new QTableView);
    window.statusBar();
    window.resize(900, 520);
}

bench::PlainList* setUpDialog(QDialog& dialog)
{
    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(new QPushButton(QStringLiteral("Add")));
    auto* area = new QScrollArea;
    area->setWidgetResizable(true);
    auto* list = new bench::PlainList;
    area->setWidget(list);
    layout->addWidget(area);
    for (const char* name : {"Cancel", "Save", "Start"}) {
        layout->addWidget(new QPushButton(QLatin1String(name)));
    }
    dialog.resize(1140, 640);
    return list;
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QDialog dialog;
    QMainWindow window;
    if (argc > 1) {
        setUpWindow(window);
        window.show();
        bench::TaskMap tasks;
        for (int id = 1; id < argc; ++id) {
            tasks[id] = bench::sampleTask(id, QByteArray(argv[id]).toInt(), TimeMode);
        }
        setUpDialog(dialog)->build(tasks);
    }
    dialog.show();
    bench::waitForPaint(dialog);
    bench::reportStart();
}
