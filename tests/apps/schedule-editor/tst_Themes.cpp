#include "HostFixture.h"
#include "LookSupport.h"

#include "card/PlanColumns.h"

#include "support/PromptAnswer.h"
#include "support/TestProgram.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QStyle>
#include <QSvgRenderer>
#include <QTableView>
#include <QTimeEdit>

#include <algorithm>
#include <ctime>
#include <limits>

using namespace trel::desktop;
using namespace trel::mediadispatch;

/// The themes on the real windows: what changes with them, what can be reached, and what it costs.
class tst_Themes : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void aSwitchLeavesNothingOfTheOldOne();
    void theMenuSwitchesAndMarks();
    void anUnknownNameChoosesTheDefault();
    void theDeleteButtonOfARowIsReached_data();
    void theDeleteButtonOfARowIsReached();
    void theCardsFitIntoTheWindow();
    void theSignOfTheFoldFollows();
    void imagesAreSharpOnEveryScreen_data();
    void imagesAreSharpOnEveryScreen();
    void theCheckMarksAreTheirDrawings_data();
    void theCheckMarksAreTheirDrawings();
    void theFontHasTheLettersOfEveryLanguage_data();
    void theFontHasTheLettersOfEveryLanguage();
    void chosenDaysAreCutBetweenLetters_data();
    void chosenDaysAreCutBetweenLetters();
    void chosenDaysAreSeenWithoutTheTheme();
    void rightToLeftKeepsEverythingInPlace();
    void aRefreshCostsAtMostTwice();

private:
    QWidget* card() const;
    QTableView* table() const;
    QWidget* cell(int row, int column) const;
    void openCard() const;
    int refreshTime() const;

    std::unique_ptr<HostFixture> m_host;
};

void tst_Themes::init()
{
    m_host = std::make_unique<HostFixture>();
    QCOMPARE(m_host->window.openDatabase(m_host->database, QStringLiteral(DEMONSTRATION)),
             QString());
    m_host->showEditor();
    openCard();
}

void tst_Themes::cleanup()
{
    m_host.reset();
}

QWidget* tst_Themes::card() const
{
    return m_host->editor->findChild<QWidget*>(QStringLiteral("PlanTaskWidget"));
}

QTableView* tst_Themes::table() const
{
    return card()->findChild<QTableView*>(QStringLiteral("schedule"));
}

QWidget* tst_Themes::cell(int row, int column) const
{
    return table()->indexWidget(table()->model()->index(row, column));
}

void tst_Themes::openCard() const
{
    card()->findChild<QAbstractButton*>(QStringLiteral("title"))->setChecked(false);
    QCoreApplication::processEvents();
}

void tst_Themes::aSwitchLeavesNothingOfTheOldOne()
{
    const QImage dark = m_host->editor->grab().toImage();
    m_host->themes.select(QStringLiteral("light"));
    const QImage switched = m_host->editor->grab().toImage();
    QVERIFY(switched != dark);

    // Windows that are built again have nothing left over to show.
    m_host->editor->clearAndInitialize();
    openCard();
    QCOMPARE(m_host->editor->grab().toImage(), switched);

    m_host->themes.select(QStringLiteral("dark"));
    QCOMPARE(m_host->editor->grab().toImage(), dark);
}

void tst_Themes::theMenuSwitchesAndMarks()
{
    QSignalSpy changed(&m_host->themes, &Themes::changed);
    QVERIFY(changed.isValid());
    QMenu* view = nullptr;
    const QList<QAction*> menus = m_host->window.menuBar()->actions();
    for (const QAction* menu : menus) {
        if (menu->text() == QLatin1String("&View")) {
            view = menu->menu();
        }
    }
    if (view == nullptr) {
        QFAIL("there is no menu for the themes");
    }
    QList<QAction*> actions;
    const QList<QAction*> entries = view->actions();
    for (QAction* entry : entries) {
        if (Themes::names().contains(entry->data().toString())) {
            actions.append(entry);
        }
    }
    QCOMPARE(actions.size(), 3);
    QVERIFY(actions[0]->isChecked());

    actions[1]->trigger();
    QCOMPARE(m_host->themes.current(), QStringLiteral("light"));
    QVERIFY(actions[1]->isChecked());
    QVERIFY(!actions[0]->isChecked());
    QCOMPARE(changed.count(), 1);

    m_host->themes.select(QStringLiteral("light"));
    QCOMPARE(changed.count(), 1);

    actions[2]->trigger();
    QCOMPARE(m_host->themes.current(), QStringLiteral("high-contrast"));
    QVERIFY(actions[2]->isChecked());
}

void tst_Themes::anUnknownNameChoosesTheDefault()
{
    m_host->themes.select(QStringLiteral("light"));
    m_host->themes.select(QStringLiteral("no such theme"));
    QCOMPARE(m_host->themes.current(), QStringLiteral("dark"));
}

void tst_Themes::theDeleteButtonOfARowIsReached_data()
{
    QTest::addColumn<bool>("withScrollBar");
    QTest::newRow("all rows in sight") << false;
    QTest::newRow("beside the scroll bar") << true;
}

