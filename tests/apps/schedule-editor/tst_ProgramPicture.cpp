#include "screen/PreviewPictures.h"
#include "screen/ProgramPicture.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

using namespace trel::desktop;
using namespace trel::mediadispatch;

/// What programs look like: images, films, and what has no picture.
class tst_ProgramPicture : public QObject
{
    Q_OBJECT

private slots:
    void aFilmShowsItsFirstPictureScaledDown();
    void anImageIsScaledDownAndNeverUp();
    void whatCannotBeReadIsNull();
    void aCancelledReadIsNull();
    void picturesAreReadOnce();
    void theLastOneAskedForIsRead();

private:
    static QString media(const char* name)
    {
        return QStringLiteral(DEMONSTRATION "/media/") + QLatin1String(name);
    }
    static ProgramIten program(const char* name, ProgramKind kind)
    {
        ProgramIten item;
        item.mediaPath = media(name).toStdString();
        item.kind = kind;
        return item;
    }
    std::atomic<bool> m_goOn{false};
};

void tst_ProgramPicture::aFilmShowsItsFirstPictureScaledDown()
{
    const QImage film =
        programPicture(media("City news.mp4"), ProgramKind::Video, QSize(160, 160), m_goOn);
    QVERIFY(!film.isNull());
    QCOMPARE(film.width(), 160);
    QVERIFY(film.height() < 160);
}

void tst_ProgramPicture::anImageIsScaledDownAndNeverUp()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("wide.png"));
    QImage wide(400, 100, QImage::Format_RGB32);
    wide.fill(Qt::red);
    QVERIFY(wide.save(file));
    const auto size = [&](const QSize& bound) {
        return programPicture(file, ProgramKind::Image, bound, m_goOn).size();
    };
    QCOMPARE(size(QSize(200, 200)), QSize(200, 50));
    QCOMPARE(size(QSize(800, 800)), QSize(400, 100));
}

void tst_ProgramPicture::whatCannotBeReadIsNull()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("letter.mp4"));
    QFile letter(file);
    QVERIFY(letter.open(QIODevice::WriteOnly));
    letter.write("Dear friend");
    letter.close();
    for (const ProgramKind kind : {ProgramKind::Video, ProgramKind::Image, ProgramKind::Audio}) {
        QVERIFY(programPicture(file, kind, QSize(100, 100), m_goOn).isNull());
        QVERIFY(
            programPicture(folder.filePath(QStringLiteral("gone")), kind, QSize(100, 100), m_goOn)
                .isNull());
    }
}

void tst_ProgramPicture::aCancelledReadIsNull()
{
    const std::atomic<bool> isCancelled(true);
    QVERIFY(programPicture(media("City news.mp4"), ProgramKind::Video, QSize(100, 100), isCancelled)
                .isNull());
}

void tst_ProgramPicture::picturesAreReadOnce()
{
    PreviewPictures pictures;
    QSignalSpy ready(&pictures, &PreviewPictures::ready);
    QVERIFY(ready.isValid());
    const ProgramIten news = program("City news.mp4", ProgramKind::Video);
    QVERIFY(!pictures.picture(news, QSize(300, 200)).isKnown);
    QTRY_COMPARE(ready.count(), 1);
    QVERIFY(!pictures.picture(news, QSize(300, 200)).image.isNull());
    // A little larger, and it is still good enough.
    QVERIFY(pictures.picture(news, QSize(310, 210)).isKnown);
    pictures.clear();
    QVERIFY(!pictures.picture(news, QSize(300, 200)).isKnown);
    QTRY_COMPARE(ready.count(), 2);

    const PreviewPictures::Answer sound =
        pictures.picture(program("Evening music.ogg", ProgramKind::Audio), QSize(300, 200));
    QVERIFY(sound.isKnown && sound.image.isNull());
}

void tst_ProgramPicture::theLastOneAskedForIsRead()
{
    PreviewPictures pictures;
    QSignalSpy ready(&pictures, &PreviewPictures::ready);
    QVERIFY(ready.isValid());
    const ProgramIten weather = program("Weather.mp4", ProgramKind::Video);
    pictures.picture(program("City news.mp4", ProgramKind::Video), QSize(300, 200));
    pictures.picture(program("Opening.mp4", ProgramKind::Video), QSize(300, 200));
    pictures.picture(weather, QSize(300, 200));
    QTRY_COMPARE(ready.count(), 1);
    QVERIFY(pictures.picture(weather, QSize(300, 200)).isKnown);
    QVERIFY(!pictures.picture(program("Opening.mp4", ProgramKind::Video), QSize(300, 200)).isKnown);
}

TREL_TEST(tst_ProgramPicture, QApplication)
#include "tst_ProgramPicture.moc"
