#pragma once

#include "Dice.h"
#include "TrialOptions.h"

#include "support/TestClock.h"

#include <QElapsedTimer>
#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QStringList>

#include <memory>

class Desk;
class QFileDialog;

/// Works the windows of a desk at random, and looks after each action whether what has to hold
/// holds. At last it ends the program in one of the ways that there are, and sees it end.
class Monkey : public QObject
{
    Q_OBJECT

public:
    Monkey(Desk& desk, TestClock& clock, const TrialOptions& options, const QString& folder,
           int actions);

    void start();

private:
    /// One turn: looks, and acts. What it does may run event loops, and turns within them.
    void takeTurn();
    void look();
    void act(Dice& dice);
    void actInPrompt(Dice& dice, QWidget& prompt);
    void actInFileDialog(Dice& dice, QFileDialog& dialog);
    void actInWindows(Dice& dice);

    void click(Dice& dice, QWidget& widget);
    void letGo();
    void pressKey(Dice& dice);
    void typeNumber(Dice& dice);
    void turnWheel(Dice& dice);
    void dropFiles(Dice& dice);
    void openMenu(Dice& dice);
    void runAction(Dice& dice);
    void changeStore(Dice& dice);
    void changeHost(Dice& dice);
    void letTimePass(Dice& dice);

    void end(Dice& dice);
    void waitForEnd();
    void tellWhatKeepsIt();

    /// The window that the operator has before them.
    QWidget* front(Dice& dice) const;
    /// Something in it that can be pointed at; the window itself when there is nothing else.
    QWidget* target(Dice& dice) const;
    void runConsole(const QStringList& arguments);
    void writeSchedule(Dice& dice, const QString& file) const;

    Desk& m_desk;
    TestClock& m_clock;
    TrialOptions m_options;
    QString m_folder;
    QStringList m_media;
    int m_actionsLeft;
    int m_depth = 0;
    bool m_isEnding = false;
    int m_turnsAtEnd = 0; ///< Since no prompt stands any more.
    int m_promptsAtEnd = 0;
    int m_focusMisses = 0;
    QPointer<QWidget> m_held;
    QPoint m_heldPlace;
    Qt::MouseButton m_heldButton = Qt::LeftButton;
};