void tst_Themes::theDeleteButtonOfARowIsReached()
{
    QFETCH(bool, withScrollBar);
    if (!withScrollBar) {
        while (table()->model()->rowCount() > 2) {
            PromptAnswer yes(1);
            cell(0, DeleteColumn)->findChild<QPushButton*>()->click();
        }
    }
    QCoreApplication::processEvents();
    QCOMPARE(table()->verticalScrollBar()->isVisible(), withScrollBar);
    const int rows = table()->model()->rowCount();

    for (const int column : {CopyColumn, DeleteColumn}) {
        QWidget* button = cell(0, column)->findChild<QPushButton*>();
        const QRect seen = button->visibleRegion().boundingRect();
        QCOMPARE(seen.size(), button->size());
        const QPoint place = button->mapTo(m_host->editor.get(), seen.center());
        QWidget* hit = m_host->editor->childAt(place);
        QCOMPARE(hit, button);
    }

    PromptAnswer yes(1);
    const QPoint place = cell(0, DeleteColumn)->mapTo(m_host->editor.get(), QPoint(12, 22));
    QTest::mouseClick(m_host->editor->windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
    QCOMPARE(yes.count(), 1);
    QCOMPARE(table()->model()->rowCount(), rows - 1);
}

void tst_Themes::theCardsFitIntoTheWindow()
{
    const QRect seen = card()->visibleRegion().boundingRect();
    QCOMPARE(seen.width(), 1100);
    QCOMPARE(table()->width(), 1098);
}

void tst_Themes::theSignOfTheFoldFollows()
{
    auto* arrow = card()->findChild<QLabel*>(QStringLiteral("arrow"));
    const QImage open = pictureOf(arrow);
    card()->findChild<QAbstractButton*>(QStringLiteral("title"))->setChecked(true);
    QVERIFY(pictureOf(arrow) != open);
    openCard();
    QCOMPARE(pictureOf(arrow), open);
}

void tst_Themes::imagesAreSharpOnEveryScreen_data()
{
    QTest::addColumn<double>("ratio");
    for (const double ratio : {1.0, 1.5, 2.0}) {
        QTest::newRow(qPrintable(QString::number(ratio))) << ratio;
    }
}

void tst_Themes::imagesAreSharpOnEveryScreen()
{
    QFETCH(double, ratio);
    auto* button = card()->findChild<QPushButton*>(QStringLiteral("pushButtonAdd"));
    QImage picture((QSizeF(button->size()) * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::black);
    QPainter painter(&picture);
    button->render(&painter, QPoint(), QRegion(), {});
    painter.end();

    // A stroke that was painted at its own size ends within a pixel of the device: from full
    // colour to none there is at most one shade on each side.
    const int y = picture.height() * 9 / 24;
    int shades = 0;
    int full = 0;
    for (int x = 0; x < picture.width(); ++x) {
        const int grey = qGray(picture.pixel(x, y));
        shades += grey > 10 && grey < 190 ? 1 : 0;
        full += grey >= 190 ? 1 : 0;
    }
    QVERIFY2(shades <= 2, qPrintable(QString::number(shades)));
    QVERIFY(full + shades <= qRound(1.6 * ratio) + 2);
}

void tst_Themes::theCheckMarksAreTheirDrawings_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("checked") << QStringLiteral("checked");
    QTest::newRow("unchecked") << QStringLiteral("unchecked");
}

void tst_Themes::theCheckMarksAreTheirDrawings()
{
    QFETCH(QString, name);
    for (const int scale : {1, 2}) {
        const QString suffix = scale == 2 ? QStringLiteral("@2x") : QString();
        QImage picture(QStringLiteral(":/qss/img/%1%2.png").arg(name, suffix));
        picture.setDevicePixelRatio(1.0);
        QCOMPARE(picture.size(), QSize(12, 12) * scale);
        QImage drawn(picture.size(), QImage::Format_ARGB32);
        drawn.fill(Qt::transparent);
        QPainter painter(&drawn);
        QSvgRenderer(QStringLiteral(":/qss/img/%1.svg").arg(name)).render(&painter);
        painter.end();
        QCOMPARE(picture.convertToFormat(QImage::Format_ARGB32), drawn);
    }
}

void tst_Themes::chosenDaysAreCutBetweenLetters_data()
{
    QTest::addColumn<bool>("unused");
    for (const char* language : {"en_US", "ru_RU", "de_DE", "zh_CN"}) {
        QTest::newRow(language) << true;
    }
}

void tst_Themes::chosenDaysAreCutBetweenLetters()
{
    m_host->languages.select(QString::fromLatin1(QTest::currentDataTag()));
    m_host->editor->clearAndInitialize();
    openCard();
    auto* line = cell(0, WeeksColumn)->findChild<QLineEdit*>();
    QVERIFY(line->fontMetrics().horizontalAdvance(line->text()) > line->width() - 8);
    const QImage picture = pictureOf(line);
    QVERIFY(lookAt(picture, picture.rect()).contrast > 4.5);
    // Nothing of a letter stands at the edge of the room.
    const QRect edge(picture.width() - 1, 0, 1, picture.height());
    QCOMPARE(lookAt(picture, edge).contrast, 1.0);
}

void tst_Themes::chosenDaysAreSeenWithoutTheTheme()
{
    auto* line = cell(0, WeeksColumn)->findChild<QLineEdit*>();
    QCOMPARE(line->palette().color(QPalette::Text).alpha(), 0);
    QApplication::style()->unpolish(line);
    QCOMPARE(line->palette().color(QPalette::Text), QApplication::palette().color(QPalette::Text));
}

void tst_Themes::rightToLeftKeepsEverythingInPlace()
{
    const auto overlaps = [this] {
        int count = 0;
        const QList<QWidget*> controls = {
            card()->findChild<QWidget*>(QStringLiteral("labelvalidTime")),
            card()->findChild<QWidget*>(QStringLiteral("dateEditVaildStartTime")),
            card()->findChild<QWidget*>(QStringLiteral("labelTo")),
            card()->findChild<QWidget*>(QStringLiteral("dateEditVaildEndTime")),
            card()->findChild<QWidget*>(QStringLiteral("pushButtonAdd"))};
        for (int i = 0; i < controls.size(); ++i) {
            for (int j = i + 1; j < controls.size(); ++j) {
                count += controls[i]->geometry().intersects(controls[j]->geometry()) ? 1 : 0;
            }
        }
        return count;
    };
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    QCoreApplication::processEvents();
    const int found = overlaps();
    const bool mirrored = card()->findChild<QWidget*>(QStringLiteral("pushButtonAdd"))->x() <
                          card()->findChild<QWidget*>(QStringLiteral("labelvalidTime"))->x();
    const QRect seen =
        cell(0, DeleteColumn)->findChild<QPushButton*>()->visibleRegion().boundingRect();
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);

    QCOMPARE(found, 0);
    QVERIFY(mirrored);
    QCOMPARE(seen.width(), 24);
}

