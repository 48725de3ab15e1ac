#pragma once

#include "service/ScheduleRecords.h"

#include <QAbstractTableModel>

#include <vector>

namespace trel::desktop {

/// The programs of the catalogue, a row each, in the order of their indexes.
class ProgramTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { IndexColumn, NameColumn, KindColumn, LengthColumn, PathColumn, ColumnCount };

    enum Role {
        ProgramIndexRole = Qt::UserRole, ///< int
        MissingRole,                     ///< bool: the file has gone.
    };

    explicit ProgramTableModel(QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QStringList mimeTypes() const override;
    /// The programs of the rows, each once, in the order of the rows; see ProgramDrag.
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    Qt::DropActions supportedDragActions() const override;

    /// Takes over the catalogue as it stands in the service now. Selections stay where the programs
    /// are the same and only tell something else of themselves, such as that their file has gone.
    void reload();
    /// Shows captions and kinds in the language in use now; rows and selections stay.
    void retranslate();

private:
    QVariant text(const trel::mediadispatch::ProgramIten& program, int column) const;

    std::vector<trel::mediadispatch::ProgramIten> m_programs;
};

} // namespace trel::desktop
