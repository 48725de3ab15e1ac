#pragma once

#include "FormerPieces.h"
#include "TaskSets.h"

#include <map>
#include <optional>
#include <set>

namespace trel::mediadispatch {

/// Puts the tasks of a former state together: from those of a later one, and from the pieces of
/// them that were others, in whatever order these come. Of pieces of the same name the first one
/// counts, so that those of a state come before those of the states behind it.
class FormerTasks
{
public:
    explicit FormerTasks(TaskMap later);

    /// False where the bytes are no such aspect.
    bool put(const FormerPiece& piece);

    /// None where a task is not whole. To be called once, as the last call.
    std::optional<TaskMap> take();

private:
    struct Pieces
    {
        std::set<TaskAspect> put;
        bool isSaved = false;   ///< Every aspect is there before any is put.
        std::size_t fields = 0; ///< How many plans have fields.
        std::size_t lists = 0;  ///< How many plans have lists.
        bool isAbsent = false;
    };

    TaskMap m_tasks;
    std::map<int, Pieces> m_pieces;
};

} // namespace trel::mediadispatch
