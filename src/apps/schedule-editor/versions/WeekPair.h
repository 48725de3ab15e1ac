#pragma once

#include "follow/NewestWork.h"
#include "look/ThemeColours.h"
#include "versions/StateComparison.h"

#include <QWidget>

#include <memory>

class QBoxLayout;
class QLabel;
class QPushButton;
class QTableView;

namespace trel::desktop::week {
class WeekView;
}

namespace trel::desktop::versions {

class StretchModel;

/// The same week of two states side by side, and below in which stretches of time it differs on the
/// screen. Both pictures show the same week, hours of the same height and the same place.
class WeekPair : public QWidget
{
    Q_OBJECT

public:
    explicit WeekPair(QWidget* parent = nullptr);
    ~WeekPair() override;

    /// Null for none.
    void setComparison(const std::shared_ptr<const StateComparison>& comparison);
    /// The first day of the week that is shown.
    QDate firstDay() const;
    void setColours(const look::ThemeColours& colours);
    /// Takes texts and dates from the language again.
    void setLanguage(const QLocale& locale);

private:
    QPushButton* addButton(const char* name, const QString& sign);
    QBoxLayout* side(QLabel* title, week::WeekView* view);
    void build();
    void findStretches();
    void tellStretches();
    void updateTitles();

    week::WeekView* m_former;
    week::WeekView* m_later;
    QLabel* m_formerTitle;
    QLabel* m_laterTitle;
    QPushButton* m_back;
    QPushButton* m_now;
    QPushButton* m_next;
    QLabel* m_week;
    StretchModel* m_model;
    QTableView* m_table;
    QLabel* m_summary;

    std::shared_ptr<const StateComparison> m_comparison;
    bool m_isFinding = false;
    follow::NewestWork m_work;
};

} // namespace trel::desktop::versions
