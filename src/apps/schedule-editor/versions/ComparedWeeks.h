#pragma once

#include "follow/NewestWork.h"
#include "look/ThemeColours.h"
#include "versions/StateComparison.h"

#include <QWidget>

#include <memory>

class QLabel;
class QTableView;

namespace trel::desktop::week {
class WeekPair;
}

namespace trel::desktop::look {
class ProgramSignDelegate;
}

namespace trel::desktop::versions {

class StretchModel;

/// The same week of two states side by side, and below in which stretches of time it differs on the
/// screen.
class ComparedWeeks : public QWidget
{
    Q_OBJECT

public:
    explicit ComparedWeeks(QWidget* parent = nullptr);
    ~ComparedWeeks() override;

    /// Null for none.
    void setComparison(const std::shared_ptr<const StateComparison>& comparison);
    /// The first day of the week that is shown.
    QDate firstDay() const;
    void setColours(const look::ThemeColours& colours);
    /// Takes texts and dates from the language again.
    void setLanguage(const QLocale& locale);

private:
    void build();
    void findStretches();
    void tellStretches();
    void updateNames();

    week::WeekPair* m_weeks;
    StretchModel* m_model;
    QTableView* m_table;
    look::ProgramSignDelegate* m_signs;
    QLabel* m_summary;

    std::shared_ptr<const StateComparison> m_comparison;
    bool m_isFinding = false;
    follow::NewestWork m_work;
};

} // namespace trel::desktop::versions
