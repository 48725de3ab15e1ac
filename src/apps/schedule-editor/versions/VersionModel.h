#pragma once

#include "trelprogramschedule/history/ScheduleVersion.h"

#include <QAbstractTableModel>
#include <QTimeZone>

#include <vector>

namespace trel::desktop::versions {

/// The states that were saved, the newest first, a row for each.
class VersionModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column {
        NumberColumn,
        SavedColumn,
        ByColumn,
        ChangeColumn,
        NameColumn,
        NoteColumn,
        ColumnCount,
    };

    explicit VersionModel(QObject* parent = nullptr);

    /// The moments are told by the clock of the zone.
    void setVersions(std::vector<trel::mediadispatch::ScheduleVersion> versions,
                     const QTimeZone& zone);
    const std::vector<trel::mediadispatch::ScheduleVersion>& versions() const { return m_versions; }
    const QTimeZone& zone() const { return m_zone; }
    /// The row of a version by its number; -1 where it is not there.
    int rowOf(qint64 number) const;
    /// Takes texts from the language again.
    void retranslate();

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString text(const trel::mediadispatch::ScheduleVersion& version, int column) const;

    std::vector<trel::mediadispatch::ScheduleVersion> m_versions;
    QTimeZone m_zone;
};

} // namespace trel::desktop::versions
