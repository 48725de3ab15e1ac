#pragma once

#include <QWidget>

#include <vector>

class QAction;
class QLabel;
class QTableView;

namespace trel::desktop {

class EditorMenus;
class ProgramTableModel;

/// The catalogue of programs: a table of them, or a hint how to come by some.
///
/// It imports nothing and opens nothing itself; the entries of the menus that concern programs
/// stand in its context menu, and the one that removes them is done here.
class CataloguePanel : public QWidget
{
    Q_OBJECT

public:
    /// The menus outlive the panel.
    CataloguePanel(EditorMenus& menus, QWidget* parent);

    /// Takes over the catalogue as it stands in the service now. The panel does so by itself
    /// whenever the host says that it has changed.
    void reload();

protected:
    void changeEvent(QEvent* event) override;

private:
    void buildTable();
    void connectMenus();
    void retranslate();
    void removeSelected();
    std::vector<int> selectedPrograms() const;

    EditorMenus& m_menus;
    ProgramTableModel* m_programs;
    QTableView* m_table;
    QLabel* m_hint;
};

} // namespace trel::desktop
