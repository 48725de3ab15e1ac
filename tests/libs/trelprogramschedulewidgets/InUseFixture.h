#pragma once

#include "ChooserFixture.h"

#include "ScheduleText.h"

#include <QtTest>

/// The lines of the menu, from the top.
enum MenuLine { CutLine, DelayLine, UpLine, DownLine };

inline QStringList menuTexts()
{
    return {trel::mediadispatch::scheduleText("zhCutCurrentProg"),
            trel::mediadispatch::scheduleText("zhDelayInsert"),
            trel::mediadispatch::scheduleText("zhProgMoveUp"),
            trel::mediadispatch::scheduleText("zhProgMoveDown")};
}

/// "ABC" for a list of three.
inline QString namesOf(const std::vector<trel::mediadispatch::struProgInfo>& programs)
{
    QString text;
    for (const trel::mediadispatch::struProgInfo& program : programs) {
        text += QString::fromStdString(program.progName);
    }
    return text;
}

/// A plan of A, B and C that is in use as it stands.
class InUseFixture : public ChooserFixture
{
public:
    explicit InUseFixture(const std::vector<struProgInfo>& programs = {entry(1, "A"), entry(2, "B"),
                                                                       entry(3, "C")})
    {
        setPrograms(programs);
        service.planInUse = plan();
    }

    /// Opens the chooser, clicks on a line of a row's menu and cancels.
    ChooserOutcome trigger(int row, MenuLine menuLine)
    {
        return openExisting([this, row, menuLine](ChooserWindow& chooser) {
            service.clearLog();
            QCOMPARE(chooser.contextMenu(row, menuLine), menuTexts());
            message = chooser.message();
            chooser.cancel();
        });
    }

    /// The list that the one insertion handed over.
    QString inserted() const
    {
        return service.insertions.size() == 1 ? namesOf(service.insertions.front().plan.programs)
                                              : QStringLiteral("not one insertion");
    }

    QString message;
};
