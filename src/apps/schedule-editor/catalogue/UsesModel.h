#pragma once

#include "catalogue/ProgramLookup.h"

#include <QAbstractTableModel>
#include <QLocale>

namespace trel::desktop {

/// The plans that play a program, a row each, in the language in use.
class UsesModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { TaskColumn, ValidColumn, PlanColumn, DaysColumn, TimeColumn, ColumnCount };

    explicit UsesModel(QObject* parent = nullptr);

    void show(const LookupAnswer& answer);
    /// Days have their names in this language.
    void retranslate(const QLocale& locale);
    /// The plan of a row that there is.
    const trel::mediadispatch::ProgramUse& use(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    QVariant text(const trel::mediadispatch::ProgramUse& use, int column) const;

    LookupAnswer m_answer;
    QLocale m_locale;
};

} // namespace trel::desktop
