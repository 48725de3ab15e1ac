#pragma once

#include "asrun/AsRunDay.h"
#include "follow/NewestWork.h"

#include <QDialog>

#include <optional>

class QCheckBox;
class QComboBox;
class QDateEdit;
class QLabel;
class QPushButton;
class QTableView;

namespace trel::desktop {

namespace look {
struct ThemeColours;
class ProgramSignDelegate;
} // namespace look

class AsRunModel;

/// What was on a screen on a day, beside what was planned for it. It is read in another thread,
/// when the window comes up and when another screen or day is chosen.
class AsRunWindow : public QDialog
{
    Q_OBJECT

public:
    explicit AsRunWindow(QWidget* parent);
    ~AsRunWindow() override;

    /// Shows the records beside this store; the same one is read again.
    void setStore(const QString& store);
    /// The colours by which programs are known in the week.
    void setColours(const look::ThemeColours& colours);

protected:
    void changeEvent(QEvent* event) override;

private:
    QPushButton* addButton(const char* name, const QString& sign);
    void build();
    void connectControls();
    void retranslate();
    void read();
    void take(AsRunDay day);
    void offer(const AsRunDay& day);
    void tellSummary();

    AsRunModel* m_model;
    QComboBox* m_screens;
    QPushButton* m_former;
    QDateEdit* m_date;
    QPushButton* m_next;
    QCheckBox* m_onlyDeviations;
    QLabel* m_screenLabel;
    QLabel* m_dayLabel;
    QTableView* m_table;
    look::ProgramSignDelegate* m_signs;
    QLabel* m_summary;

    QString m_store;
    std::optional<AsRunDay> m_day; ///< That the window shows, without its lines.
    follow::NewestWork m_work;
};

} // namespace trel::desktop
