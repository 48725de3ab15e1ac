#pragma once

#include <QDockWidget>

class QListView;

namespace trel::desktop::undo {

class EditHistory;
class HistoryModel;

/// The list of the operator's steps as a part of the host's window. A click, or the arrows of the
/// keyboard, goes to a step. Hidden until it is asked for.
class HistoryDock : public QDockWidget
{
    Q_OBJECT

public:
    /// The history outlives the dock.
    HistoryDock(EditHistory& history, QWidget* parent);

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslate();
    void update();
    void goToCurrent();

    EditHistory& m_history;
    HistoryModel* m_model;
    QListView* m_list;
};

} // namespace trel::desktop::undo
