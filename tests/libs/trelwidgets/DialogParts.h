#pragma once

#include "trelwidgets/Dialog.h"

#include <QLabel>
#include <QPushButton>
#include <QtTest>

/// The parts of a dialog, as an operator takes hold of them.
struct DialogParts
{
    explicit DialogParts(const trel::widgets::Dialog& dialog)
        : title(dialog.findChild<QWidget*>(QStringLiteral("dialogTitle")))
        , label(dialog.findChild<QLabel*>(QStringLiteral("TitleLabel")))
        , minimise(dialog.findChild<QPushButton*>(QStringLiteral("ButtonMin")))
        , scale(dialog.findChild<QPushButton*>(QStringLiteral("ButtonScale")))
        , close(dialog.findChild<QPushButton*>(QStringLiteral("ButtonClose")))
    {}

    QWidget* title;
    QLabel* label;
    QPushButton* minimise;
    QPushButton* scale;
    QPushButton* close;
};

/// Shows a dialog of 400 by 300 at this place; true once it is the active window.
[[nodiscard]] inline bool showAt(trel::widgets::Dialog& dialog,
                                 const QPoint& position = QPoint(200, 150))
{
    dialog.setTitle(QStringLiteral("Play schedule"));
    dialog.move(position);
    dialog.resize(400, 300);
    dialog.show();
    dialog.activateWindow();
    return QTest::qWaitForWindowActive(&dialog);
}
