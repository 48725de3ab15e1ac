#pragma once

#include <QWidget>

class QLabel;
class QPushButton;
class QTableView;

namespace trel::desktop {

class ProblemModel;

/// The list of problems, with what can be done about the one that is chosen.
class ProblemPanel : public QWidget
{
    Q_OBJECT

public:
    /// The model outlives the panel.
    ProblemPanel(ProblemModel& model, QWidget* parent);

    /// So many problems are seen at once; two while nothing else was asked for.
    QSize sizeHint() const override;
    /// How many problems the panel asks for the room of, at least one.
    void setRows(int rows);

    /// What a screen reader calls the list.
    void setListName(const QString& name);

signals:
    /// The operator wants to get to a plan, or to a task where the plan is -1.
    void activated(int taskId, int planId);
    /// The operator wants a plan that would go on after midnight to be made into two.
    void splitAsked(int taskId, int planId);

protected:
    void changeEvent(QEvent* event) override;

private:
    void activate();
    void split();
    void update();
    void retranslate();
    /// The row that is chosen; -1 for none.
    int current() const;

    ProblemModel& m_model;
    QTableView* m_table;
    QLabel* m_none;
    QPushButton* m_go;
    QPushButton* m_split;
    int m_rows = 2;
};

} // namespace trel::desktop
