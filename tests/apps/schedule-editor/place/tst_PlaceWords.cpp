#include "place/PlaceWords.h"

#include "support/TestProgram.h"

#include <QtTest>

using namespace trel::desktop::place;

/// What is told of where a schedule is.
class tst_PlaceWords : public QObject
{
    Q_OBJECT

private slots:
    void ofAFile();
    void ofAServer();
    void ofNothing();
};

void tst_PlaceWords::ofAFile()
{
    const QString path = QStringLiteral("/a/b.c.db");
    QCOMPARE(placeName(path), QStringLiteral("b.c.db"));
    QCOMPARE(placeFileName(path), QStringLiteral("b.c"));
    QCOMPARE(placeFolder(path), QStringLiteral("/a"));
}

void tst_PlaceWords::ofAServer()
{
    const QString address =
        QStringLiteral("postgresql://me@desk:7/shows?schedule=North%20hall%2F%3C%C3%A4%3E");
    QCOMPARE(placeName(address), QString::fromUtf8("North hall/<ä> (desk)"));
    QCOMPARE(placeFileName(address), QString::fromUtf8("North_hall__ä_"));
    QCOMPARE(placeFolder(address), QString());
}

void tst_PlaceWords::ofNothing()
{
    QCOMPARE(placeName(QString()), QString());
    QCOMPARE(placeFolder(QString()), QString());
}

TREL_TEST(tst_PlaceWords, trel::tests::NoApplication)
#include "tst_PlaceWords.moc"
