#pragma once

#include <QTableView>
#include <QTimer>

#include <vector>

namespace trel::desktop {

class ProgramTableModel;

/// The table of the catalogue: keeps what is selected while rows come, go and change their places,
/// and tells which rows can be seen.
class ProgramTable : public QTableView
{
    Q_OBJECT

public:
    /// The model outlives the table.
    ProgramTable(ProgramTableModel& model, QWidget* parent);

    /// The rows that can be seen, whole or in part; none while the table cannot be seen.
    struct Sight
    {
        int first = 0;
        int last = -1; ///< Before the first: none.
    };
    Sight sight() const;

    /// The programs of the selected rows, in the order of the rows.
    std::vector<int> selectedPrograms() const;
    /// The program that the keyboard is at; -1 for none.
    int currentProgram() const;
    /// What an entry of the menus means by the program: the current one, or the first that is
    /// selected where no row is current, as a screen reader may select one. -1 without any.
    int meantProgram() const;
    /// Selects those of these programs that there are rows of, and nothing else. The keyboard goes
    /// to `current` where there is a row of it.
    void selectPrograms(std::vector<int> programs, int current);

    /// What is said where there are no rows.
    void setEmptyText(const QString& text);

signals:
    /// Other rows can be seen, or the same ones tell something else. Comes from the event loop,
    /// once for all that happens in one of its turns.
    void sightChanged();
    /// A row was double-clicked, or Enter pressed on it.
    void previewAsked(int program);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    void askPreview(const QModelIndex& index);

    ProgramTableModel& m_model;
    QString m_emptyText;
    QTimer m_look; ///< Runs until the event loop comes to it.
};

} // namespace trel::desktop
