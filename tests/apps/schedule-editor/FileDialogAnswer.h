#pragma once

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QTimer>
#include <QtTest>

/// Types a name into the next file dialog and accepts it, or turns it away for an empty name.
inline void answerFileDialog(const QString& file)
{
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, file] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr) {
            return;
        }
        timer->deleteLater();
        if (file.isEmpty()) {
            dialog->reject();
            return;
        }
        auto* name = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        name->setText(file);
        QTest::keyClick(name, Qt::Key_Return);
    });
    timer->start(10);
}
