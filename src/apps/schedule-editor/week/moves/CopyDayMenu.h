#pragma once

#include <QObject>

class QContextMenuEvent;

namespace trel::desktop::week {

class EditTarget;
class WeekView;

/// Offers to copy the plans of a day onto others, in the context menu of the picture and of the
/// dates above it.
class CopyDayMenu : public QObject
{
    Q_OBJECT

public:
    /// The view is the parent; the target outlives it.
    CopyDayMenu(WeekView& view, EditTarget& target);

    void setEnabled(bool isEnabled) { m_isEnabled = isEnabled; }
    /// Asks onto which days, and files the copies.
    void ask(const QDate& day);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QDate dayOf(const QObject* watched, const QContextMenuEvent& event) const;
    void show(const QDate& day, const QPoint& place);

    WeekView& m_view;
    EditTarget& m_target;
    bool m_isEnabled = true;
};

} // namespace trel::desktop::week
