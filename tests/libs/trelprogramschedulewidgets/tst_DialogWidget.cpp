#include "ChosenLanguage.h"
#include "DialogWidget.h"
#include "TitleBar.h"
#include "support/MessageLog.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QResource>
#include <QtTest>

#include <memory>

using trel::mediadispatch::DialogWidget;
using trel::mediadispatch::TitleBar;

/// How the dialog is built and set up; tst_DialogWidgetRun runs it.
class tst_DialogWidget : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void isAFramelessModalWindow();
    void stacksThreeBands();
    void showsItsDefaultTexts();
    void showsATitleAloneInItsBar();
    void pushesItsButtonsRight();
    void setsTexts();
    void replacesTheTipByAWidget();
    void showsAndHidesEachButton_data();
    void showsAndHidesEachButton();
    void setButtons_data();
    void setButtons();
    void setButtonsShowsNothingAgain();
    void setButtonEnabled_data();
    void setButtonEnabled();
    void switchesMaximiseAndRestore();
    void retranslatesItsButtonsAlone();
    void takesTheStyleSheetOfTheHost();
    void goesWithoutAStyleSheet();

private:
    template <typename T>
    T* child(const char* name) const
    {
        return m_dialog->findChild<T*>(QLatin1String(name));
    }
    QHBoxLayout* buttonRow() const;
    QWidget* spacer(int place) const { return buttonRow()->itemAt(place)->widget(); }
    /// What would show of the button row, such as "accept cancel | left".
    QString shown() const;
    QString texts() const;

    std::unique_ptr<DialogWidget> m_dialog;
};

void tst_DialogWidget::init()
{
    m_dialog = std::make_unique<DialogWidget>();
}

void tst_DialogWidget::cleanup()
{
    m_dialog.reset();
}

QHBoxLayout* tst_DialogWidget::buttonRow() const
{
    return qobject_cast<QHBoxLayout*>(child<QWidget>("dialogBottom")->layout());
}

QString tst_DialogWidget::shown() const
{
    QStringList row;
    if (!child<QPushButton>("dialogAcceptBtn")->isHidden())
        row << QStringLiteral("accept");
    if (!child<QPushButton>("dialogRejectBtn")->isHidden())
        row << QStringLiteral("reject");
    if (!child<QPushButton>("dialogCancelBtn")->isHidden())
        row << QStringLiteral("cancel");
    row << QStringLiteral("|");
    if (!spacer(0)->isHidden())
        row << QStringLiteral("left");
    if (!spacer(1)->isHidden())
        row << QStringLiteral("right");
    return row.join(QLatin1Char(' '));
}

QString tst_DialogWidget::texts() const
{
    return QStringList{child<QLabel>("TitleLabel")->text(), child<QLabel>("dialogTipLabel")->text(),
                       child<QPushButton>("dialogAcceptBtn")->text(),
                       child<QPushButton>("dialogRejectBtn")->text(),
                       child<QPushButton>("dialogCancelBtn")->text()}
        .join(QLatin1Char(' '));
}

void tst_DialogWidget::isAFramelessModalWindow()
{
    QCOMPARE(m_dialog->objectName(), QStringLiteral("dialogWidget"));
    QCOMPARE(m_dialog->windowModality(), Qt::ApplicationModal);
    QVERIFY(m_dialog->isModal());
    QVERIFY(m_dialog->isWindow());
    const int added = 2113;
    QCOMPARE(int(m_dialog->windowFlags()) & added, added);
    // The flags of a dialog are still there.
    QCOMPARE(int(m_dialog->windowFlags()) & int(QDialog().windowFlags()),
             int(QDialog().windowFlags()));
    QVERIFY(m_dialog->acceptDrops());
    QVERIFY(m_dialog->testAttribute(Qt::WA_TranslucentBackground));
    QCOMPARE(m_dialog->contextMenuPolicy(), Qt::NoContextMenu);
    QCOMPARE(m_dialog->minimumSize(), QSize(320, 170));
}

