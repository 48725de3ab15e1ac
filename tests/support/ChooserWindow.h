#pragma once

#include <QPoint>
#include <QString>
#include <QStringList>

#include <functional>

class QDialog;
class QLabel;
class QMenu;
class QPushButton;
class QSpinBox;
class QTableView;
class QWidget;

/// Operates the program chooser through its own window, as an operator does: cells are clicked
/// where they are, counts are edited in their box, the menu is opened by a right click. Rows are
/// scrolled into view first.
class ChooserWindow
{
public:
    explicit ChooserWindow(QDialog* chooser);

    QDialog* chooser() const { return m_chooser; }
    /// The window around the chooser.
    QWidget* frame() const;
    QTableView* programTable() const;
    QTableView* planTable() const;
    QPushButton* button(const char* name) const;
    QLabel* label(const char* name) const;

    // What the operator sees.

    /// "[x]02 News" for a checked row of the left table, "[ ] News" for one that is not.
    QStringList programRows() const;
    /// "[ ]01 News x3" for a row of the right table.
    QStringList planRows() const;
    /// What stands below the tables: "tip: ...", "over: ..." or nothing.
    QString message() const;
    QString total() const;
    bool canConfirm() const;

    // What the operator does.

    void checkProgram(int row) const;
    void checkPrograms(const std::initializer_list<int>& rows) const;
    void checkPlan(int row) const;
    void checkAllPrograms() const;
    void checkAllPlan() const;
    void choose() const;
    void remove() const;
    void moveUp() const;
    void moveDown() const;
    void confirm() const;
    void cancel() const;
    /// By the close button of the frame.
    void close() const;

    /// Opens the box of a play count. It stays open.
    QSpinBox* openCount(int row) const;
    /// Types a play count and commits it with Return.
    void setCount(int row, int count) const;

    /// Opens the menu of a row of the right table; a row that does not exist stands for the empty
    /// space below the last one. Returns its lines, such as "Up" or "(Up)" when it is out of reach,
    /// after having clicked on the line with this number; -1 clicks beside the menu.
    QStringList contextMenu(int row, int line = -1) const;
    /// As contextMenu; does this while the menu is open, and then closes it.
    void withContextMenu(int row, const std::function<void(QMenu&)>& steps) const;

private:
    QPoint cell(QTableView* table, int row, int column) const;
    void click(QTableView* table, int row, int column) const;
    void clickHeader(QTableView* table) const;
    void press(const char* name) const;

    QDialog* m_chooser;
};
