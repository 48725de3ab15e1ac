#include "HostFixture.h"
#include "LookSupport.h"
#include "support/TestProgram.h"

#include "card/PlanColumns.h"
#include "catalogue/ProgramTableModel.h"
#include "screen/ElidedText.h"

#include <QApplication>
#include <QDateEdit>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QTableView>
#include <QTimeEdit>
#include <QTimer>

#include <functional>

using namespace trel::desktop;
using namespace trel::mediadispatch;

/// The windows where one reads from the right: mirrored, but for what everybody reads from the
/// left.
class tst_RightToLeft : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void datesAndTimesKeepTheirOrder();
    void datesAndTimesKeepTheirOrderAcrossASwitch();
    void cardsKeepTheirDistance();
    void theBarsOfCardsAreMirrored();
    void theSignOfTheAddButtonComesFirst();
    void theArrowOfTheChooserPointsToThePlan();
    void theHeaderHasItsSeparators();
    void theTotalStandsOffItsCaption();
    void pathsKeepTheirFirstSlash();
    void theEllipsisStandsWhereTheTextIsCut_data();
    void theEllipsisStandsWhereTheTextIsCut();

private:
    void openEditor();
    QWidget* cell(int column) const;
    QStringList times() const;
    void withChooser(const std::function<void(QWidget&)>& look) const;

    std::unique_ptr<HostFixture> m_host;
};

namespace {

/// The columns of a picture that hold anything but the ground, from the first to the last.
QRect inkIn(const QImage& picture, const QRect& part)
{
    const Seen seen = lookAt(picture, part);
    QRect ink;
    for (int x = part.left(); x <= part.right(); ++x) {
        for (int y = part.top(); y <= part.bottom(); ++y) {
            if (contrast(QColor(picture.pixel(x, y)), seen.ground) > 1.5) {
                ink |= QRect(x, part.top(), 1, part.height());
            }
        }
    }
    return ink;
}

} // namespace

void tst_RightToLeft::init()
{
    openEditor();
    QVERIFY(m_host->firstCard()->isRightToLeft());
}

