#pragma once

#include <Qt>

namespace trel::mediadispatch {

/// The columns of a card's plan table. Captions alternate with the values that they name.
enum PlanColumn {
    TitleColumn = 0,
    ProgramsColumn,
    ModeCaptionColumn,
    ModeColumn,
    StartTimeCaptionColumn,
    StartTimeColumn,
    EndTimeCaptionColumn,
    EndTimeColumn,
    TimesCaptionColumn,
    TimesColumn,
    WeeksCaptionColumn,
    WeeksColumn,
    EndActionCaptionColumn,
    EndActionColumn,
    StateColumn,
    CopyColumn,
    DeleteColumn,
    PlanColumnCount
};

/// What the items of a row hold beside their text.
enum PlanRole {
    ProgramTextRole = Qt::UserRole, ///< In ProgramsColumn: the names of the plan's programs.
    PlanIdRole = Qt::UserRole + 1,  ///< In TitleColumn: the plan's id.
};

} // namespace trel::mediadispatch
