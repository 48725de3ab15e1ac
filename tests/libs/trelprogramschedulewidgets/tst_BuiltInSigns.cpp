#include "ShownEditor.h"

#include "CheckBoxDelegate.h"
#include "CheckBoxImages.h"
#include "ChooserFixture.h"
#include "SHeaderView.h"
#include "TitleBar.h"
#include "initProcess.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QMovie>
#include <QProxyStyle>
#include <QStandardItemModel>
#include <QTableView>
#include <QTemporaryDir>
#include <QtTest>

#include <functional>
#include <memory>

using namespace trel::mediadispatch;

namespace {

/// A button or label of the toolkit itself in the place of another one, with the same hooks.
template <typename Bare>
std::unique_ptr<Bare> bareLike(const QWidget& widget)
{
    auto bare = std::make_unique<Bare>(widget.parentWidget());
    bare->setObjectName(widget.objectName());
    for (const QByteArray& name : widget.dynamicPropertyNames()) {
        bare->setProperty(name.constData(), widget.property(name.constData()));
    }
    bare->setLayoutDirection(widget.layoutDirection());
    bare->setEnabled(widget.isEnabled());
    bare->setFixedSize(widget.size());
    bare->ensurePolished();
    return bare;
}

std::unique_ptr<QWidget> bareOf(const QWidget& widget)
{
    const auto* const button = qobject_cast<const QPushButton*>(&widget);
    if (!button) {
        return bareLike<QLabel>(widget);
    }
    auto bare = bareLike<QPushButton>(widget);
    bare->setFlat(button->isFlat());
    bare->setAutoDefault(button->autoDefault());
    bare->setDefault(button->isDefault());
    return bare;
}

QImage ground(const QWidget& widget, int ratio = 1)
{
    const std::unique_ptr<QWidget> bare = bareOf(widget);
    return drawn(*bare, ratio);
}

/// How far a picture is from the ground below it.
double contrast(const QImage& picture, const QImage& ground)
{
    double sum = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb seen = picture.pixel(x, y);
            const QRgb below = ground.pixel(x, y);
            sum += qAbs(qRed(seen) - qRed(below)) + qAbs(qGreen(seen) - qGreen(below)) +
                   qAbs(qBlue(seen) - qBlue(below));
        }
    }
    return sum;
}

bool shows(const QImage& picture, const QColor& color)
{
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y) == color) {
                return true;
            }
        }
    }
    return false;
}

QString nameOf(const QWidget& widget)
{
    return widget.objectName() + QLatin1Char(' ') + widget.property("imageBtn").toString() +
           widget.property("labelImage").toString();
}

bool isWithoutText(const QWidget& widget)
{
    const auto* const button = qobject_cast<const QPushButton*>(&widget);
    const auto* const label = qobject_cast<const QLabel*>(&widget);
    return (button && button->text().isEmpty()) ||
           (label && !label->property("labelImage").toString().isEmpty());
}

/// What stands in a window for an image: buttons without a text, and labels.
QList<QWidget*> signsIn(const QWidget& window)
{
    QList<QWidget*> found;
    for (QWidget* const widget : window.findChildren<QWidget*>()) {
        if (widget->isVisible() && isWithoutText(*widget)) {
            found.append(widget);
        }
    }
    return found;
}

/// Shows editor and chooser, one after the other.
void inEachWindow(const std::function<void(QWidget&)>& look)
{
    {
        ShownEditor editor;
        look(editor.dialog());
    }
    ChooserFixture fixture;
    fixture.setPrograms({entry(1), entry(2)});
    fixture.openExisting({[&look](ChooserWindow& chooser) {
        chooser.label("warningLab")->show();
        QCoreApplication::processEvents();
        look(*chooser.frame());
        chooser.cancel();
    }});
}

