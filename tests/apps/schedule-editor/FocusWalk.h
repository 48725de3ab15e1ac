#pragma once

#include <QApplication>
#include <QtTest>

/// Whether Tab has to come to a widget.
inline bool takesTab(const QWidget& widget)
{
    return (widget.focusPolicy() & Qt::TabFocus) == Qt::TabFocus && widget.isEnabled() &&
           widget.isVisible() && widget.focusProxy() == nullptr;
}

/// The widgets of an active window that a key comes to, from the one with the focus on until it
/// comes to one again. The key is Tab or Backtab, which goes through the sections of a date first.
inline QList<QWidget*> walkFocus(const QWidget& window, Qt::Key key)
{
    constexpr int kMostSteps = 120; // More than any window has.
    constexpr int kMostSections = 3;
    QList<QWidget*> reached;
    int sections = 0;
    for (int step = 0; step < kMostSteps; ++step) {
        QTest::keyClick(QApplication::focusWidget(), key,
                        key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
        QWidget* const now = QApplication::focusWidget();
        if (!reached.isEmpty() && now == reached.last() && ++sections < kMostSections) {
            continue;
        }
        sections = 0;
        if (now == nullptr || now->window() != &window || reached.contains(now)) {
            break;
        }
        reached.append(now);
    }
    return reached;
}

inline QStringList namesOf(const QList<QWidget*>& widgets)
{
    QStringList names;
    for (const QWidget* const widget : widgets) {
        names.append(QLatin1String(widget->metaObject()->className()) + QLatin1Char(' ') +
                     widget->objectName());
    }
    return names;
}

/// Those that Tab has to come to and does not.
inline QStringList missedIn(const QWidget& window, const QList<QWidget*>& reached)
{
    QList<QWidget*> missed;
    const QList<QWidget*> widgets = window.findChildren<QWidget*>();
    for (QWidget* const widget : widgets) {
        if (widget->window() == &window && takesTab(*widget) && !reached.contains(widget)) {
            missed.append(widget);
        }
    }
    return namesOf(missed);
}
