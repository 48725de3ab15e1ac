#include "versions/VersionWords.h"

#include "DateWords.h"
#include "common/DisplayText.h"
#include "common/ListText.h"
#include "versions/DifferenceWords.h"

#include <QDateTime>
#include <QStringList>

using namespace trel::mediadispatch;

namespace trel::desktop::versions {

namespace {

/// A prompt does not scroll.
constexpr int kMostNames = 8;
constexpr int kMostColumns = 40;

} // namespace

QString VersionWords::state(const ScheduleState& state)
{
    switch (state.kind) {
    case ScheduleState::Version:
        return version(state.number);
    case ScheduleState::InEffect:
        return tr("What is in effect");
    case ScheduleState::Saved:
        break;
    }
    return tr("What is saved");
}

QString VersionWords::saved(const ScheduleVersion& version, const QTimeZone& zone)
{
    return version.saved == 0
               ? tr("not known")
               : dateAndTimeText(QDateTime::fromMSecsSinceEpoch(version.saved, zone));
}

QString VersionWords::change(const ScheduleVersion& version)
{
    const VersionChange& change = version.change;
    QStringList parts;
    const auto add = [&parts](const QString& form, int number) {
        if (number > 0) {
            parts.append(form.arg(number));
        }
    };
    add(tr("new: %1"), change.added);
    add(tr("changed: %1"), change.changed);
    add(tr("deleted: %1"), change.removed);
    if (parts.isEmpty()) {
        return version.saved == 0 ? QString() : tr("nothing of note");
    }
    QStringList ids;
    for (const int id : change.taskIds) {
        ids.append(QString::number(id));
    }
    if (change.added + change.changed + change.removed > ids.size()) {
        ids.append(QStringLiteral("…"));
    }
    const QString text = tr("%1 (tasks %2)", "what a save changed, and in which tasks")
                             .arg(hosts::ListText::joined(parts), hosts::ListText::joined(ids));
    return version.restored == kNoVersion
               ? text
               : tr("version %1 restored: %2").arg(QString::number(version.restored), text);
}

QString VersionWords::choice(const ScheduleVersion& version, const QTimeZone& zone)
{
    const QString number = QString::number(version.number);
    const QString moment = saved(version, zone);
    return version.name.isEmpty()
               ? tr("Version %1 – %2", "a version, and when it was saved").arg(number, moment)
               : tr("Version %1 – %2 – %3", "a version, when it was saved, and its name")
                     .arg(number, moment, hosts::shortened(version.name, kMostColumns));
}

QString VersionWords::count(int differences)
{
    return differences == 0 ? tr("Nothing differs.") : tr("%n differences", nullptr, differences);
}

QString VersionWords::restoring(qint64 number, const std::map<int, std::string>& lost,
                                bool isUnsaved)
{
    QStringList lines = {
        tr("Restore version %1? What is saved now stays as a version, so that it can be restored "
           "in turn.")
            .arg(number)};
    if (!lost.empty()) {
        QStringList names;
        for (const auto& [index, name] : lost) {
            if (names.size() == kMostNames) {
                names.append(QStringLiteral("…"));
                break;
            }
            names.append(DifferenceWords::shown(name));
        }
        lines.append(tr("%n of its programs are no longer in the catalog. Their entries will be "
                        "invalid: %1",
                        nullptr, static_cast<int>(lost.size()))
                         .arg(hosts::ListText::joined(names)));
    }
    if (isUnsaved) {
        lines.append(tr("The schedule in the editor has changes that are not saved."));
    }
    return lines.join(QStringLiteral("\n\n"));
}

} // namespace trel::desktop::versions
