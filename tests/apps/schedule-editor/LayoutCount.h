#pragma once

#include <QEvent>
#include <QObject>
#include <QScrollArea>
#include <QWidget>

/// Counts how often the list of an editor is laid out while this lives.
class LayoutCount : public QObject
{
public:
    explicit LayoutCount(const QWidget& editor)
    {
        editor.findChild<QScrollArea*>()->installEventFilter(this);
    }

    int count() const { return m_count; }

    bool eventFilter(QObject*, QEvent* event) override
    {
        m_count += event->type() == QEvent::LayoutRequest ? 1 : 0;
        return false;
    }

private:
    int m_count = 0;
};
