#pragma once

namespace trel::desktop {

/// The columns of the catalogue, in their order.
enum class ProgramColumn { Name, Folder, Kind, Length, Index };

constexpr int kProgramColumns = 5;

} // namespace trel::desktop