void tst_Themes::theFontHasTheLettersOfEveryLanguage_data()
{
    QTest::addColumn<QString>("letters");
    QTest::newRow("simplified Chinese") << QStringLiteral("播放排期冲突启用");
    QTest::newRow("traditional Chinese") << QStringLiteral("播放排程衝突啟用");
    QTest::newRow("Japanese") << QStringLiteral("再生スケジュールひらがな");
    QTest::newRow("Korean") << QStringLiteral("재생일정충돌");
    QTest::newRow("Cyrillic") << QStringLiteral("РасписаниеЁё");
    QTest::newRow("western") << QStringLiteral("äöüßéèçñãõœ…–");
}

void tst_Themes::theFontHasTheLettersOfEveryLanguage()
{
    QFETCH(QString, letters);
    QFont measured;
    measured.setFamily(QStringLiteral("Microsoft YaHei"));
    for (const QFont& font : {QApplication::font(), measured}) {
        const QFontMetrics metrics(font);
        for (const QChar letter : qAsConst(letters)) {
            QVERIFY2(metrics.inFont(letter), qPrintable(QString(letter)));
        }
        // The missing letter is drawn as a box; no letter looks like it.
        const auto draw = [&font](QChar letter) {
            QImage image(24, 24, QImage::Format_Grayscale8);
            image.fill(Qt::white);
            QPainter painter(&image);
            painter.setFont(font);
            painter.drawText(image.rect(), Qt::AlignCenter, letter);
            return image;
        };
        const QImage box = draw(QChar(0xE7F7));
        for (const QChar letter : qAsConst(letters)) {
            QVERIFY2(draw(letter) != box, qPrintable(QString(letter)));
        }
    }
}

/// Microseconds of the processor, which other programs of the machine do not add to.
int tst_Themes::refreshTime() const
{
    const std::clock_t began = std::clock();
    m_host->editor->clearAndInitialize();
    return int((std::clock() - began) * 1'000'000 / CLOCKS_PER_SEC);
}

void tst_Themes::aRefreshCostsAtMostTwice()
{
    PlayTask task = m_host->manager.getAllTask().begin()->second;
    const std::vector<PlayPlan> plans = task.plans;
    while (task.plans.size() < 40) {
        PlayPlan plan = plans[task.plans.size() % plans.size()];
        plan.id = int(task.plans.size()) + 1;
        task.plans.push_back(plan);
    }
    m_host->manager.addTask(task);
    m_host->manager.save();

    // In turn, and the best of each, so that a busy machine does not tell the two apart.
    int themed = std::numeric_limits<int>::max();
    int plain = themed;
    for (int round = 0; round < 6; ++round) {
        const Themes theme(*qApp);
        themed = std::min(themed, refreshTime());
        QApplication::setStyle(QStringLiteral("Fusion"));
        plain = std::min(plain, refreshTime());
    }
    qInfo("refresh with the theme: %d us, without: %d us, ratio %.2f", themed, plain,
          double(themed) / plain);
    QVERIFY(themed <= 2 * plain);
}

TREL_TEST(tst_Themes, QApplication)
#include "tst_Themes.moc"
