#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

#include <vector>

/// The check marks of a table and the order in which they were set, worked out one row and one step
/// at a time: the slow and plain way that the quick one is held against.
class StepwiseChecks
{
public:
    explicit StepwiseChecks(int rowCount);

    /// A row has got or lost its mark.
    void checkRow(int row, bool check);
    /// The header has got or lost its mark.
    void checkAll(bool check);

    int count() const { return m_count; }
    const QMap<int, int>& places() const { return m_places; }
    bool headerChecked() const { return m_header; }
    /// "02*" for a checked row that shows 02, "" for a row with neither mark nor number.
    QStringList lines() const;

private:
    struct Row
    {
        bool checked = false;
        QString number;
    };

    void updateOrder(int row, bool check);

    std::vector<Row> m_rows;
    QMap<int, int> m_places;
    int m_count = -1;
    bool m_header = false;
};
