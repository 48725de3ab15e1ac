#pragma once

#include "trelprogramschedulewidgets_export.h"
#include "trelwidgets/Dialog.h"

#include <QElapsedTimer>
#include <QMenu>
#include <QPointer>

#include <vector>

class QKeyEvent;
class QVBoxLayout;

namespace trel::mediadispatch {

class TitleBar;
class centerWidget;

/// The schedule editor: the one window through which a host reaches it.
///
/// The window holds no schedule. It reads and writes the service behind scheduleManage, which must
/// be usable before the window is built. The host keeps the object: closing hides it, and
/// slotShow() shows it again. In order, and on the GUI thread, a host
///
/// 1. builds the window,
/// 2. calls setCheckBoxImagePath(),
/// 3. calls loadLanguageFiles() with every language file, which also selects "zh_CN",
/// 4. calls switchLanguage() for another language,
/// 5. calls translate(), now and after every switchLanguage() to come,
/// 6. calls slotShow(), a second or more after the window was built,
/// 7. calls clearAndInitialize() whenever the stored schedule was replaced from outside.
///
/// A process has one working set, and so one editor at work. While one is visible, slotShow() of
/// another raises that one, with a warning on the debug stream, and shows nothing; and
/// clearAndInitialize() of another is that of the visible one. An editor that is shown after
/// another one reads the list again in any case.
class TRELPROGRAMSCHEDULEWIDGETS_EXPORT scheduleControlUI : public widgets::Dialog
{
    Q_OBJECT

public:
    /// Builds the window, hidden and without cards.
    explicit scheduleControlUI(QWidget* parent = nullptr);
    ~scheduleControlUI() override;

    /// Drops the cards and everything that was not saved, and reads the stored schedule.
    void clearAndInitialize();
    /// Loads language files, in order, and selects "zh_CN". A file that cannot be loaded is
    /// skipped.
    void loadLanguageFiles(const std::vector<QString>& files) const;
    /// Selects the language of all texts that are fetched from now on. No text on screen changes
    /// before translate().
    void switchLanguage(const QString& language) const;
    /// Fetches the title and the texts of the panel and of every card again.
    void translate();
    /// Where the images of a check mark lie. They hold for the cards and choosers that are built
    /// after this call, in the whole process. A mark whose image cannot be loaded is drawn.
    void setCheckBoxImagePath(const QString& checkedPath, const QString& uncheckedPath) const;
    /// Has no effect. The service is never owned here, so there is nothing to let go of; hosts may
    /// call it before they close their service.
    void unsetScheduleManage() const;

Q_SIGNALS:
    /// The list of cards is to be read again.
    void signalUpdatePlanList();
    /// The list of cards is to be emptied.
    void sigclearPlanList();
    /// For hosts that drive a language choice by index. Nothing in the window listens to it.
    void signalTranslationByQz7(int);

public Q_SLOTS:
    /// Closes the window, which hides it. What was not saved goes with the next refresh.
    void slotCancel();
    /// Saves the schedule and closes the window.
    void slotSave();
    /// Saves the schedule and puts it into effect. The window stays.
    void slotStart() const;
    /// Shows a hidden window and reads the list again if asked to. Does nothing to a visible one,
    /// and nothing at all less than a second after the window was built or the last call that was
    /// accepted.
    void slotShow(bool bUpdatePlanList);
    /// Shows a hidden window and reads the list again.
    void slotShow();
    /// Shows one task as the working set has it now, for a host that edits that set by itself: its
    /// card is built anew, in its place and folded or open as it was; a task that has none gets
    /// one, and the card of a task that is no more goes. What is half typed in the card is dropped.
    /// To be called when the service has done with the edit, not from within a call of it. Works
    /// hidden as well; while the list is being read again it does nothing, as there is nothing left
    /// to do.
    void slotShowTask(int taskId);
    /// Leads the operator to one plan: its card is unfolded and in sight, its row in the table as
    /// well, and marked by being selected, which the row of the former call is no more. The field
    /// of its start has the focus, or else another one of the row; what is half typed elsewhere is
    /// taken over, as always when a field loses the focus.
    ///
    /// A hidden editor is shown for it as by slotShow(): it reads the stored schedule again, and it
    /// stays hidden in the second in which slotShow() shows nothing. A visible one is raised, and
    /// brought back if it is minimized; it keeps what is not saved. Does nothing when a visible
    /// editor has no such row. A hidden one is shown all the same when the stored schedule has no
    /// such plan, and leads to none. Of plans that share an id it is the first.
    ///
    /// Works while a prompt stands over the editor, and behind it. While the list is being read
    /// again it waits until that is done; of several such calls the last one counts. To be called
    /// from no call of the service.
    void slotShowPlan(int taskId, int planId);

protected:
    /// Escape is left to the parent of the window: it never closes a schedule in work.
    void keyPressEvent(QKeyEvent* event) override;

private:
    void connectAll();
    bool isLocked() const;
    void bringToFront();

    QMenu m_menu;
    // The frame brings the title bar of the window; this place for another stays empty.
    TitleBar* m_titleBar = nullptr;
    QPointer<centerWidget> m_centerWidget;
    QVBoxLayout* m_layout = nullptr;
    QElapsedTimer m_showTimer;
};

} // namespace trel::mediadispatch
