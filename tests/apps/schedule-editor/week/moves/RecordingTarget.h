#pragma once

#include "../WeekFixture.h"
#include "week/moves/EditTarget.h"

#include <map>
#include <memory>
#include <vector>

/// Keeps what is filed, and shows it as the host would.
class RecordingTarget : public trel::desktop::week::EditTarget
{
public:
    explicit RecordingTarget(trel::desktop::week::WeekView& view)
        : m_view(view)
    {}

    void set(std::vector<trel::mediadispatch::PlayPlan> plans)
    {
        for (trel::mediadispatch::PlayPlan& plan : plans) {
            if (plan.programs.empty()) {
                plan.programs = {entry(1), entry(2)};
            }
        }
        all = {{1, taskWithPlans(std::move(plans))}};
        show();
    }

    void show()
    {
        m_view.setSchedule(std::make_shared<trel::desktop::week::WeekSchedule>(
            all, weekfixture::catalogue(), trel::mediadispatch::ScreenInsertions(),
            weekfixture::berlin()));
    }

    trel::desktop::follow::SharedTask task(int taskId) const override
    {
        const auto found = all.find(taskId);
        return found == all.end()
                   ? nullptr
                   : std::make_shared<const trel::mediadispatch::PlayTask>(found->second);
    }
    std::map<int, trel::mediadispatch::PlayTask> tasks() const override { return all; }
    int tasksValidOn(const QDate&) const override { return static_cast<int>(all.size()); }
    std::shared_ptr<const trel::desktop::week::Programs> programs() const override
    {
        return std::make_shared<const trel::desktop::week::Programs>(weekfixture::catalogue());
    }
    void file(const trel::desktop::undo::TaskEdits& edits) override
    {
        filed.push_back(edits);
        for (const trel::desktop::undo::TaskEdit& edit : edits) {
            QVERIFY(*edit.before == all[edit.taskId]);
            all[edit.taskId] = *edit.after;
        }
        show();
    }

    std::map<int, trel::mediadispatch::PlayTask> all;
    std::vector<trel::desktop::undo::TaskEdits> filed;

private:
    trel::desktop::week::WeekView& m_view;
};
