#include "InsertMenu.h"

#include "ScheduleText.h"

#include <QMenu>

#include <array>

namespace trel::mediadispatch {

namespace {

struct LineText
{
    InsertMenuLine line;
    const char* key;
};

constexpr std::array<LineText, 4> kLines = {{{InsertMenuLine::Cut, "zhCutCurrentProg"},
                                             {InsertMenuLine::Delay, "zhDelayInsert"},
                                             {InsertMenuLine::MoveUp, "zhProgMoveUp"},
                                             {InsertMenuLine::MoveDown, "zhProgMoveDown"}}};

} // namespace

void fillInsertMenu(QMenu& menu)
{
    for (const LineText& entry : kLines) {
        menu.addAction(scheduleText(entry.key));
    }
}

InsertMenuLine insertMenuLine(const QString& text)
{
    for (const LineText& entry : kLines) {
        if (text == scheduleText(entry.key)) {
            return entry.line;
        }
    }
    return InsertMenuLine::Cut;
}

} // namespace trel::mediadispatch
