#pragma once

#include "trelprogramschedule/merge/ScheduleMerge.h"

#include <QDialog>

#include <map>

class QBoxLayout;
class QLabel;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;
class QTableWidget;

namespace trel::desktop::merge {

/// Shows the tasks that were changed at both desks, what each desk has made of them side by side in
/// words, and has the operator take one or the other for each. Enter goes back, and nothing is
/// chosen beforehand.
class ConflictsDialog : public QDialog
{
    Q_OBJECT

public:
    using Programs = std::map<int, trel::mediadispatch::ProgramIten>;
    using Choices = trel::mediadispatch::ScheduleMerge::Choices;

    /// With at least one conflict. The choices are those of an earlier question about the same
    /// merge. The merge outlives the dialog.
    ConflictsDialog(const trel::mediadispatch::ScheduleMerge& merge, const Programs& programs,
                    Choices choices, QWidget* window);

    /// Blocks until it is answered. True when all are chosen and are to be merged.
    bool ask();
    /// What is chosen, merged or not.
    const Choices& choices() const { return m_choices; }

private:
    /// One of the two states of the task that is looked at.
    struct Side
    {
        QRadioButton* take = nullptr;
        QPlainTextEdit* lines = nullptr;
    };

    void buildTable();
    QBoxLayout* buildSide(Side& side, trel::mediadispatch::MergeSide which, const QString& text);
    void buildButtons(QBoxLayout& layout);
    /// Shows the task of a row.
    void showTask(int row);
    /// Takes one of the two for all tasks that are selected.
    void choose(trel::mediadispatch::MergeSide side);
    void showChoice(int row);
    /// Tells what is still to be done, and whether it can be merged.
    void tellOutlook();
    int taskOf(int row) const;

    const trel::mediadispatch::ScheduleMerge& m_merge;
    const Programs m_programs;
    Choices m_choices;
    QTableWidget* m_table = nullptr;
    Side m_mine;
    Side m_theirs;
    QLabel* m_outlook = nullptr;
    QPushButton* m_mergeButton = nullptr;
};

} // namespace trel::desktop::merge
