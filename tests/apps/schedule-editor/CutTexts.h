#pragma once

#include <QList>
#include <QStringList>

class QWidget;

/// What a widget shows to be read, of its own.
QString textOf(const QWidget& widget);

/// The widgets that are visible in a window, or in a part of one.
QList<QWidget*> visibleIn(QWidget& window);

/// A line for each label and button in it that has less room than its text takes.
QStringList cutIn(QWidget& window);
