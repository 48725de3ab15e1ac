#pragma once

#include "catalogue/ProgramLookup.h"

#include <QDialog>

class QLabel;
class QTableView;

namespace trel::desktop {

namespace look {
struct ThemeColours;
}

class ProgramName;
class UsesModel;

/// The plans that play a program, and when the screen shows it next. Follows the edits while it is
/// on show.
class UsesWindow : public QDialog
{
    Q_OBJECT

public:
    explicit UsesWindow(QWidget* parent);

    /// Looks a program up, and names it.
    void setProgram(int progIndex);
    /// The colours by which programs are known in the week.
    void setColours(const look::ThemeColours& colours);

signals:
    /// A plan was chosen with a double click, or with Enter.
    void planAsked(int taskId, int planId);

protected:
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void build();
    void ask();
    void take(const LookupAnswer& answer);
    void tell();
    void retranslate();
    void askPlan(const QModelIndex& index);

    UsesModel* m_model;
    ProgramName* m_summary;
    QTableView* m_table;
    QLabel* m_next;
    ProgramLookup* m_lookup;
    LookupAnswer m_answer;
    int m_program = -1;
    QString m_name;
};

} // namespace trel::desktop
