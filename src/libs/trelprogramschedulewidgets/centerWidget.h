#pragma once

#include <QWidget>

#include <memory>

class PlanList;
class QLabel;

namespace trel::mediadispatch {

class CardKeyboard;

/// The content of the schedule window: the add button, the list of task cards and the row of
/// buttons that close, start and save.
///
/// No save and no start leaves the panel while the periods of two tasks overlap. For style sheets
/// its dynamic property "state" is "busy" while there is a task, and "default" otherwise.
class centerWidget : public QWidget
{
    Q_OBJECT

public:
    explicit centerWidget(QWidget* parent = nullptr);
    ~centerWidget() override;

    /// The list of cards, owned by the panel; null once somebody has destroyed it.
    PlanList* planList() const;

    /// True when no two tasks of the working set share a day of validity. Otherwise message names
    /// the pair that a walk in ascending id order meets first; it is left alone on true.
    bool checkTaskPeriods(QString& message) const;

signals:
    /// The operator wants to leave; nothing has been checked.
    void signalCancel();
    /// The operator wants to save, and the periods allow it.
    void signalSave();
    /// The operator wants to start the schedule, and the periods allow it.
    void signalStart();
    /// The texts of the panel are in the selected language now; the cards are to follow.
    void signalTranslation();

public slots:
    /// Cuts the add button off and shows that the list is loading. Each call is followed by one of
    /// slotCloseProcess, and none of that comes without a call before it: every
    /// slotCloseProcess adds a connection.
    void slotShowProcess();
    /// Makes the add button ready again.
    void slotCloseProcess();
    /// Takes over what is being typed, checks the periods, then emits signalSave or tells the
    /// operator what is in the way. Ends there when what was typed is refused.
    void slotSave();
    /// The same with signalStart.
    void slotStart();
    /// Fetches all texts of the panel in the selected language, then emits signalTranslation.
    void slotTranslation();
    /// Shows the hint for an empty list, or hides it, after the number of tasks.
    void slotGetMapCount(int count);

protected:
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    class Form;

    void setUpScrollArea();
    void setUpHint();
    void setUpButtons();
    void connectAll();
    void nameKeys();
    bool mayBeSaved();
    void noticeStyle(const QEvent& event);

    std::unique_ptr<Form> m_ui;
    QLabel* m_hintLabel = nullptr;
    std::unique_ptr<CardKeyboard> m_keyboard;
    bool m_isStyleChanging = false;
};

} // namespace trel::mediadispatch
