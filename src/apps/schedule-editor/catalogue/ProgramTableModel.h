#pragma once

#include "catalogue/CatalogueRows.h"
#include "catalogue/ProgramColumns.h"

#include <QAbstractTableModel>

namespace trel::desktop {

/// Programs of the catalogue, a row each, in the order that they are handed over in.
class ProgramTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column {
        NameColumn = static_cast<int>(ProgramColumn::Name),
        FolderColumn = static_cast<int>(ProgramColumn::Folder),
        KindColumn = static_cast<int>(ProgramColumn::Kind),
        LengthColumn = static_cast<int>(ProgramColumn::Length),
        IndexColumn = static_cast<int>(ProgramColumn::Index),
        ColumnCount = kProgramColumns
    };

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

    /// Shows these programs of a catalogue. Selections stay where the programs are the same and
    /// only tell something else of themselves, such as that their file has gone.
    void show(const follow::SharedCatalogue& catalogue, const ProgramRows& rows);
    /// The program of a row that there is. Valid until show().
    const trel::mediadispatch::ProgramIten& program(int row) const;
    /// Shows captions and kinds in the language in use now; rows and selections stay.
    void retranslate();

private:
    static QVariant text(const trel::mediadispatch::ProgramIten& program, int column);

    follow::SharedCatalogue m_catalogue; ///< Owns what the rows speak of.
    ProgramRows m_rows;
};

} // namespace trel::desktop