void tst_RightToLeft::cleanup()
{
    m_host.reset();
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

void tst_RightToLeft::openEditor()
{
    m_host = std::make_unique<HostFixture>();
    // A language brings its direction along, and so this comes after its choice.
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    m_host->showDemonstration();
}

QWidget* tst_RightToLeft::cell(int column) const
{
    return m_host->cell(0, column);
}

/// The dates of the task and the times of its first plan, as they stand in their boxes.
QStringList tst_RightToLeft::times() const
{
    QStringList shown;
    for (const char* name : {"dateEditVaildStartTime", "dateEditVaildEndTime"}) {
        shown.append(m_host->firstCard()->findChild<QDateEdit*>(QLatin1String(name))->text());
    }
    for (const int column : {StartTimeColumn, EndTimeColumn}) {
        shown.append(cell(column)->findChild<QTimeEdit*>()->text());
    }
    return shown;
}

void tst_RightToLeft::withChooser(const std::function<void(QWidget&)>& look) const
{
    bool isSeen = false;
    QTimer::singleShot(0, m_host->editor.get(), [&look, &isSeen] {
        QWidget* chooser = QApplication::activeModalWidget();
        look(*chooser);
        isSeen = true;
        chooser->close();
    });
    cell(ProgramsColumn)->findChild<QPushButton*>(QStringLiteral("pushButton"))->click();
    QVERIFY(isSeen);
}

void tst_RightToLeft::datesAndTimesKeepTheirOrder()
{
    const PlayTask task = m_host->manager.getAllTask().begin()->second;
    QCOMPARE(times(), (QStringList{QString::fromStdString(task.startDate),
                                   QString::fromStdString(task.endDate),
                                   QString::fromStdString(task.plans.front().startTime),
                                   QString::fromStdString(task.plans.front().endTime)}));
}

void tst_RightToLeft::datesAndTimesKeepTheirOrderAcrossASwitch()
{
    const QStringList shown = times();
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    QCoreApplication::processEvents();
    QCOMPARE(times(), shown);
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    QCoreApplication::processEvents();
    QCOMPARE(times(), shown);
}

void tst_RightToLeft::cardsKeepTheirDistance()
{
    auto* area = m_host->editor->findChild<QScrollArea*>(QStringLiteral("scrollArea"));
    const int width = area->viewport()->width();
    const auto left = [this, area] {
        return m_host->firstCard()->mapTo(area->viewport(), QPoint()).x();
    };
    const int fromTheRight = width - left() - m_host->firstCard()->width();
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    QCoreApplication::processEvents();
    QCOMPARE(fromTheRight, left());
    QVERIFY(fromTheRight > 0);
}

void tst_RightToLeft::theBarsOfCardsAreMirrored()
{
    auto* bar = m_host->firstCard()->findChild<QAbstractButton*>(QStringLiteral("title"));
    bar->setChecked(true);
    auto* arrow = bar->findChild<QLabel*>(QStringLiteral("arrow"));
    auto* copy = bar->findChild<QPushButton*>(QStringLiteral("pbtCreatCopy"));
    m_host->editor->grab();
    const QImage points = pictureOf(arrow);
    QVERIFY(arrow->x() > bar->width() / 2);
    QVERIFY(copy->x() < bar->width() / 2);
    // The name of the task stands beside the arrow.
    const QRect half(0, 4, bar->width() / 2, bar->height() - 8);
    const QRect middle = half.adjusted(80, 0, 0, 0);
    QVERIFY(inkIn(pictureOf(bar), middle).isEmpty());
    QVERIFY(!inkIn(pictureOf(bar), middle.translated(half.width() - 80, 0)).isEmpty());

    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    QCoreApplication::processEvents();
    QVERIFY(arrow->x() < bar->width() / 2);
    QVERIFY(copy->x() > bar->width() / 2);
    QCOMPARE(points, pictureOf(arrow).mirrored(true, false));
}

void tst_RightToLeft::theSignOfTheAddButtonComesFirst()
{
    auto* add = m_host->editor->findChild<QPushButton*>(QStringLiteral("pushButtonAddTask"));
    const QRect inner = add->rect().adjusted(6, 4, -6, -4);
    constexpr int kSign = 12;
    // No letter has so long a stroke as the sign.
    const auto longestStroke = [](const QImage& picture, const QRect& part) {
        int longest = 0;
        for (int y = part.top(); y <= part.bottom(); ++y) {
            longest = qMax(longest, inkIn(picture, QRect(part.left(), y, part.width(), 1)).width());
        }
        return longest;
    };
    const auto strokeAtTheStart = [&](bool isRightToLeft) {
        const QImage picture = pictureOf(add);
        QRect ink = inkIn(picture, inner);
        if (isRightToLeft) {
            ink.setLeft(ink.right() + 1 - kSign);
        } else {
            ink.setRight(ink.left() - 1 + kSign);
        }
        return longestStroke(picture, ink);
    };
    const int mirrored = strokeAtTheStart(true);
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    QCoreApplication::processEvents();
    QVERIFY(mirrored >= kSign - 2);
    QCOMPARE(strokeAtTheStart(false), mirrored);
}

void tst_RightToLeft::theArrowOfTheChooserPointsToThePlan()
{
    QImage mirrored;
    QImage picture;
    for (QImage* taken : {&mirrored, &picture}) {
        withChooser([taken](QWidget& chooser) {
            *taken = pictureOf(chooser.findChild<QWidget*>(QStringLiteral("pushButtonChonse")));
        });
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    }
    QVERIFY(mirrored != picture);
    const QRect ink = inkIn(picture, picture.rect());
    QCOMPARE(inkIn(mirrored, mirrored.rect()).width(), ink.width());
    // The tip is higher than the tail.
    const auto heightAt = [](const QImage& image, int x) {
        const Seen seen = lookAt(image, image.rect());
        int height = 0;
        for (int y = 0; y < image.height(); ++y) {
            height += contrast(QColor(image.pixel(x, y)), seen.ground) > 1.5 ? 1 : 0;
        }
        return height;
    };
    QVERIFY(heightAt(picture, 14) > heightAt(picture, 8));
    QVERIFY(heightAt(mirrored, 9) > heightAt(mirrored, 15));
}

void tst_RightToLeft::theHeaderHasItsSeparators()
{
    withChooser([](QWidget& chooser) {
        const auto tables = chooser.findChildren<QTableView*>(QStringLiteral("schedule"));
        for (QTableView* table : tables) {
            QHeaderView* header = table->horizontalHeader();
            const QImage picture = pictureOf(header->viewport());
            for (int section = 0; section + 1 < table->model()->columnCount(); ++section) {
                const int left = header->sectionViewportPosition(section);
                if (header->sectionSize(section) > 0 && left > 0) {
                    QVERIFY(picture.pixel(left + 1, 10) != picture.pixel(left + 5, 10));
                }
            }
        }
    });
}

void tst_RightToLeft::theTotalStandsOffItsCaption()
{
    withChooser([](QWidget& chooser) {
        auto* caption = chooser.findChild<QLabel*>(QStringLiteral("label_timeWord"));
        auto* total = chooser.findChild<QLabel*>(QStringLiteral("showTime_label"));
        const int end = total->geometry().left() + total->contentsRect().right();
        QVERIFY(caption->geometry().left() - end > 3);
    });
}

void tst_RightToLeft::pathsKeepTheirFirstSlash()
{
    auto* programs = m_host->window.findChild<QTableView*>(QStringLiteral("programTable"));
    const QModelIndex path = programs->model()->index(0, ProgramTableModel::FolderColumn);
    const QString shown = path.data().toString();
    QCOMPARE(shown.at(0), QChar(0x2066));
    QCOMPARE(shown.at(1), QLatin1Char('/'));
    QCOMPARE(shown.at(shown.size() - 1), QChar(0x2069));
    const QString folder = shown.mid(1, shown.size() - 2);
    QVERIFY(path.data(Qt::ToolTipRole).toString().startsWith(folder + QLatin1Char('/')));
}

void tst_RightToLeft::theEllipsisStandsWhereTheTextIsCut_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isAtTheRight");
    QTest::newRow("from the left") << QStringLiteral("HHHHHHHHHHHHHHHHHHHHHHHH") << true;
    QTest::newRow("from the right") << QString(24, QChar(0x05D4)) << false;
}

/// The dots are the only ink at their end, and stand low.
void tst_RightToLeft::theEllipsisStandsWhereTheTextIsCut()
{
    QFETCH(QString, text);
    QFETCH(bool, isAtTheRight);
    ElidedText label(nullptr, 1);
    label.setText(text);
    label.resize(120, label.minimumSizeHint().height());
    QVERIFY(label.isRightToLeft());
    const QImage picture = label.grab().toImage();
    const int upperHalf = picture.height() / 2;
    const auto isEmpty = [&](int from) {
        return inkIn(picture, QRect(from, 0, 6, upperHalf)).isNull();
    };
    const QRect ink = inkIn(picture, picture.rect());
    QCOMPARE(isEmpty(ink.right() - 5), isAtTheRight);
    QCOMPARE(isEmpty(ink.left()), !isAtTheRight);
}

TREL_TEST(tst_RightToLeft, QApplication)
#include "tst_RightToLeft.moc"