void tst_DialogWidget::stacksThreeBands()
{
    auto* layout = qobject_cast<QVBoxLayout*>(m_dialog->layout());
    QVERIFY(layout != nullptr);
    QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(layout->spacing(), 0);
    QStringList bands;
    for (int i = 0; i < layout->count(); ++i)
        bands << layout->itemAt(i)->widget()->objectName();
    QCOMPARE(bands.join(QLatin1Char(' ')), QStringLiteral("dialogTitle dialogCenter dialogBottom"));

    const auto* title = child<TitleBar>("dialogTitle");
    QCOMPARE(title->minimumHeight(), 35);
    QCOMPARE(title->maximumHeight(), 35);
    QCOMPARE(title->contextMenuPolicy(), Qt::NoContextMenu);
    QCOMPARE(title->parentWidget(), static_cast<QWidget*>(m_dialog.get()));

    auto* center = qobject_cast<QVBoxLayout*>(child<QWidget>("dialogCenter")->layout());
    QVERIFY(center != nullptr);
    QCOMPARE(center->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(center->itemAt(0)->widget(), child<QWidget>("dialogTipLabel"));
    QCOMPARE(child<QLabel>("dialogTipLabel")->contentsMargins(), QMargins(10, 15, 10, 15));
    QCOMPARE(child<QLabel>("dialogTipLabel")->alignment(), Qt::AlignLeft | Qt::AlignVCenter);

    QCOMPARE(child<QWidget>("dialogBottom")->maximumHeight(), 46);
    QCOMPARE(buttonRow()->spacing(), 10);
    QCOMPARE(buttonRow()->contentsMargins(), QMargins(28, 8, 20, 8));
    QCOMPARE(buttonRow()->count(), 5);
    QCOMPARE(buttonRow()->itemAt(2)->widget(), child<QWidget>("dialogAcceptBtn"));
    QCOMPARE(buttonRow()->itemAt(3)->widget(), child<QWidget>("dialogRejectBtn"));
    QCOMPARE(buttonRow()->itemAt(4)->widget(), child<QWidget>("dialogCancelBtn"));
    for (const int place : {0, 1}) {
        const auto* label = qobject_cast<QLabel*>(spacer(place));
        QVERIFY(label != nullptr);
        QCOMPARE(label->styleSheet(), QStringLiteral("background:transparent"));
        QCOMPARE(label->text(), QString());
        QCOMPARE(label->maximumHeight(), 2);
        QCOMPARE(label->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
        QCOMPARE(label->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
    }
}

void tst_DialogWidget::showsItsDefaultTexts()
{
    QCOMPARE(texts(), QStringLiteral("zhtitleTip zhtitleTip zhFixAct zhRefuseAct zhCancelAct"));
    const ChosenLanguage english;
    QVERIFY(english.isLoaded());
    m_dialog = std::make_unique<DialogWidget>();
    QCOMPARE(texts(), QStringLiteral("Note Note OK Refuse Cancel"));
}

void tst_DialogWidget::showsATitleAloneInItsBar()
{
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_dialog.get()));
    const auto* bar = child<TitleBar>("dialogTitle");
    QVERIFY(bar->isVisible());
    QCOMPARE(bar->height(), 35);
    QVERIFY(bar->findChild<QLabel*>(QStringLiteral("TitleLabel"))->isVisible());
    QVERIFY(!bar->findChild<QComboBox*>()->isVisible());
    const auto buttons = bar->findChildren<QPushButton*>();
    QCOMPARE(buttons.size(), 4);
    for (const QPushButton* each : buttons)
        QVERIFY(!each->isVisible());
}

void tst_DialogWidget::pushesItsButtonsRight()
{
    m_dialog->resize(500, 200);
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_dialog.get()));
    const auto rightEnd = [this](const char* name) {
        const auto* button = child<QPushButton>(name);
        return button->mapTo(m_dialog.get(), button->rect().topRight()).x() + 1;
    };
    QCOMPARE(rightEnd("dialogCancelBtn"), 480);
    m_dialog->setButtons(DialogWidget::AcceptButton);
    QTRY_COMPARE(rightEnd("dialogAcceptBtn"), 480);
}

void tst_DialogWidget::setsTexts()
{
    m_dialog->setTitle(QStringLiteral("Title"));
    m_dialog->setTipText(QStringLiteral("Tip"), Qt::AlignRight | Qt::AlignTop);
    m_dialog->setAcceptText(QStringLiteral("Yes"));
    m_dialog->setCancelText(QStringLiteral("No"));
    QCOMPARE(texts(), QStringLiteral("Title Tip Yes zhRefuseAct No"));
    QCOMPARE(child<QLabel>("dialogTipLabel")->alignment(), Qt::AlignRight | Qt::AlignTop);
}

