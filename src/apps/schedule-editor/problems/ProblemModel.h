#pragma once

#include "problems/ProblemWork.h"

#include <QAbstractTableModel>

#include <vector>

namespace trel::desktop {

/// The problems of a schedule, the gravest and earliest on top, in the language in use. Rows that
/// an edit does not concern stay.
class ProblemModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column {
        PlaceColumn,  ///< With the sign of its gravity.
        DateColumn,   ///< The first day.
        WrongColumn,  ///< What is wrong.
        RemedyColumn, ///< What to do.
        ColumnCount
    };

    explicit ProblemModel(QObject* parent = nullptr);
    ~ProblemModel() override;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// The problem of a row. Valid until the next change.
    const mediadispatch::ScheduleProblem& problem(int row) const;

    /// Takes changes over; costs what has changed, and for each row that comes or goes a step for
    /// the rows behind it, which is all that a list of rows is.
    void take(const ProblemChanges& changes);
    /// All texts are to be asked for again; the locale has the names of the days.
    void retranslate(const QLocale& locale);

private:
    using List = mediadispatch::ProblemSearch::List;
    using Row = const mediadispatch::ScheduleProblem*;

    static QString gravityName(mediadispatch::ProblemGravity gravity);
    void takeWhole(const ProblemChanges& changes);
    void takeList(int taskId, const List& list);
    void insertRow(Row problem);
    std::vector<Row>::iterator find(Row problem);

    QLocale m_locale;
    std::map<int, List> m_lists;
    std::vector<Row> m_rows; ///< They lie in the lists.
};

} // namespace trel::desktop
