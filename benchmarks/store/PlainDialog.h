#pragma once

#include "Samples.h"

#include <QDialog>
#include <QMenu>

namespace bench {

class PlainList;

/// The editor's window out of plain widgets, as PlainWindow is.
class PlainDialog : public QDialog
{
public:
    PlainDialog();

    void build(const TaskMap& tasks);

private:
    QWidget* title();
    QWidget* panel();
    void addOverlays(QWidget& area);

    PlainList* m_list;
    QMenu m_menu;
};

} // namespace bench
