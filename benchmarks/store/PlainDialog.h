#pragma once

#include <QDialog>
#include <QMenu>

namespace bench {

class PlainList;

/// The editor's window out of plain widgets, as PlainWindow is.
class PlainDialog : public QDialog
{
public:
    PlainDialog();

    /// Adds the folded cards of some tasks. Like those of the editor they have no rows yet.
    void build(int tasks);

private:
    QWidget* title();
    QWidget* panel();
    void addOverlays(QWidget& area);

    PlainList* m_list;
    QMenu m_menu;
};

} // namespace bench
