#pragma once

#include <QObject>

class QMainWindow;

namespace trel::desktop {

/// Shows the tool tips of the tabs of stacked panels to the letter: the toolkit takes the title of
/// a panel for its tip, and a tip that looks like markup for markup.
class PlainTabTips : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the window. To be made before panels are stacked in it.
    explicit PlainTabTips(QMainWindow& window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace trel::desktop
