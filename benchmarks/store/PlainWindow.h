#pragma once

#include <QMainWindow>

class QLabel;
class QVBoxLayout;

namespace bench {

/// The window that the editor is opened from, out of plain widgets: the same number of the same
/// kinds under the same parents, with the same texts, shown and hidden as after a start. Custom
/// kinds are what they inherit of the toolkit. Nothing is connected, followed or looked up.
class PlainWindow : public QMainWindow
{
public:
    /// With so many rows in the table of programs.
    explicit PlainWindow(int programs);

private:
    void addMenus();
    void addBar();
    void addPanels(int programs);
    QWidget* filter(QWidget* parent);
    QWidget* catalogue(int programs);
    QWidget* middle();
    QWidget* nowNext();
    QWidget* clockChanges();
    QWidget* problems();
    QWidget* week();
    QDockWidget* addPanel(const QString& title, QWidget* content, Qt::DockWidgetArea area);
};

} // namespace bench
