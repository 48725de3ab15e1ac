#pragma once

#include "look/ThemeColours.h"
#include "versions/StateComparison.h"

#include <QWidget>

#include <memory>

class QLabel;
class QTabWidget;
class QTableView;

namespace trel::desktop::look {
class ProgramSignDelegate;
}

namespace trel::desktop::versions {

class DifferenceModel;
class ComparedWeeks;

/// In what two states differ: in words, and on the screen.
class ComparisonPanel : public QWidget
{
    Q_OBJECT

public:
    explicit ComparisonPanel(QWidget* parent = nullptr);

    /// What stands in the place of a comparison.
    enum class Without {
        Nothing,         ///< There is nothing to compare.
        OnItsWay,        ///< It is being made.
        NothingInEffect, ///< One of the two states is what is in effect, and nothing is.
    };
    void clear(Without reason);
    /// Shows one, or why it could not be made. Never null.
    void setComparison(std::shared_ptr<const StateComparison> comparison);

    /// What is shown, or was not made; null while there is none.
    std::shared_ptr<const StateComparison> comparison() const;
    /// The tasks of a version that is one of the two states. Null where it is not; valid until
    /// another comparison is shown.
    const week::WeekSchedule::Tasks* tasksOf(qint64 version) const;

    /// The first day of the week that is shown.
    QDate firstDay() const;
    void setColours(const look::ThemeColours& colours);
    /// Takes texts and dates from the language again.
    void setLanguage(const QLocale& locale);

private:
    void show(const std::shared_ptr<const StateComparison>& comparison);
    void tellHeadline();

    QLabel* m_headline;
    QTabWidget* m_tabs;
    DifferenceModel* m_model;
    QTableView* m_table;
    look::ProgramSignDelegate* m_signs;
    ComparedWeeks* m_weeks;
    Without m_without = Without::Nothing;
    std::shared_ptr<const StateComparison> m_comparison;
};

} // namespace trel::desktop::versions
