#include "TaskJson.h"

#include "JsonValues.h"

#include <utility>

namespace trel::mediadispatch {

namespace {

using Schedule = std::map<int, PlayTask>;

constexpr std::string_view kTaskKey = "key";

constexpr JsonWord kModeWords[] = {{TimeMode, "time"}, {FrequencyMode, "frequency"}};
constexpr JsonWord kEndActionWords[] = {{BlackScreen, "black"}, {FreezeCurrentFrame, "freeze"}};

constexpr JsonMember<struProgInfo> kEntryMembers[] = {
    jsonField<&struProgInfo::progIndex>("progIndex"),
    jsonField<&struProgInfo::progName>("progName"),
    jsonField<&struProgInfo::playCount>("playCount"),
    jsonField<&struProgInfo::isInvalid>("isInvalid"),
};

constexpr JsonMember<PlayPlan> kPlanMembers[] = {
    jsonField<&PlayPlan::id>("id"),
    jsonWordField<&PlayPlan::mode, kModeWords>("mode"),
    jsonField<&PlayPlan::weeks>("weeks"),
    jsonField<&PlayPlan::startTime>("startTime"),
    jsonField<&PlayPlan::endTime>("endTime"),
    jsonField<&PlayPlan::times>("times"),
    jsonWordField<&PlayPlan::endAction, kEndActionWords>("endAction"),
    jsonField<&PlayPlan::programs>("programs"),
    jsonField<&PlayPlan::hasNoDuration>("hasNoDuration"),
    jsonField<&PlayPlan::isConflict>("isConflict"),
    jsonField<&PlayPlan::serviceCount>("serviceCount"),
    jsonField<&PlayPlan::serviceList>("serviceList"),
    jsonField<&PlayPlan::serviceTime>("serviceTime"),
    jsonField<&PlayPlan::serviceFlagA>("serviceFlagA"),
    jsonField<&PlayPlan::serviceFlagB>("serviceFlagB"),
};

constexpr JsonMember<PlayTask> kTaskMembers[] = {
    jsonField<&PlayTask::id>("id"),
    jsonField<&PlayTask::startDate>("startDate"),
    jsonField<&PlayTask::endDate>("endDate"),
    jsonField<&PlayTask::plans>("plans"),
};

PlayTask readTask(const JsonValue& value)
{
    PlayTask task;
    readRecord(value, task, kTaskMembers, kTaskKey);
    if (const JsonValue* const member = value.member(kTaskKey)) {
        int key = 0;
        readValue(*member, key);
        if (key != task.id) {
            refuse(value, faultOf(FaultCode::KeyIsNotId, key, task.id));
        }
    }
    return task;
}

} // namespace

JsonValue writeValue(const struProgInfo& entry)
{
    return writeRecord(entry, kEntryMembers);
}

void readValue(const JsonValue& value, struProgInfo& entry)
{
    readRecord(value, entry, kEntryMembers);
}

JsonValue writeValue(const PlayPlan& plan)
{
    return writeRecord(plan, kPlanMembers);
}

void readValue(const JsonValue& value, PlayPlan& plan)
{
    readRecord(value, plan, kPlanMembers);
}

JsonValue writeTasks(const Schedule& tasks)
{
    JsonValue array = jsonValue(JsonValue::Kind::Array);
    array.children.reserve(tasks.size());
    for (const auto& [key, task] : tasks) {
        JsonValue& written = array.children.emplace_back(writeRecord(task, kTaskMembers));
        if (key != task.id) {
            addMember(written, kTaskKey, writeValue(key));
        }
    }
    return array;
}

void readTasks(const JsonValue& array, Schedule& tasks)
{
    expect(array, JsonValue::Kind::Array);
    std::map<int, std::size_t> places;
    for (std::size_t place = 0; place < array.children.size(); ++place) {
        PlayTask task = readTask(array.children[place]);
        const int id = task.id;
        const auto [known, isNew] = places.emplace(id, place);
        if (!isNew) {
            refuse(array.children[place], faultOf(FaultCode::IdTaken, id, known->second));
        }
        tasks.emplace_hint(tasks.end(), id, std::move(task));
    }
}

} // namespace trel::mediadispatch
