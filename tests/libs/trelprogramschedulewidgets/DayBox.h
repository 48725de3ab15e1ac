#pragma once

#include "MultiComboBox.h"
#include "support/TestClock.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QSignalSpy>
#include <QtTest>

/// A shown day box with its eight entries, a clock that stands still, and what the box has told.
class DayBox
{
public:
    DayBox()
    {
        box.addItems({QStringLiteral("Every day"), QStringLiteral("Monday"),
                      QStringLiteral("Tuesday"), QStringLiteral("Wednesday"),
                      QStringLiteral("Thursday"), QStringLiteral("Friday"),
                      QStringLiteral("Saturday"), QStringLiteral("Sunday")});
        box.setShownText(QStringLiteral("Every day"));
        box.restoreCheckMarks();
        box.setFixedSize(140, 24);
        window.resize(300, 300);
        window.show();
    }

    QString shown() const { return box.lineEdit()->text(); }
    QStringList marked() const
    {
        QStringList labels;
        for (int i = 0; i < box.count(); ++i) {
            if (box.itemData(i, Qt::CheckStateRole).toBool()) {
                labels.append(box.itemText(i));
            }
        }
        return labels;
    }

    /// What the box has told since the last call, each selection as one text.
    QStringList told()
    {
        QStringList selections;
        for (const QList<QVariant>& emission : selected) {
            selections.append(QLatin1Char('[') +
                              emission.first().toStringList().join(QLatin1Char('|')) +
                              QLatin1Char(']'));
        }
        selected.clear();
        return selections;
    }

    bool isOpen() const { return box.view()->isVisible(); }
    QPoint textPlace() const { return box.lineEdit()->geometry().center(); }

    /// Presses on the text, once enough time has passed for it.
    void open()
    {
        clock.advance(100);
        QTest::mouseClick(&box, Qt::LeftButton, {}, textPlace());
    }

    QPoint entryPlace(int entry) const
    {
        const QModelIndex index = box.model()->index(entry, box.modelColumn());
        return box.view()->visualRect(index).center();
    }

    void clickEntry(int entry)
    {
        QTest::mouseClick(box.view()->viewport(), Qt::LeftButton, {}, entryPlace(entry));
    }

    TestClock clock{QDateTime(QDate(2024, 5, 6), QTime(10, 0))};
    QWidget window;
    trel::mediadispatch::MultiComboBox box{&window};
    QSignalSpy selected{&box, &trel::mediadispatch::MultiComboBox::signalSelectedText};
};
