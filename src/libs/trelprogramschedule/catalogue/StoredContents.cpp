#include "StoredContents.h"

#include "ScheduleService.h"

namespace trel::mediadispatch {

StoreResult readStoredContents(ProgramContents& contents)
{
    return ScheduleService::instance().readContents(contents);
}

FileContents storedFileContents()
{
    FileContents files;
    ProgramContents contents;
    if (!readStoredContents(contents)) {
        return files;
    }
    const ProgramMap& programs = ScheduleService::instance().state().catalogue.programs();
    for (auto& [index, content] : contents) {
        const auto program = programs.find(index);
        if (program != programs.end()) {
            files[QString::fromStdString(program->second.mediaPath)] = std::move(content);
        }
    }
    return files;
}

} // namespace trel::mediadispatch
