#pragma once

#include "mirror/MirrorNews.h"
#include "support/SampleSchedule.h"

#include <QByteArray>
#include <QString>

#include <utility>

/// News of a schedule, and lines that tell of one.
namespace trel::tests {

inline mediadispatch::ProgramIten program(int index, const QString& name)
{
    mediadispatch::ProgramIten made;
    made.progIndex = index;
    made.progName = name.toStdString();
    made.mediaPath = QStringLiteral("rtsp://camera/%1").arg(index).toStdString();
    made.kind = mediadispatch::ProgramKind::Live;
    made.durationMs = -1;
    return made;
}

inline mediadispatch::MirroredCatalogue catalogue(int programs)
{
    mediadispatch::MirroredCatalogue made;
    for (int index = 1; index <= programs; ++index) {
        made.programs.emplace(index, program(index, QStringLiteral("program %1").arg(index)));
    }
    made.removedNames.emplace(programs + 1, "gone");
    mediadispatch::ProgramContent content;
    content.size = 12;
    content.modifiedNs = 34;
    content.sha256 = QByteArray(64, 'a');
    made.contents.emplace(1, content);
    return made;
}

inline mediadispatch::StoredEffect effect(int tasks, qint64 saved)
{
    mediadispatch::StoredEffect made;
    mediadispatch::EffectStart start;
    start.since = 1000 * saved;
    start.saved = saved;
    start.by = QStringLiteral("desk@hall");
    made.start = start;
    made.tasks = sampleSchedule(tasks, 2, 2, static_cast<int>(saved));
    return made;
}

inline mediadispatch::ScreenInsertion insertion(qint64 number)
{
    mediadispatch::ScreenInsertion made;
    made.number = number;
    made.requested = 10;
    made.begins = 20;
    made.ends = 30;
    made.taskId = 1;
    made.planId = 1;
    made.plan = samplePlan(1, 1);
    made.askedBy = QStringLiteral("desk@hall");
    return made;
}

inline mediadispatch::MirrorState state(const char* identity, qint64 effect, qint64 catalogue)
{
    mediadispatch::MirrorState made;
    made.identity = QString::fromLatin1(identity);
    made.effect = effect;
    made.catalogue = catalogue;
    return made;
}

/// Everything about a schedule with so many tasks and programs.
inline mediadispatch::MirrorNews whole(mediadispatch::MirrorState to, int tasks, int programs)
{
    mediadispatch::MirrorNews news;
    news.effect = effect(tasks, to.effect);
    news.catalogue = catalogue(programs);
    news.to = std::move(to);
    return news;
}

} // namespace trel::tests
