#include "kCustomLineEdit.h"

#include "TellingText.h"
#include "support/RecordingService.h"
#include "support/TestProgram.h"

#include <QAccessible>
#include <QApplication>
#include <QFontMetrics>
#include <QLayout>
#include <QPointer>
#include <QProxyStyle>
#include <QPushButton>
#include <QSignalSpy>
#include <QStyleOptionButton>
#include <QtTest>

using namespace trel::mediadispatch;

namespace {

QFontMetrics fieldMetrics()
{
    QFont font;
    font.setFamily(QStringLiteral("Microsoft YaHei"));
    font.setPointSize(11);
    return QFontMetrics(font);
}

QPushButton* half(kCustomLineEdit& field, const char* name)
{
    return field.findChild<QPushButton*>(QLatin1String(name));
}

/// Takes down the labels of buttons as they are seen, the mark of a shortcut in brackets.
class LabelStyle : public QProxyStyle
{
public:
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override
    {
        if (element == CE_PushButtonLabel) {
            QString text = qstyleoption_cast<const QStyleOptionButton*>(option)->text;
            text.replace(QLatin1String("&&"), QString(QChar::Null));
            text.replace(QLatin1Char('&'), QLatin1String("[]"));
            visible.append(text.replace(QChar::Null, QLatin1Char('&')));
        }
        QProxyStyle::drawControl(element, option, painter, widget);
    }

    mutable QStringList visible;
};

} // namespace

class tst_kCustomLineEdit : public QObject
{
    Q_OBJECT

private slots:
    void init() { RecordingService::instance().reset(); }

    void form();
    void bothHalvesTellTheRow_data();
    void bothHalvesTellTheRow();
    void readsTheTextAfterTheSignal();
    void emptySelectionShowsAnEmptyField();
    void aDirectCallDoesNothing();
    void cutsALongText_data();
    void cutsALongText();
    void cutsFromTheWidthOn();
    void keepsWhatHasRoomAsItIs();
    void anAmpersandIsNoShortcut();
    void anAmpersandIsShown();
    void cutsWhatTheServiceHolds();
    void longTextsLeaveThePlusButtonInPlace();
    void mayDieInsideItsSignal();
};

void tst_kCustomLineEdit::form()
{
    kCustomLineEdit field;
    QCOMPARE(field.objectName(), QStringLiteral("kCustomLineEdit"));
    QCOMPARE(field.windowTitle(), QStringLiteral("kCustomLineEdit"));
    QCOMPARE(field.size(), QSize(150, 24));
    QCOMPARE(field.minimumSize(), QSize(150, 24));
    QCOMPARE(field.maximumSize(), QSize(150, 24));
    QCOMPARE(field.sizePolicy(), QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed));
    QVERIFY(field.testAttribute(Qt::WA_StyledBackground));
    QCOMPARE(field.property("style").toString(), QStringLiteral("BG3"));
    QCOMPARE(field.row(), -1);
    QCOMPARE(field.text(), QString());

    const auto* const outer = field.layout();
    QVERIFY(outer);
    QCOMPARE(outer->objectName(), QStringLiteral("verticalLayout_2"));
    QCOMPARE(outer->spacing(), 0);
    QCOMPARE(outer->contentsMargins(), QMargins());

    const auto* const frame = field.findChild<QFrame*>(QStringLiteral("frame"));
    QVERIFY(frame);
    QCOMPARE(frame->minimumSize(), QSize(0, 24));
    QCOMPARE(frame->maximumSize(), QSize(16777215, 24));
    QCOMPARE(frame->styleSheet(), QString());
    QCOMPARE(frame->frameShape(), QFrame::StyledPanel);
    QCOMPARE(frame->frameShadow(), QFrame::Raised);
    QCOMPARE(frame->lineWidth(), 0);
    QCOMPARE(frame->layout()->objectName(), QStringLiteral("horizontalLayout"));
    QCOMPARE(frame->layout()->spacing(), 0);
    QCOMPARE(frame->layout()->contentsMargins(), QMargins());

    const QPushButton* const text = half(field, "lineEdit");
    const QPushButton* const plus = half(field, "pushButton");
    QVERIFY(text && plus);
    QCOMPARE(frame->layout()->itemAt(0)->widget(), text);
    QCOMPARE(frame->layout()->itemAt(1)->widget(), plus);
    QCOMPARE(plus->minimumSize(), QSize(24, 24));
    QCOMPARE(plus->maximumSize(), QSize(24, 24));
    QCOMPARE(plus->property("imageBtn").toString(), QStringLiteral("add"));
    QCOMPARE(plus->text(), QString());
    QCOMPARE(text->focusPolicy(), Qt::NoFocus);
    QCOMPARE(plus->focusPolicy(), Qt::NoFocus);
}

