#pragma once

#include <QCursor>
#include <QPointer>
#include <QWidget>

namespace trel::mediadispatch {

/// Shows the busy pointer over a widget for as long as it lives, and then the former one again. The
/// pointer over all other widgets of the program stays as it is.
class BusyPointer
{
public:
    explicit BusyPointer(QWidget& widget);
    ~BusyPointer();
    Q_DISABLE_COPY(BusyPointer)

private:
    QPointer<QWidget> m_widget;
    bool m_hadOwnPointer;
    QCursor m_former;
};

} // namespace trel::mediadispatch
