#include "EditorTexts.h"

namespace trel::console {

namespace {

const QStringList& dayKeys()
{
    static const QStringList keys = {
        QStringLiteral("szEveryDayStr"), QStringLiteral("szMondayStr"),
        QStringLiteral("szTuesdayStr"),  QStringLiteral("szWednesdayStr"),
        QStringLiteral("szThursdayStr"), QStringLiteral("szFridayStr"),
        QStringLiteral("szSaturdayStr"), QStringLiteral("szSundayStr")};
    return keys;
}

} // namespace

bool isFoundByEditor(const QString& group, const QString& context)
{
    return group == kTextGroup && (context == kTextContext || context.isEmpty());
}

const std::vector<EditorText>& editorTexts()
{
    static const std::vector<EditorText> texts = {
        {"zhSchedulePlayStr"},
        {"zhSchedulePlayStrAdd"},
        {"zhScheduleLoading"},
        {"zhEnable"},
        {"zhNoPlayTask"},
        {"zhSegConflictStr"},
        {"zhPlayTaskStr"},
        {"zhCancelAct"},
        {"zhFixAct"},
        {"zhRefuseAct"},
        {"zhtitleTip"},
        {"zhEffectiveStr"},
        {"zhFromStr", 39},
        {"zhToStr", 18},
        {"zhCreateCopy"},
        {"szDeleteStr"},
        {"zhPlanTimeStr", 54, "   ", "99:"},
        {"zhModeStr", 44},
        {"zhTimeStr", 39},
        {"zhfrequencyStr", 39},
        {"szDateStr", 34},
        {"zhEndActionStr", 58},
        {"zhBlackScreen", 93},
        {"zhFreezeCurrentFrame", 93},
        {"szEveryDayStr", 73},
        {"szMondayStr", 73},
        {"szTuesdayStr", 73},
        {"szWednesdayStr", 73},
        {"szThursdayStr", 73},
        {"szFridayStr", 73},
        {"szSaturdayStr", 73},
        {"szSundayStr", 73},
        {"zhconflictStr", 59},
        {"zhnormalStr", 59},
        {"szInvalidStr"},
        {"szProgNullStr"},
        {"zhStartVaildTimeError"},
        {"szDeletePlanConfirmStr"},
        {"szDeleteTaskConfirmStr"},
        {"zhSelectProgramsStr"},
        {"szProgramLstStr", 110},
        {"szPlanLstStr"},
        {"zhCheckNumber", 50},
        {"zhPlayCounts", 94},
        {"zhOnlyOne"},
        {"zhTotalDuration"},
        {"zhOverTimeTips"},
        {"zhCutCurrentProg"},
        {"zhDelayInsert"},
        {"zhProgMoveUp"},
        {"zhProgMoveDown"},
        {"zhCutProgWarnning"},
        {"zhMinAct"},
        {"zhReductionAct"},
        {"zhMaxAct"},
        {"zhCloseAct"},
    };
    return texts;
}

const std::vector<ComparedTexts>& comparedTexts()
{
    static const std::vector<ComparedTexts> sets = {
        {QStringLiteral("the days"), dayKeys()},
        {QStringLiteral("the entries of the chooser's menu"),
         {QStringLiteral("zhCutCurrentProg"), QStringLiteral("zhDelayInsert"),
          QStringLiteral("zhProgMoveUp"), QStringLiteral("zhProgMoveDown")}},
    };
    return sets;
}

const QStringList& listedTexts()
{
    static const QStringList keys =
        dayKeys() + QStringList{QStringLiteral("szInvalidStr"), QStringLiteral("szProgNullStr")};
    return keys;
}

} // namespace trel::console
