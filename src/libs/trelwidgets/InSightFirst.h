#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <vector>

namespace trel::widgets {

/// Does something to the widgets that lie in a window: to those in sight at once, and to the others
/// before anybody sees them.
///
/// A long list has tens of thousands of widgets, few of which anybody sees. What is out of sight is
/// put off as a whole, and done in front of its first painting, or when it is shown. Windows that
/// belong to a widget are no part of it.
class InSightFirst : public QObject
{
public:
    using Deed = std::function<void(QWidget&)>;

    explicit InSightFirst(Deed deed);

    /// Does a widget and all that lies in it.
    void doWhole(QWidget& widget);
    /// Does a widget and what of it is in sight inside an area of it, and puts off the rest.
    void doInSight(QWidget& widget, const QRect& area);
    /// Has a widget, with what lies in it, done when it comes into sight.
    void putOff(QWidget& widget);

    /// Whether nothing is put off any more.
    bool isDone() const { return m_waiting.empty(); }
    /// Does one of those that are put off, of which there has to be one.
    void doNext();
    /// Leaves what is put off as it is.
    void forget();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Deed m_deed;
    std::vector<QPointer<QWidget>> m_waiting;
};

/// The widgets that lie in one, but for windows.
std::vector<QWidget*> partsOf(const QWidget& widget);

} // namespace trel::widgets
