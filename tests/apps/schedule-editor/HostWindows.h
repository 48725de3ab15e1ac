#pragma once

#include "EditorMenus.h"
#include "EditorWindow.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QTableView>
#include <QtTest>

/// The windows that the host's own one leads to, by the names of their objects.
inline QStringList hostWindows()
{
    return {QStringLiteral("versionsWindow"), QStringLiteral("asRunWindow"),
            QStringLiteral("usesWindow"),     QStringLiteral("programPreview"),
            QStringLiteral("guideWindow"),    QStringLiteral("keySheet")};
}

/// A data row for each of them, in the column "name".
inline void addHostWindows()
{
    QTest::addColumn<QString>("name");
    const QStringList names = hostWindows();
    for (const QString& name : names) {
        QTest::newRow(qPrintable(name)) << name;
    }
}

/// Opens one through the menus, on the first program of a catalog that is not empty. Null where it
/// does not open.
inline QWidget* openHostWindow(const trel::desktop::EditorWindow& window, const QString& name)
{
    auto* programs = window.findChild<QTableView*>(QStringLiteral("programTable"));
    if (!QTest::qWaitFor([programs] { return programs->model()->rowCount() > 0; })) {
        return nullptr;
    }
    programs->setCurrentIndex(programs->model()->index(0, 0));
    const auto& menus = *window.findChild<trel::desktop::EditorMenus*>();
    // That of the help comes last, whatever it is called.
    const QList<QAction*> help = window.menuBar()->actions().last()->menu()->actions();
    const QList<QAction*> entries{menus.versions(),       menus.asRun(), menus.whereUsed(),
                                  menus.previewProgram(), help.at(0),    help.at(1)};
    entries.at(hostWindows().indexOf(name))->trigger();
    auto* shown = window.findChild<QWidget*>(name);
    return shown != nullptr && QTest::qWaitForWindowExposed(shown) ? shown : nullptr;
}
