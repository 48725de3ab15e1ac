#pragma once

#include "follow/NewestWork.h"
#include "look/ThemeColours.h"
#include "service/ScheduleRecords.h"
#include "trelprogramschedule/history/ScheduleVersion.h"
#include "trelprogramschedule/store/StoreResult.h"
#include "versions/ScheduleState.h"

#include <QDialog>

#include <map>
#include <optional>
#include <vector>

class QComboBox;
class QLabel;
class QPushButton;
class QSplitter;
class QTableView;

namespace trel::mediadispatch {
class scheduleControlUI;
}

namespace trel::desktop::versions {

class ComparisonPanel;
class VersionModel;

/// The states of the schedule that were saved, with what differs from one to another beside them. A
/// state can get a name, can be restored, and can be written to a file. All is read and compared in
/// another thread, and again whenever somebody has saved.
class VersionsWindow : public QDialog
{
    Q_OBJECT

public:
    /// The editor outlives the window.
    VersionsWindow(mediadispatch::scheduleControlUI& editor, QWidget* parent);
    ~VersionsWindow() override;

    /// Reads everything again, from the store that is open now.
    void readAgain();
    void setColours(const look::ThemeColours& colours);
    /// Takes texts and dates from the language in use, which is that of the locale.
    void setLanguage(const QLocale& locale);

    /// The number of the version that is chosen.
    std::optional<qint64> chosen() const;

signals:
    /// The schedule is about to be replaced: what is half typed is to be taken in now.
    void aboutToReplace();
    /// The schedule was replaced; the editor is to show it.
    void replaced();

protected:
    void showEvent(QShowEvent* event) override;

private:
    QPushButton* addButton(const char* name);
    void build();
    void connectControls();
    void followStore();
    void takeVersions(const mediadispatch::StoreResult& result,
                      std::vector<mediadispatch::ScheduleVersion> versions);
    void choose(qint64 number);
    void fillStates();
    ScheduleState other() const;
    void compare();
    void tellList();
    /// The tasks of a version, as they are shown or read anew; false, with a notice, where they
    /// cannot be read.
    bool readVersion(qint64 number, std::map<int, mediadispatch::PlayTask>& tasks) const;

    void nameChosen();
    void restoreChosen();
    void writeChosen();

    mediadispatch::scheduleControlUI& m_editor;
    VersionModel* m_model;
    QTableView* m_table;
    QLabel* m_summary;
    QPushButton* m_name;
    QPushButton* m_restore;
    QPushButton* m_write;
    QLabel* m_otherLabel;
    QComboBox* m_other;
    QPushButton* m_swap;
    ComparisonPanel* m_panel;

    bool m_isTaking = false; ///< Choices are being put back where they were.
    bool m_isReading = false;
    mediadispatch::StoreResult m_result; ///< Of the list.
    follow::NewestWork m_reading;
    follow::NewestWork m_comparing;
};

} // namespace trel::desktop::versions
