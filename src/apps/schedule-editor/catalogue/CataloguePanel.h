#pragma once

#include "catalogue/CatalogueRows.h"
#include "look/ThemeColours.h"

#include <QWidget>

class QLabel;

namespace trel::desktop {

class CatalogueFilter;
class CatalogueOrder;
class EditorMenus;
class FilledColumns;
class ProgramDelegate;
class ProgramLookup;
class ProgramPreview;
class ProgramTable;
class ProgramTableModel;
class Thumbnails;
class UsesWindow;
struct LookupAnswer;

/// The catalogue of programs: a table of them that can be searched, filtered and sorted, or a hint
/// how to come by some.
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

    /// The colors by which programs are known in the week.
    void setColours(const look::ThemeColours& colours);

    /// Lets the operator type what to search for. The panel has to be shown.
    void focusSearch();

    /// The widths and the order of the columns, what they are sorted by, and the filter without the
    /// words that are searched for.
    QByteArray saveState() const;
    /// Takes over what saveState() has made, as far as it is whole; everything else stays.
    void restoreState(const QByteArray& state);

signals:
    /// The operator wants to see a plan that plays a program.
    void planAsked(int taskId, int planId);

protected:
    void changeEvent(QEvent* event) override;

private:
    void buildTable();
    void connectMenus();
    void connectOrder();
    void retranslate();
    void wish();
    void takeUsed();
    void show(const follow::SharedCatalogue& catalogue, const ProgramRows& rows);
    void showCurrent();
    void readPictures();
    void enableActions();
    void removeSelected();
    void askRemoval(const LookupAnswer& answer);
    void showUses();
    void preview(int program);

    EditorMenus& m_menus;
    ProgramTableModel* m_programs;
    Thumbnails* m_pictures;
    CatalogueFilter* m_filter;
    ProgramTable* m_table;
    ProgramDelegate* m_names;
    FilledColumns* m_widths = nullptr;
    QLabel* m_hint;
    CatalogueOrder* m_order;
    ProgramLookup* m_lookup;             ///< For what is to be removed.
    UsesWindow* m_uses = nullptr;        ///< Once it has been asked for.
    ProgramPreview* m_preview = nullptr; ///< Once it has been asked for.
    look::ThemeColours m_colours;
    bool m_isWishNew = false; ///< The rows to come are what the operator has asked for.
};

} // namespace trel::desktop
