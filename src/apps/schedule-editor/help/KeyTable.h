#pragma once

#include "week/WeekKeys.h"
#include "week/moves/MoveKeys.h"

#include <QCoreApplication>
#include <QString>

#include <vector>

class QAction;
class QMenuBar;
class QWidget;

namespace trel::desktop {

/// One thing that has keys.
struct KeyLine
{
    QString keys; ///< As the platform writes them.
    QString text;
};

struct KeySection
{
    QString title;
    std::vector<KeyLine> lines;
};

/// All keys of the host's windows, in the language in use. Those of the menus and of the editor are
/// read off the actions and shortcuts that are there, those of the week off what handles them.
class KeyTable
{
    Q_DECLARE_TR_FUNCTIONS(KeyTable)

public:
    static std::vector<KeySection> sections(const QMenuBar& menus, const QWidget& editor);

private:
    static KeySection ofMenus(const QMenuBar& menus);
    static KeySection ofEditor(const QWidget& editor);
    static KeySection ofWeek();
    static KeySection ofPrograms();
    static QString ofShortcut(const QString& keys);
    static QString ofCommand(week::WeekCommand command);
    static QString ofMove(const week::MoveKey& move);
};

} // namespace trel::desktop
