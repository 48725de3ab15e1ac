#include "support/TestProgram.h"
#include "trelwidgets/ComboBox.h"

#include <QApplication>
#include <QSignalSpy>
#include <QtTest>

using trel::widgets::ComboBox;

class TestComboBox : public QObject
{
    Q_OBJECT

private slots:
    void leavesTheWheelToTheList();
    void takesKeys();
};

void TestComboBox::leavesTheWheelToTheList()
{
    ComboBox box;
    box.addItems({QStringLiteral("Time"), QStringLiteral("Plays")});
    box.setFocus();
    QSignalSpy changed(&box, QOverload<int>::of(&QComboBox::currentIndexChanged));
    QVERIFY(changed.isValid());
    QWheelEvent wheel(QPointF(5, 5), QPointF(5, 5), QPoint(), QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&box, &wheel);
    QVERIFY(!wheel.isAccepted());
    QCOMPARE(box.currentIndex(), 0);
    QCOMPARE(changed.count(), 0);
}

void TestComboBox::takesKeys()
{
    ComboBox box;
    box.addItems({QStringLiteral("Time"), QStringLiteral("Plays")});
    QTest::keyClick(&box, Qt::Key_Down);
    QCOMPARE(box.currentIndex(), 1);
}

TREL_TEST(TestComboBox, QApplication)
#include "tst_ComboBox.moc"
