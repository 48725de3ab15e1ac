#include "FormerTasks.h"

#include <iterator>
#include <utility>

namespace trel::mediadispatch {

FormerTasks::FormerTasks(TaskMap later)
    : m_tasks(std::move(later))
{}

bool FormerTasks::put(const FormerPiece& piece)
{
    const auto [place, isNew] = m_tasks.try_emplace(piece.taskId);
    PlayTask& task = place->second;
    const auto [known, isFirst] = m_pieces.try_emplace(piece.taskId);
    Pieces& pieces = known->second;
    if (isFirst) {
        task.id = piece.taskId;
        pieces.isSaved = !isNew;
        pieces.fields = task.plans.size();
        pieces.lists = task.plans.size();
    }
    if (!pieces.put.insert(piece.aspect).second) {
        return true;
    }
    if (piece.aspect == TaskAspect::Dates) {
        pieces.isAbsent = piece.bytes.isEmpty();
        return pieces.isAbsent || readAspect(piece.aspect, piece.bytes, task);
    }
    const bool isRead = readAspect(piece.aspect, piece.bytes, task);
    (piece.aspect == TaskAspect::Fields ? pieces.fields : pieces.lists) = task.plans.size();
    return isRead;
}

std::optional<TaskMap> FormerTasks::take()
{
    for (const auto& [id, pieces] : m_pieces) {
        if (pieces.isAbsent) {
            m_tasks.erase(id);
        } else if ((!pieces.isSaved && pieces.put.size() != std::size(kTaskAspects)) ||
                   pieces.fields != pieces.lists) {
            return std::nullopt;
        }
    }
    return std::move(m_tasks);
}

} // namespace trel::mediadispatch