/// Shows an image of its own on every button that has a property for one.
class ImageStyle : public QProxyStyle
{
public:
    ImageStyle()
        : QProxyStyle(QStringLiteral("Fusion"))
    {}

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override
    {
        QProxyStyle::drawControl(element, option, painter, widget);
        const bool isPlace = element == CE_PushButtonLabel || element == CE_ShapedFrame;
        if (isPlace && widget && isWithoutText(*widget)) {
            painter->setBrush(Qt::red);
            painter->drawEllipse(option->rect.center(), 4, 4);
        }
    }
};

} // namespace

/// What the editor draws where a host gives no image.
class tst_BuiltInSigns : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void standInForEveryImage_data();
    void standInForEveryImage();
    void buttonsOfTitleBars();
    void areSharpOnDenseScreens();
    void areDimmedOutOfForce_data();
    void areDimmedOutOfForce();
    void haveTheColorOfThePalette();
    void pointOnwardWhereOneReads();
    void followTheFold();
    void marksCanBeSeen_data();
    void marksCanBeSeen();
    void imagesOfMarksStandAlone();
    void marksAreDrawnWhereTheyAreAskedFor();
    void theBusySignComesWithoutMovie();
    void imagesOfASheetStandAlone_data();
    void imagesOfASheetStandAlone();
    void imagesOfAStyleStandAlone();
    void aShadedGroundIsNoImage();

private:
    QTemporaryDir m_dir;
    QString m_image;
    CheckBoxImagePaths m_paths;
};

