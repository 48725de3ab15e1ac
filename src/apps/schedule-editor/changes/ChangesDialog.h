#pragma once

#include "changes/ChangedWeeks.h"

#include <QDialog>
#include <QStringList>

class QPushButton;
class QVBoxLayout;

namespace trel::desktop::changes {

/// How many differences a question tells at most: nobody reads more.
constexpr int kMostLines = 500;

/// What is asked about changes of the schedule.
struct ChangesQuestion
{
    QString text;               ///< Plain text, of some lines.
    QString listTitle;          ///< What the list says.
    QStringList lines;          ///< What differs, a line each.
    ChangedWeeks::State former; ///< The two states that can be looked at.
    ChangedWeeks::State later;
    QStringList answers; ///< On the buttons. Enter chooses the first one.
};

/// A question about changes of the schedule, with what differs in words, and both states in the
/// picture of the week for whoever wants to look.
class ChangesDialog : public QDialog
{
    Q_OBJECT

public:
    /// Looks as the window does, in its language.
    ChangesDialog(const ChangesQuestion& question, const look::ThemeColours& colours,
                  QWidget* window);
    ~ChangesDialog() override;

    /// Blocks until it is answered: from 1 for the answers in their order, 0 for any other way out.
    int ask();

private:
    void build();
    void addAnswers();
    void showWeeks(bool areShown);

    const ChangesQuestion m_question;
    const look::ThemeColours m_colours;
    QVBoxLayout* m_layout;
    QPushButton* m_look;
    ChangedWeeks* m_weeks = nullptr; ///< Once they have been asked for.
};

} // namespace trel::desktop::changes
