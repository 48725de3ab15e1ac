#pragma once

#include <QApplication>
#include <QtTest>

/// Presses Tab, or Shift+Tab, until another widget has the focus: fields of several sections take a
/// key for each of them. Null when the focus stays where it is.
inline QWidget* pressTab(bool forward = true)
{
    constexpr int kMostSections = 4;
    QWidget* const before = QApplication::focusWidget();
    for (int i = 0; i < kMostSections && QApplication::focusWidget() == before; ++i) {
        QWidget* const window = QApplication::activeWindow();
        QTest::keyClick(window->windowHandle(), forward ? Qt::Key_Tab : Qt::Key_Backtab,
                        forward ? Qt::NoModifier : Qt::ShiftModifier);
    }
    QWidget* const now = QApplication::focusWidget();
    return now == before ? nullptr : now;
}