void tst_kCustomLineEdit::bothHalvesTellTheRow_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("text") << QStringLiteral("lineEdit");
    QTest::newRow("plus") << QStringLiteral("pushButton");
}

void tst_kCustomLineEdit::bothHalvesTellTheRow()
{
    QFETCH(QString, name);

    kCustomLineEdit field;
    field.setRow(4);
    field.show();
    QSignalSpy clicked(&field, &kCustomLineEdit::signalClicked);
    QVERIFY(clicked.isValid());

    QTest::mouseClick(half(field, name.toLatin1().constData()), Qt::LeftButton);
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(clicked.first().first().toInt(), 4);

    field.setRow(3);
    QTest::mouseClick(half(field, name.toLatin1().constData()), Qt::LeftButton);
    QCOMPARE(clicked.count(), 2);
    QCOMPARE(clicked.last().first().toInt(), 3);
}

void tst_kCustomLineEdit::readsTheTextAfterTheSignal()
{
    kCustomLineEdit field;
    RecordingService::instance().selectedProgram = "before";
    connect(&field, &kCustomLineEdit::signalClicked, &field, [&field](int row) {
        QCOMPARE(RecordingService::instance().count(QStringLiteral("getqstrSelectedProgram")), 0);
        QCOMPARE(field.text(), QString());
        scheduleManage::getInstance().setqstrSelectedProgram("news " + std::to_string(row));
    });
    field.setRow(2);

    half(field, "pushButton")->click();

    QCOMPARE(field.text(), QStringLiteral("news 2"));
    QCOMPARE(RecordingService::instance().edits(),
             (QStringList{QStringLiteral("setqstrSelectedProgram(\"news 2\")"),
                          QStringLiteral("getqstrSelectedProgram()")}));
}

void tst_kCustomLineEdit::emptySelectionShowsAnEmptyField()
{
    kCustomLineEdit field;
    QString text = QStringLiteral("news");
    field.setText(text);
    half(field, "lineEdit")->click();
    QCOMPARE(field.text(), QString());
}

void tst_kCustomLineEdit::aDirectCallDoesNothing()
{
    kCustomLineEdit field;
    QString text = QStringLiteral("news");
    field.setText(text);
    QSignalSpy clicked(&field, &kCustomLineEdit::signalClicked);
    QVERIFY(clicked.isValid());

    field.slotClicked();

    QCOMPARE(clicked.count(), 0);
    QCOMPARE(field.text(), QStringLiteral("news"));
    QCOMPARE(RecordingService::instance().log, QStringList());
}

void tst_kCustomLineEdit::cutsALongText_data()
{
    QTest::addColumn<int>("otherWidth");
    QTest::newRow("not at 133") << 133;
    QTest::newRow("not at 135") << 135;
}

void tst_kCustomLineEdit::cutsALongText()
{
    QFETCH(int, otherWidth);

    kCustomLineEdit field;
    const QString whole = tellingText(fieldMetrics(), 134, otherWidth);
    QVERIFY(!whole.isEmpty());
    QString text = whole;
    field.setText(text);
    QCOMPARE(field.text(), fieldMetrics().elidedText(whole, Qt::ElideRight, 134));
    QVERIFY(field.text().endsWith(QChar(0x2026)));
    QCOMPARE(text, field.text());
}

