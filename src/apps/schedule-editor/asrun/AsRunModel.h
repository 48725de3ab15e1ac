#pragma once

#include "asrun/AsRunDay.h"
#include "trelprogramschedule/dispatch/MomentFormat.h"

#include <QAbstractTableModel>
#include <QLocale>

#include <vector>

namespace trel::desktop {

/// The lines of a day in a table, in the language in use.
class AsRunModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { FromColumn, ToColumn, PlannedColumn, ShownColumn, RemarkColumn, ColumnCount };

    explicit AsRunModel(QObject* parent);

    /// Moments are shown by the clocks of the zone, with the day where it is not this one.
    void setDay(std::vector<AsRunLine> lines, const QDate& date, const QTimeZone& zone);
    /// Leaves out what was as planned.
    void setOnlyDeviations(bool isOnly);
    /// Numbers are written as this language has them.
    void retranslate(const QLocale& locale);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString text(const AsRunLine& line, int column) const;
    void choose();

    std::vector<AsRunLine> m_lines;
    std::vector<std::size_t> m_rows; ///< The lines that are shown.
    QDate m_date;
    mediadispatch::MomentFormat m_local;
    bool m_isOnlyDeviations = false;
    QLocale m_locale;
};

} // namespace trel::desktop
