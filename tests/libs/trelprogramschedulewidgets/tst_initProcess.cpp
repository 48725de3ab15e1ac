#include "initProcess.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QLabel>
#include <QtTest>

using trel::mediadispatch::initProcess;

class tst_initProcess : public QObject
{
    Q_OBJECT

private slots:
    void looks();
    void theMovieComesFromTheHostsResource();
    void staysHiddenUnderItsParent();
    void hasNoSignalsOrSlotsOfItsOwn();
};

void tst_initProcess::looks()
{
    const initProcess process;
    QCOMPARE(process.minimumSize(), QSize(35, 35));
    QCOMPARE(process.maximumSize(), QSize(35, 35));
    QVERIFY(qAbs(process.windowOpacity() - 0.6) < 0.01);
    QCOMPARE(process.windowFlags(),
             Qt::Dialog | Qt::WindowStaysOnTopHint | Qt::CustomizeWindowHint);
    QCOMPARE(process.contentsMargins(), QMargins(0, 0, 0, 0));
}

void tst_initProcess::theMovieComesFromTheHostsResource()
{
    const initProcess process;
    const auto* label = process.findChild<QLabel*>();
    QVERIFY(label != nullptr);
    QCOMPARE(label->parentWidget(), static_cast<const QWidget*>(&process));
    QVERIFY(label->movie() != nullptr);
    QCOMPARE(label->movie()->fileName(), QStringLiteral(":/qss/img/refresh.gif"));
    QCOMPARE(label->movie()->format(), QByteArray());
    QVERIFY(label->movie()->parent() == nullptr);
}

void tst_initProcess::staysHiddenUnderItsParent()
{
    QWidget parent;
    const auto* process = new initProcess(&parent);
    parent.show();
    QVERIFY(QTest::qWaitForWindowExposed(&parent));
    QVERIFY(!process->isVisible());
    QVERIFY(process->isWindow());
}

void tst_initProcess::hasNoSignalsOrSlotsOfItsOwn()
{
    QCOMPARE(initProcess::staticMetaObject.methodCount(), QDialog::staticMetaObject.methodCount());
}

TREL_TEST(tst_initProcess, QApplication)

#include "tst_initProcess.moc"
