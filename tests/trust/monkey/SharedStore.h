#pragma once

#include "DeskProcess.h"
#include "Dice.h"

#include <QSet>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>
#include <vector>

/// Several editors and consoles on one database, and what has to stand in it.
class SharedStore
{
public:
    explicit SharedStore(int desks);

    /// Lets one of them do something, or two at once, and looks at what stands in the store then.
    void step(Dice& dice);

private:
    void edit(Dice& dice, DeskProcess& desk);
    void refresh(DeskProcess& desk);
    void save(DeskProcess& desk);
    void saveAtOnce(DeskProcess& first, DeskProcess& second);
    void killInSave(Dice& dice, DeskProcess& desk);
    void importSchedule(Dice& dice, bool isKilled);
    void exportSchedule();
    void importPrograms(Dice& dice, bool isKilled);
    void removeProgram(Dice& dice);

    /// What an editor was answered, as the model has it.
    void takeSave(DeskProcess& desk, const DeskProcess::Answer& answer, bool wasCurrent);
    /// A change that may have come to its end, or not at all.
    void takeEither(const Tasks& changed);
    void changed(const Tasks& tasks);
    /// Nothing has been written since its operator saw the store.
    bool isCurrent(const DeskProcess& desk) const;
    void sees(DeskProcess& desk) const;

    struct Output
    {
        int status = -1;
        QByteArray out;
    };
    Output console(const QStringList& arguments, int killAfterMSecs = -1) const;
    Tasks stored() const;
    QStringList programs() const;
    void compare(const char* when) const;
    Tasks randomTasks(Dice& dice) const;

    QTemporaryDir m_folder;
    QString m_database;
    QStringList m_media;
    std::vector<std::unique_ptr<DeskProcess>> m_desks;
    Tasks m_tasks;
    QStringList m_programs;
    QSet<QString> m_removed;
    int m_changes = 0;
    /// Those among them that may have written the same again, which the store counts too.
    int m_writes = 0;
};