void tst_BuiltInSigns::initTestCase()
{
    QVERIFY(m_dir.isValid());
    QImage image(10, 10, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    {
        QPainter painter(&image);
        painter.setPen(Qt::NoPen);
        painter.setBrush(Qt::red);
        painter.drawEllipse(image.rect());
    }
    m_image = m_dir.filePath(QStringLiteral("image.png"));
    QVERIFY(image.save(m_image));
}

void tst_BuiltInSigns::init()
{
    checkBoxImagePaths() = CheckBoxImagePaths();
    QApplication::setStyle(QStringLiteral("Fusion"));
}

void tst_BuiltInSigns::cleanup()
{
    qApp->setStyleSheet(QString());
}

void tst_BuiltInSigns::standInForEveryImage_data()
{
    QTest::addColumn<int>("ratio");
    QTest::newRow("plain screen") << 1;
    QTest::newRow("dense screen") << 2;
}

void tst_BuiltInSigns::standInForEveryImage()
{
    QFETCH(int, ratio);
    QStringList seen;
    inEachWindow([&seen, ratio](QWidget& window) {
        for (QWidget* const widget : signsIn(window)) {
            seen.append(nameOf(*widget));
            QVERIFY2(drawn(*widget, ratio) != ground(*widget, ratio), qPrintable(nameOf(*widget)));
        }
    });
    for (const char* name :
         {"pbtCreatCopy projectSaveAs", "pushButtonDelete delete", "pushButtonAdd addPlan",
          "pushButton add", " projectSaveAs", " delete", "pushButtonChonse turnNext",
          "UpBtn moveUp", "DownBtn moveDown", "ButtonMin minimise", "ButtonScale maximise",
          "ButtonClose close", "arrow down", "arrow right", "warningLab warning"}) {
        QVERIFY2(seen.contains(QLatin1String(name)), name);
    }
}

void tst_BuiltInSigns::buttonsOfTitleBars()
{
    TitleBar bar;
    bar.show();
    bar.setButtonType(2);
    const auto buttons = bar.findChildren<QPushButton*>();
    QCOMPARE(buttons.size(), 4);
    for (QPushButton* const button : buttons) {
        QVERIFY2(drawn(*button) != ground(*button), qPrintable(nameOf(*button)));
    }
}

void tst_BuiltInSigns::areSharpOnDenseScreens()
{
    inEachWindow([](QWidget& window) {
        for (QWidget* const widget : signsIn(window)) {
            const QString name = nameOf(*widget);
            if (name.contains(QLatin1String("minimise")) || name.contains(QLatin1String("add"))) {
                continue; // What fills whole pixels of one screen fills whole ones of the other.
            }
            const QImage dense = drawn(*widget, 2);
            const QImage plain = drawn(*widget);
            QVERIFY2(dense != plain.scaled(dense.size()), qPrintable(nameOf(*widget)));
        }
        for (const char* name : {"pushButtonAdd", "pushButton"}) {
            // The bars of a plus fill whole pixels: what is not ground has one color.
            QWidget* const plus = window.findChild<QWidget*>(QLatin1String(name));
            for (const int ratio : {1, 2}) {
                if (!plus) {
                    continue;
                }
                const QImage seen = drawn(*plus, ratio);
                const QImage below = ground(*plus, ratio);
                QSet<QRgb> colors;
                for (int y = 0; y < seen.height(); ++y) {
                    for (int x = 0; x < seen.width(); ++x) {
                        if (seen.pixel(x, y) != below.pixel(x, y)) {
                            colors.insert(seen.pixel(x, y));
                        }
                    }
                }
                QCOMPARE(colors.size(), 1);
            }
        }
    });
}

void tst_BuiltInSigns::areDimmedOutOfForce_data()
{
    QTest::addColumn<QString>("sheet");
    QTest::newRow("palette") << QString();
    QTest::newRow("one color for both")
        << QStringLiteral("QPushButton, QLabel { color: #102030; }");
}

void tst_BuiltInSigns::areDimmedOutOfForce()
{
    QFETCH(QString, sheet);
    qApp->setStyleSheet(sheet);
    inEachWindow([](QWidget& window) {
        for (QWidget* const widget : signsIn(window)) {
            if (widget->objectName() == QLatin1String("dialogTipIcon")) {
                continue;
            }
            const double before = contrast(drawn(*widget), ground(*widget));
            widget->setEnabled(false);
            const double after = contrast(drawn(*widget), ground(*widget));
            QVERIFY2(after > 0, qPrintable(nameOf(*widget)));
            QVERIFY2(after < 0.8 * before, qPrintable(nameOf(*widget)));
        }
    });
}

void tst_BuiltInSigns::haveTheColorOfThePalette()
{
    inEachWindow([](QWidget& window) {
        for (QWidget* const widget : signsIn(window)) {
            QPalette palette = widget->palette();
            palette.setColor(QPalette::ButtonText, Qt::magenta);
            palette.setColor(QPalette::WindowText, Qt::magenta);
            palette.setColor(QPalette::Disabled, QPalette::ButtonText, Qt::cyan);
            palette.setColor(QPalette::Disabled, QPalette::WindowText, Qt::cyan);
            widget->setPalette(palette);
            QVERIFY2(shows(drawn(*widget, 2), Qt::magenta), qPrintable(nameOf(*widget)));
            widget->setEnabled(false);
            QVERIFY2(shows(drawn(*widget, 2), Qt::cyan), qPrintable(nameOf(*widget)));
        }
    });
}

void tst_BuiltInSigns::pointOnwardWhereOneReads()
{
    ChooserFixture fixture;
    fixture.openExisting({[](ChooserWindow& chooser) {
        const auto sign = [&chooser](const char* name, Qt::LayoutDirection direction) {
            QPushButton* const button = chooser.button(name);
            button->setLayoutDirection(direction);
            return drawn(*button);
        };
        QVERIFY(sign("pushButtonChonse", Qt::LeftToRight) !=
                sign("pushButtonChonse", Qt::RightToLeft));
        QCOMPARE(sign("UpBtn", Qt::LeftToRight), sign("UpBtn", Qt::RightToLeft));
        QVERIFY(drawn(*chooser.button("UpBtn")) != drawn(*chooser.button("DownBtn")));
        chooser.cancel();
    }});
}

void tst_BuiltInSigns::followTheFold()
{
    ShownEditor editor;
    auto* const arrow = editor.card(0).findChild<QLabel*>(QStringLiteral("arrow"));
    auto* const title = editor.card(0).findChild<QPushButton*>(QStringLiteral("title"));
    const QImage open = drawn(*arrow);
    title->click();
    QVERIFY(drawn(*arrow) != open);
    title->click();
    QCOMPARE(drawn(*arrow), open);
}

void tst_BuiltInSigns::marksCanBeSeen_data()
{
    standInForEveryImage_data();
}

void tst_BuiltInSigns::marksCanBeSeen()
{
    QFETCH(int, ratio);
    ChooserFixture fixture;
    fixture.setPrograms({entry(1), entry(2)});
    fixture.openExisting({[ratio](ChooserWindow& chooser) {
        for (QTableView* const table : {chooser.programTable(), chooser.planTable()}) {
            const auto cell = [table, ratio] {
                const QRect rect = table->visualRect(table->model()->index(0, 0));
                return drawn(*table->viewport(), ratio)
                    .copy(QRect(rect.topLeft() * ratio, rect.size() * ratio));
            };
            const auto head = [table, ratio] {
                return drawn(*table->horizontalHeader()->viewport(), ratio)
                    .copy(0, 0, 30 * ratio, 20 * ratio);
            };
            const auto hasMore = [](const QImage& image) {
                QImage plain = image;
                plain.fill(image.pixelColor(image.rect().center().x(), 1));
                return contrast(image, plain) > 0;
            };
            const QImage unchecked = cell();
            const QImage uncheckedHead = head();
            QVERIFY(hasMore(unchecked));
            const bool isLeft = table == chooser.programTable();
            isLeft ? chooser.checkAllPrograms() : chooser.checkAllPlan();
            QVERIFY(hasMore(cell()));
            QVERIFY(cell() != unchecked);
            QVERIFY(head() != uncheckedHead);
            table->horizontalHeader()->setEnabled(false);
            const QImage dimmedHead = head();
            table->horizontalHeader()->setEnabled(true);
            QVERIFY(head() != dimmedHead);
            const QImage checked = cell();
            table->setEnabled(false);
            QVERIFY(cell() != checked);
            table->setEnabled(true);
        }
        chooser.cancel();
    }});
}

void tst_BuiltInSigns::imagesOfMarksStandAlone()
{
    QImage nothing(12, 12, QImage::Format_ARGB32);
    nothing.fill(Qt::transparent);
    const QString path = m_dir.filePath(QStringLiteral("nothing.png"));
    QVERIFY(nothing.save(path));
    checkBoxImagePaths() = {path, path};
    ChooserFixture fixture;
    fixture.openExisting({[](ChooserWindow& chooser) {
        QTableView* const table = chooser.programTable();
        const auto marks = [table] {
            const QRect rect = table->visualRect(table->model()->index(0, 0));
            return drawn(*table->viewport()).copy(rect.adjusted(2, 2, -2, -2));
        };
        const auto head = [table] { return drawn(*table->horizontalHeader()->viewport()); };
        const QImage unchecked = marks();
        QImage plain = unchecked;
        plain.fill(plain.pixelColor(1, 1));
        QCOMPARE(unchecked, plain);
        const QImage uncheckedHead = head();
        chooser.checkAllPrograms();
        QCOMPARE(marks(), plain);
        QCOMPARE(head(), uncheckedHead);
        chooser.cancel();
    }});
}

void tst_BuiltInSigns::marksAreDrawnWhereTheyAreAskedFor()
{
    QStandardItemModel model(1, 1);
    QTableView table;
    auto* const header = new SHeaderView(ProgramListCheck, Qt::Horizontal, &table);
    auto* const delegate = new CheckBoxDelegate(ProgramListCheck, &table);
    table.setHorizontalHeader(header);
    table.setItemDelegate(delegate);
    table.setModel(&model);
    table.show();
    const auto picture = [&table] { return drawn(*table.viewport()); };
    const auto head = [header] { return drawn(*header->viewport()); };
    const QImage without = picture();
    const QImage headWithout = head();
    model.setData(model.index(0, 0), true, Qt::UserRole);
    header->setChecked(true);
    QCOMPARE(picture(), without);
    QCOMPARE(head(), headWithout);
    delegate->drawMissingImages();
    header->drawMissingImages();
    QVERIFY(picture() != without);
    QVERIFY(head() != headWithout);
}

void tst_BuiltInSigns::theBusySignComesWithoutMovie()
{
    initProcess busy;
    QDialog bare;
    bare.setFixedSize(busy.size());
    QVERIFY(drawn(busy) != drawn(bare));
    auto* const label = busy.findChild<QLabel*>();
    label->hide();
    label->movie()->setFileName(QStringLiteral(SOURCE_DIR "/resources/images/refresh.gif"));
    QVERIFY(label->movie()->isValid());
    QCOMPARE(drawn(busy), drawn(bare));
    label->movie()->setFileName(QString());
    QVERIFY(drawn(busy, 2) != drawn(busy).scaled(busy.size() * 2));
}

void tst_BuiltInSigns::imagesOfASheetStandAlone_data()
{
    QTest::addColumn<QString>("declaration");
    QTest::newRow("image") << QStringLiteral("image: url(%1)");
    QTest::newRow("background") << QStringLiteral(
        "background: #e0e0e0 url(%1) center no-repeat; border: none");
    QTest::newRow("border") << QStringLiteral("border: 1px solid gray; border-radius: 3px; "
                                              "image: url(%1)");
    QTest::newRow("icon") << QStringLiteral("border: none; icon: url(%1)");
    QTest::newRow("property") << QStringLiteral("qproperty-icon: url(%1)");
}

void tst_BuiltInSigns::imagesOfASheetStandAlone()
{
    QFETCH(QString, declaration);
    const bool isForLabels = !declaration.contains(QLatin1String("icon"));
    qApp->setStyleSheet(
        QStringLiteral("QPushButton[imageBtn] { %1 }").arg(declaration) +
        (isForLabels ? QStringLiteral("QLabel[labelImage] { %1 }").arg(declaration) : QString()));
    qApp->setStyleSheet(qApp->styleSheet().replace(QLatin1String("%1"), m_image));
    int seen = 0;
    inEachWindow([&seen, isForLabels](QWidget& window) {
        for (QWidget* const widget : signsIn(window)) {
            if (!isForLabels && qobject_cast<QLabel*>(widget)) {
                continue;
            }
            ++seen;
            const QImage image = drawn(*widget);
            QVERIFY2(image.pixelColor(image.rect().center()).red() > 200,
                     qPrintable(nameOf(*widget)));
            QVERIFY2(image == ground(*widget), qPrintable(nameOf(*widget)));
        }
    });
    QVERIFY(seen > 15);
}

void tst_BuiltInSigns::imagesOfAStyleStandAlone()
{
    QApplication::setStyle(new ImageStyle);
    int seen = 0;
    inEachWindow([&seen](QWidget& window) {
        for (QWidget* const widget : signsIn(window)) {
            ++seen;
            QVERIFY2(drawn(*widget) == ground(*widget), qPrintable(nameOf(*widget)));
        }
    });
    QVERIFY(seen > 15);
}

void tst_BuiltInSigns::aShadedGroundIsNoImage()
{
    qApp->setStyleSheet(QStringLiteral(
        "QPushButton, QLabel { background: qlineargradient(x1:0, y1:0, x2:1, y2:1, stop:0 #fff, "
        "stop:1 #bbb); border: 1px solid #333; border-radius: 3px; }"));
    inEachWindow([](QWidget& window) {
        for (QWidget* const widget : signsIn(window)) {
            QVERIFY2(drawn(*widget) != ground(*widget), qPrintable(nameOf(*widget)));
        }
    });
}

TREL_TEST(tst_BuiltInSigns, QApplication)
#include "tst_BuiltInSigns.moc"