void tst_DialogWidget::replacesTheTipByAWidget()
{
    auto* first = new QLabel(QStringLiteral("first"));
    auto* second = new QLabel(QStringLiteral("second"));
    m_dialog->setContentWidget(first);
    QVERIFY(child<QLabel>("dialogTipLabel")->isHidden());
    auto* center = child<QWidget>("dialogCenter");
    QCOMPARE(first->parentWidget(), center);
    QCOMPARE(center->layout()->contentsMargins(), QMargins(1, 0, 1, 0));
    QCOMPARE(qobject_cast<QVBoxLayout*>(center->layout())->stretch(1), 0);
    QCOMPARE(center->layout()->itemAt(1)->alignment(), Qt::Alignment());

    m_dialog->setContentWidget(second);
    QCOMPARE(center->layout()->indexOf(first), 1);
    QCOMPARE(center->layout()->indexOf(second), 2);
    m_dialog->show();
    QVERIFY(first->isVisible() && second->isVisible());
    QTRY_COMPARE(first->width(), m_dialog->width() - 2);
}

void tst_DialogWidget::showsAndHidesEachButton_data()
{
    QTest::addColumn<QString>("calls"); // a letter per button, in capitals for show
    QTest::addColumn<QString>("expected");

    const auto row = [](const char* calls, const char* expected) {
        QTest::newRow(calls) << QString::fromLatin1(calls) << QString::fromLatin1(expected);
    };
    row("", "accept reject cancel | right");
    row("a", "reject cancel | right");
    row("aA", "accept reject cancel | right");
    row("c", "accept reject | left right");
    row("cC", "accept reject cancel | right");
    row("r", "accept cancel | left");
    row("rR", "accept reject cancel | right");
    row("rC", "accept cancel |");
    row("cR", "accept reject | right");
    row("acr", "| left");
}

void tst_DialogWidget::showsAndHidesEachButton()
{
    QFETCH(const QString, calls);
    QFETCH(const QString, expected);
    for (const QChar call : calls) {
        if (call.toLower() == QLatin1Char('a'))
            m_dialog->setAcceptVisible(call.isUpper());
        if (call.toLower() == QLatin1Char('r'))
            m_dialog->setRejectVisible(call.isUpper());
        if (call.toLower() == QLatin1Char('c'))
            m_dialog->setCancelVisible(call.isUpper());
    }
    QCOMPARE(shown(), expected);
}

void tst_DialogWidget::setButtons_data()
{
    QTest::addColumn<int>("flags");
    QTest::addColumn<QString>("expected");

    const auto row = [](const char* name, int flags, const char* expected) {
        QTest::newRow(name) << flags << QString::fromLatin1(expected);
    };
    const char* const untouched = "accept reject cancel | right";
    row("none", 0, "| left");
    row("accept", 4, "accept | left");
    row("reject", 32768, "reject | left right");
    row("cancel", 16384, "cancel | left");
    row("accept and reject", 32772, "accept reject | left right");
    row("accept and cancel", 16388, "accept cancel | left");
    row("reject and cancel", 49152, "reject cancel | right");
    row("all three", 49156, untouched);
    row("accept with a foreign bit", 5, untouched);
    row("a foreign bit", 1, untouched);
    row("negative", -1, untouched);
}

void tst_DialogWidget::setButtons()
{
    QFETCH(const int, flags);
    QFETCH(const QString, expected);
    m_dialog->setButtons(flags);
    QCOMPARE(shown(), expected);
}

void tst_DialogWidget::setButtonsShowsNothingAgain()
{
    m_dialog->setButtons(32772);
    QCOMPARE(shown(), QStringLiteral("accept reject | left right"));
    m_dialog->setButtons(4);
    QCOMPARE(shown(), QStringLiteral("accept | left"));
    m_dialog->setButtons(32772);
    QCOMPARE(shown(), QStringLiteral("accept | left"));
    m_dialog->setButtons(49156);
    QCOMPARE(shown(), QStringLiteral("accept | left"));
    m_dialog->setRejectVisible(true);
    QCOMPARE(shown(), QStringLiteral("accept reject | right"));
}

void tst_DialogWidget::setButtonEnabled_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<QString>("disabled");
    QTest::newRow("accept") << 4 << QStringLiteral("dialogAcceptBtn");
    QTest::newRow("reject") << 32768 << QStringLiteral("dialogRejectBtn");
    QTest::newRow("cancel") << 16384 << QStringLiteral("dialogCancelBtn");
    QTest::newRow("two at once") << 32772 << QString();
    QTest::newRow("none") << 0 << QString();
}

