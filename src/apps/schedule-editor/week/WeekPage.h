#pragma once

#include <QWidget>

class QLabel;

namespace trel::desktop {

class Languages;
class Themes;

namespace follow {
class EditedSchedule;
}

namespace year {
class YearStrip;
}

namespace week {

class WeekLegend;
class WeekPanel;

/// The middle of the host's window: a strip of the year, the picture of a week with its controls,
/// what its colours mean, and why the selected block is on screen or is not. In the language and
/// the theme of the host.
class WeekPage : public QWidget
{
    Q_OBJECT

public:
    /// All of these outlive the page.
    WeekPage(follow::EditedSchedule& edited, const Languages& languages, const Themes& themes,
             QWidget* parent);

    WeekPanel* panel() const { return m_panel; }

signals:
    /// The operator wants to get to a plan.
    void activated(int taskId, int planId);

protected:
    void changeEvent(QEvent* event) override;

private:
    void build();
    void retranslate();
    void explain();
    /// What to do while no block is selected.
    QString advice() const;
    void takeFont();

    year::YearStrip* m_year;
    WeekPanel* m_panel;
    QLabel* m_reason;
    WeekLegend* m_legend;
};

} // namespace week

} // namespace trel::desktop
