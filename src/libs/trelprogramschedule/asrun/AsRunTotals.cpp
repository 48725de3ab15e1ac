#include "AsRunTotals.h"

namespace trel::mediadispatch {

void AsRunTotals::add(const AsRunStretch& stretch)
{
    const ScreenState* const planned = stretch.planned;
    const AsRunRecord* const record = stretch.record;
    if (planned != nullptr && planned->isPlaying()) {
        AsRunTotal& total = m_programs[planned->progIndex];
        total.program = stretch.plannedProgram;
        total.plannedLength += stretch.length();
        const Play play(planned->taskId, planned->planId, planned->entry, planned->progIndex,
                        planned->play, planned->run, stretch.insertion, planned->since);
        total.plannedTimes += play == m_planned ? 0 : 1;
        m_planned = play;
        if (record != nullptr && record->kind == AsRunKind::Gap) {
            total.gapLength += stretch.length();
        } else if (stretch.isAsPlanned() && record->shown != AsRunShown::AsPlanned) {
            total.stoodInLength += stretch.length();
        }
    }
    if (record == nullptr || record->kind != AsRunKind::Picture ||
        record->picture != ScreenPicture::Playing || record->shown != AsRunShown::AsPlanned) {
        return;
    }
    AsRunTotal& total = m_programs[record->progIndex];
    total.program = record->program;
    total.shownLength += stretch.length();
    const Play play(record->taskId, record->planId, record->entry, record->progIndex, record->play,
                    record->run, record->insertion, record->plannedBegin);
    total.shownTimes += play == m_shown ? 0 : 1;
    m_shown = play;
}

} // namespace trel::mediadispatch