void tst_kCustomLineEdit::cutsFromTheWidthOn()
{
    const QFontMetrics metrics = fieldMetrics();
    QString widest;
    while (metrics.horizontalAdvance(widest + QLatin1Char('i')) < 134) {
        widest += QLatin1Char('i');
    }
    kCustomLineEdit field;
    QString text = widest;
    field.setText(text);
    QCOMPARE(field.text(), widest);
    QCOMPARE(text, widest);

    // From 134 pixels on the text goes through the cutter, which leaves one of exactly 134 alone.
    QString wider = widest + QStringLiteral("ii");
    const QString expected = metrics.elidedText(wider, Qt::ElideRight, 134);
    field.setText(wider);
    QCOMPARE(field.text(), expected);
    QCOMPARE(wider, expected);
}

void tst_kCustomLineEdit::keepsWhatHasRoomAsItIs()
{
    // The toolkit takes U+009C for the mark between a text and its shorter forms.
    const QString whole = QStringLiteral("News") + QChar(0x9c) + QStringLiteral("N");
    kCustomLineEdit field;
    QString text = whole;
    field.setText(text);
    QCOMPARE(field.text(), whole);
    QCOMPARE(text, whole);
    QCOMPARE(half(field, "lineEdit")->text(), whole);
}

void tst_kCustomLineEdit::anAmpersandIsNoShortcut()
{
    QWidget window;
    kCustomLineEdit field(&window);
    QString text = QStringLiteral("R&D && A & B");
    const QString whole = text;
    field.setText(text);
    QCOMPARE(text, whole);
    QCOMPARE(field.text(), whole);
    QPushButton* const shown = half(field, "lineEdit");
    QCOMPARE(shown->text(), whole);
    QCOMPARE(shown->shortcut(), QKeySequence());
    QCOMPARE(QAccessible::queryAccessibleInterface(shown)->text(QAccessible::Name), whole);

    QSignalSpy clicked(&field, &kCustomLineEdit::signalClicked);
    QVERIFY(clicked.isValid());
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&window, Qt::Key_D, Qt::AltModifier);
    QTest::qWait(0);
    QCOMPARE(clicked.count(), 0);

    text = QStringLiteral("News");
    field.setText(text);
    QCOMPARE(QAccessible::queryAccessibleInterface(shown)->text(QAccessible::Name), text);
}

void tst_kCustomLineEdit::anAmpersandIsShown()
{
    LabelStyle style;
    kCustomLineEdit field;
    QPushButton* const shown = half(field, "lineEdit");
    shown->setStyle(&style);
    QString text = QStringLiteral("R&D && A & B");
    field.setText(text);
    field.grab();
    QCOMPARE(style.visible, QStringList(text));
}

void tst_kCustomLineEdit::cutsWhatTheServiceHolds()
{
    RecordingService::instance().selectedProgram = std::string(200, 'w');
    kCustomLineEdit field;
    half(field, "lineEdit")->click();
    QVERIFY(field.text().endsWith(QChar(0x2026)));
    QCOMPARE(RecordingService::instance().selectedProgram, std::string(200, 'w'));
}

void tst_kCustomLineEdit::longTextsLeaveThePlusButtonInPlace()
{
    kCustomLineEdit field;
    field.show();
    const QPushButton* const plus = half(field, "pushButton");
    const QRect place = plus->geometry();
    QString text(200, QLatin1Char('w'));
    field.setText(text);
    field.layout()->activate();
    QCoreApplication::processEvents();
    QCOMPARE(plus->geometry(), place);
    QCOMPARE(plus->width(), 24);
    QVERIFY(field.rect().contains(plus->mapTo(&field, QPoint(23, 0))));
}

void tst_kCustomLineEdit::mayDieInsideItsSignal()
{
    auto* const field = new kCustomLineEdit;
    const QPointer<kCustomLineEdit> watched(field);
    connect(field, &kCustomLineEdit::signalClicked, this, [field] { field->deleteLater(); });
    half(*field, "pushButton")->click();
    QCoreApplication::sendPostedEvents(field, QEvent::DeferredDelete);
    QVERIFY(!watched);
}

TREL_TEST(tst_kCustomLineEdit, QApplication)
#include "tst_kCustomLineEdit.moc"