void tst_DialogWidget::setButtonEnabled()
{
    QFETCH(const int, button);
    QFETCH(const QString, disabled);
    const auto disabledButtons = [this] {
        QStringList names;
        for (const char* name : {"dialogAcceptBtn", "dialogRejectBtn", "dialogCancelBtn"}) {
            if (!child<QPushButton>(name)->isEnabled())
                names << QString::fromLatin1(name);
        }
        return names.join(QLatin1Char(' '));
    };
    m_dialog->setButtonEnabled(button, false);
    QCOMPARE(disabledButtons(), disabled);
    m_dialog->setButtonEnabled(button, true);
    QCOMPARE(disabledButtons(), QString());
}

void tst_DialogWidget::switchesMaximiseAndRestore()
{
    auto* bar = child<TitleBar>("dialogTitle");
    auto* maximise = child<QPushButton>("ButtonMax");
    auto* restore = child<QPushButton>("ButtonRestore");
    QStringList log;
    const auto note = [&](const char* what) {
        log << QStringLiteral("%1:%2%3")
                   .arg(QLatin1String(what))
                   .arg(!maximise->isHidden())
                   .arg(!restore->isHidden());
    };
    connect(m_dialog.get(), &DialogWidget::signalMaxButtonCLicked, this, [&] { note("max"); });
    connect(m_dialog.get(), &DialogWidget::signalRestoreButtonCLicked, this,
            [&] { note("restore"); });
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_dialog.get()));

    bar->setMaxVisible(true);
    QTest::mouseClick(maximise, Qt::LeftButton);
    QTest::mouseClick(restore, Qt::LeftButton);
    QCOMPARE(log, QStringList({QStringLiteral("max:01"), QStringLiteral("restore:10")}));
    QVERIFY(!m_dialog->isMaximized());
}

void tst_DialogWidget::retranslatesItsButtonsAlone()
{
    m_dialog->setTitle(QStringLiteral("Title"));
    m_dialog->setTipText(QStringLiteral("Tip"), Qt::AlignLeft);
    m_dialog->setAcceptText(QStringLiteral("Yes"));
    ChosenLanguage english;
    QCOMPARE(texts(), QStringLiteral("Title Tip Yes zhRefuseAct zhCancelAct"));
    QVERIFY(english.tell());
    QTRY_COMPARE(texts(), QStringLiteral("Title Tip OK Refuse Cancel"));
}

void tst_DialogWidget::takesTheStyleSheetOfTheHost()
{
    const QString resource = QStringLiteral(DIALOG_TEST_RESOURCE);
    QVERIFY(QResource::registerResource(resource));
    const MessageLog log;
    m_dialog = std::make_unique<DialogWidget>();
    QVERIFY(QResource::unregisterResource(resource));

    const QString sheet = m_dialog->styleSheet();
    // Read as Latin-1, up to the zero byte that the file carries in its middle.
    QVERIFY(sheet.contains(QStringLiteral("caf\u00e9")));
    QVERIFY(sheet.endsWith(QLatin1String("{ color: #405060 }\n")));
    QCOMPARE(child<TitleBar>("dialogTitle")->styleSheet(), sheet);
    m_dialog->ensurePolished();
    auto* tip = child<QLabel>("dialogTipLabel");
    tip->ensurePolished();
    QCOMPARE(tip->palette().color(QPalette::WindowText), QColor(0x10, 0x20, 0x30));
    QCOMPARE(tip->text(), QStringLiteral("caf\u00e9"));
    QCOMPARE(tip->contentsMargins(), QMargins(10, 15, 10, 15));
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_dialog.get()));
    QCOMPARE(tip->contentsMargins(), QMargins(10, 15, 10, 15));
    QCOMPARE(log.texts(), QStringList());
}

void tst_DialogWidget::goesWithoutAStyleSheet()
{
    const MessageLog log;
    m_dialog = std::make_unique<DialogWidget>();
    QCOMPARE(m_dialog->styleSheet(), QString());
    QCOMPARE(child<TitleBar>("dialogTitle")->styleSheet(), QString());
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_dialog.get()));
    m_dialog->grab();
    QCOMPARE(log.texts(), QStringList());
}

TREL_TEST(tst_DialogWidget, QApplication)

#include "tst_DialogWidget.moc"
