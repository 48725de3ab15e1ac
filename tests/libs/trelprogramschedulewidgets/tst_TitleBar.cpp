#include "ChosenLanguage.h"
#include "Mouse.h"
#include "TitleBar.h"
#include "libs/tstranslate/QmBytes.h"
#include "support/MessageLog.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryFile>
#include <QTextDocument>
#include <QtTest>

#include <memory>

using trel::mediadispatch::TitleBar;

namespace {

constexpr int kWidth = 600;

/// Counts the mouse moves that reach the widgets it filters.
class MoveCounter : public QObject
{
public:
    QStringList seen;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::MouseMove)
            seen << watched->objectName();
        return false;
    }
};

} // namespace

class tst_TitleBar : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void startsWithMinimiseAndClose();
    void namesItsControlsForStyleSheets();
    void laysOutItsControls();
    void showsATitleOnceItIsSet();
    void setButtonType_data();
    void setButtonType();
    void aHiddenRestoreStaysHiddenWhenMaximised();
    void visibilityOfEachButton();
    void tellsOfClicks();
    void maximiseAndRestoreSwitchTheLayoutFirst();
    void selectsALanguage();
    void ignoresALanguageOutOfRange();
    void retranslatesWhenTheToolkitSaysSo();
    void textsOfALanguageAreNoMarkup();
    void letsAFilterHoverOverTitleAndButtons();
    void takesNoHoverFilterToo();
    void paintsTheBackgroundOfAStyleSheetAlone();
    void aSheetReachesEveryControl();
    void isQuiet();

private:
    QPushButton* button(const char* name) const;
    QPushButton* closeButton() const;
    /// The buttons that would show, such as "min close".
    QString shown() const;
    QString toolTips() const;
    QPoint middleOf(const QWidget* widget) const;

    std::unique_ptr<QWidget> m_window;
    TitleBar* m_bar = nullptr;
};

void tst_TitleBar::init()
{
    m_window = std::make_unique<QWidget>();
    m_window->setWindowFlags(Qt::FramelessWindowHint);
    m_window->setGeometry(100, 100, kWidth, 200);
    m_bar = new TitleBar(m_window.get());
    m_bar->setGeometry(0, 0, kWidth, m_bar->height());
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void tst_TitleBar::cleanup()
{
    m_window.reset();
}

QPushButton* tst_TitleBar::button(const char* name) const
{
    return m_bar->findChild<QPushButton*>(QLatin1String(name));
}

QPushButton* tst_TitleBar::closeButton() const
{
    const auto buttons = m_bar->findChildren<QPushButton*>();
    for (QPushButton* each : buttons) {
        if (each->property("imageBtn") == QLatin1String("close"))
            return each;
    }
    return nullptr;
}

QString tst_TitleBar::shown() const
{
    QStringList names;
    if (!button("ButtonMin")->isHidden())
        names << QStringLiteral("min");
    if (!button("ButtonRestore")->isHidden())
        names << QStringLiteral("restore");
    if (!button("ButtonMax")->isHidden())
        names << QStringLiteral("max");
    if (!closeButton()->isHidden())
        names << QStringLiteral("close");
    return names.join(QLatin1Char(' '));
}

QString tst_TitleBar::toolTips() const
{
    return QStringList{button("ButtonMin")->toolTip(), button("ButtonRestore")->toolTip(),
                       button("ButtonMax")->toolTip(), closeButton()->toolTip()}
        .join(QLatin1Char(' '));
}

QPoint tst_TitleBar::middleOf(const QWidget* widget) const
{
    return widget->mapToGlobal(widget->rect().center());
}

void tst_TitleBar::startsWithMinimiseAndClose()
{
    QCOMPARE(shown(), QStringLiteral("min close"));
    QCOMPARE(toolTips(), QStringLiteral("zhMinAct zhReductionAct zhMaxAct zhCloseAct"));
    QVERIFY(m_bar->findChild<QLabel*>(QStringLiteral("TitleLabel"))->isHidden());
    const auto* languages = m_bar->findChild<QComboBox*>(QStringLiteral("ComboxTrans"));
    QVERIFY(languages->isHidden());
    QCOMPARE(languages->count(), 0);
    QVERIFY(m_bar->isVisible());
}

void tst_TitleBar::namesItsControlsForStyleSheets()
{
    QCOMPARE(m_bar->property("style").toString(), QStringLiteral("BG4"));
    QCOMPARE(closeButton()->objectName(), QString());
    for (const char* name : {"ButtonMin", "ButtonRestore", "ButtonMax"})
        QVERIFY2(!button(name)->property("imageBtn").isValid(), name);
    QCOMPARE(m_bar->findChild<QLabel*>(QStringLiteral("TitleLabel"))->styleSheet(),
             QStringLiteral("font-size: 16px;color: #FFFFFF; background:transparent"));
    QCOMPARE(m_bar->findChild<QLabel*>(QStringLiteral("TitleIconLabel"))->parentWidget(),
             static_cast<QWidget*>(m_bar));
}

void tst_TitleBar::laysOutItsControls()
{
    QCOMPARE(m_bar->height(), 30);
    QCOMPARE(m_bar->minimumHeight(), 30);
    QCOMPARE(m_bar->maximumHeight(), 30);
    QVERIFY(m_bar->windowFlags().testFlag(Qt::FramelessWindowHint));
    QVERIFY(m_bar->hasMouseTracking());

    auto* layout = qobject_cast<QHBoxLayout*>(m_bar->layout());
    QVERIFY(layout != nullptr);
    QCOMPARE(layout->contentsMargins(), QMargins(7, 0, 7, 0));
    QStringList items;
    for (int i = 0; i < layout->count(); ++i) {
        QLayoutItem* item = layout->itemAt(i);
        items << (item->widget() ? item->widget()->objectName()
                                 : QString::number(item->sizeHint().width()));
    }
    QCOMPARE(items.join(QLatin1Char(' ')),
             QStringLiteral("TitleIconLabel 120 TitleLabel 100 ComboxTrans 8 ButtonMin "
                            "ButtonRestore ButtonMax "));

    const auto* languages = m_bar->findChild<QComboBox*>(QStringLiteral("ComboxTrans"));
    QCOMPARE(languages->minimumWidth(), 190);
    QCOMPARE(languages->maximumWidth(), 190);
    const auto* title = m_bar->findChild<QLabel*>(QStringLiteral("TitleLabel"));
    QCOMPARE(title->alignment(), Qt::AlignCenter);
    QCOMPARE(title->contextMenuPolicy(), Qt::NoContextMenu);
    QCOMPARE(title->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(title->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    QTRY_COMPARE(closeButton()->geometry().right() + 1, kWidth - 7);
}

void tst_TitleBar::showsATitleOnceItIsSet()
{
    const auto* title = m_bar->findChild<QLabel*>(QStringLiteral("TitleLabel"));
    m_bar->setTitleContent(QStringLiteral("Week 12"));
    QVERIFY(title->isVisible());
    QCOMPARE(title->text(), QStringLiteral("Week 12"));
    // The host's title names a file, which is no markup.
    QCOMPARE(title->textFormat(), Qt::PlainText);
    m_bar->setTitleContent(QString());
    QVERIFY(title->isVisible());
    QCOMPARE(title->text(), QString());
}

void tst_TitleBar::setButtonType_data()
{
    QTest::addColumn<QString>("visible"); // a letter per button: min, restore, max
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("expected");

    const QString all = QStringLiteral("nrx");
    const QString none = QStringLiteral("-");
    QTest::newRow("minimise only") << all << 0 << QStringLiteral("min close");
    QTest::newRow("normal") << all << 1 << QStringLiteral("min max close");
    QTest::newRow("maximised") << all << 2 << QStringLiteral("min restore close");
    QTest::newRow("close only") << all << 3 << QStringLiteral("close");
    QTest::newRow("unknown") << all << 4 << QStringLiteral("min restore max close");
    QTest::newRow("negative") << all << -1 << QStringLiteral("min restore max close");
    QTest::newRow("minimise is not shown again") << none << 0 << QStringLiteral("close");
    QTest::newRow("normal shows maximise alone") << none << 1 << QStringLiteral("max close");
    QTest::newRow("close only shows nothing") << none << 3 << QStringLiteral("close");
}

void tst_TitleBar::setButtonType()
{
    QFETCH(const QString, visible);
    QFETCH(const int, type);
    QFETCH(const QString, expected);
    button("ButtonMin")->setVisible(visible.contains(QLatin1Char('n')));
    button("ButtonRestore")->setVisible(visible.contains(QLatin1Char('r')));
    button("ButtonMax")->setVisible(visible.contains(QLatin1Char('x')));
    m_bar->setButtonType(type);
    QCOMPARE(shown(), expected);
}

void tst_TitleBar::aHiddenRestoreStaysHiddenWhenMaximised()
{
    m_bar->setButtonType(TitleBar::NormalWindow);
    m_bar->setRestoreVisible(false);
    m_bar->setButtonType(TitleBar::MaximisedWindow);
    QCOMPARE(shown(), QStringLiteral("min max close"));

    m_bar->setMaxVisible(false);
    m_bar->setButtonType(TitleBar::MaximisedWindow);
    QCOMPARE(shown(), QStringLiteral("min close"));

    m_bar->setRestoreVisible(true);
    m_bar->setMaxVisible(true);
    m_bar->setButtonType(TitleBar::MaximisedWindow);
    QCOMPARE(shown(), QStringLiteral("min restore close"));

    // No call asks whether maximize was hidden.
    m_bar->setMaxVisible(false);
    m_bar->setButtonType(TitleBar::NormalWindow);
    QCOMPARE(shown(), QStringLiteral("min max close"));
}

void tst_TitleBar::visibilityOfEachButton()
{
    m_bar->setRestoreVisible(true);
    m_bar->setMaxVisible(true);
    QCOMPARE(shown(), QStringLiteral("min restore max close"));
    m_bar->setMinVisible(false);
    QCOMPARE(shown(), QStringLiteral("restore max close"));
    m_bar->setCloseVisible(false);
    QCOMPARE(shown(), QStringLiteral("restore max"));
    m_bar->setRestoreVisible(false);
    QCOMPARE(shown(), QStringLiteral("max"));
    m_bar->setMaxVisible(false);
    QCOMPARE(shown(), QString());
}

void tst_TitleBar::tellsOfClicks()
{
    QStringList log;
    connect(m_bar, &TitleBar::signalButtonMinClicked, this, [&] { log << QStringLiteral("min"); });
    connect(m_bar, &TitleBar::signalButtonRestoreClicked, this,
            [&] { log << QStringLiteral("restore"); });
    connect(m_bar, &TitleBar::signalButtonMaxClicked, this, [&] { log << QStringLiteral("max"); });
    connect(m_bar, &TitleBar::signalButtonCloseClicked, this,
            [&] { log << QStringLiteral("close"); });
    connect(m_bar, &TitleBar::signalShowNormal, this, [&] { log << QStringLiteral("normal"); });
    m_bar->setButtonType(TitleBar::NormalWindow);
    QCoreApplication::processEvents();

    Mouse mouse(m_window.get());
    mouse.click(middleOf(button("ButtonMin")));
    mouse.click(middleOf(button("ButtonMax")));
    QCOMPARE(shown(), QStringLiteral("min restore close"));
    QCoreApplication::processEvents();
    mouse.click(middleOf(button("ButtonRestore")));
    QCOMPARE(shown(), QStringLiteral("min max close"));
    mouse.click(middleOf(closeButton()));
    QCOMPARE(log.join(QLatin1Char(' ')), QStringLiteral("min max restore close"));
    QVERIFY(m_window->isVisible());
    QVERIFY(!m_window->isMaximized() && !m_window->isMinimized());
}

void tst_TitleBar::maximiseAndRestoreSwitchTheLayoutFirst()
{
    QStringList seen;
    connect(m_bar, &TitleBar::signalButtonMaxClicked, this, [&] { seen << shown(); });
    connect(m_bar, &TitleBar::signalButtonRestoreClicked, this, [&] { seen << shown(); });
    m_bar->setButtonType(TitleBar::NormalWindow);
    button("ButtonMax")->click();
    button("ButtonRestore")->click();
    QCOMPARE(seen,
             QStringList({QStringLiteral("min restore close"), QStringLiteral("min max close")}));
}

void tst_TitleBar::selectsALanguage()
{
    auto* languages = m_bar->findChild<QComboBox*>(QStringLiteral("ComboxTrans"));
    languages->addItems({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c"),
                         QStringLiteral("d"), QStringLiteral("e")});
    const ChosenLanguage english;
    QVERIFY(english.isLoaded());
    QSignalSpy translate(m_bar, &TitleBar::signalTranslate);
    QVERIFY(translate.isValid());
    QStringList seen;
    connect(m_bar, &TitleBar::signalTranslate, this, [&] { seen << toolTips(); });

    languages->show();
    QTest::keyClick(languages, Qt::Key_Down);
    QCOMPARE(languages->currentText(), QStringLiteral("b"));
    QCOMPARE(seen, QStringList(QStringLiteral("Minimise Restore Maximise Close")));

    m_bar->setLanguageIndex(3);
    QCOMPARE(languages->currentIndex(), 3);
    QCOMPARE(translate.count(), 2);
    m_bar->setLanguageIndex(3);
    QCOMPARE(translate.count(), 2);
    m_bar->setLanguageIndex(0);
    QCOMPARE(languages->currentIndex(), 0);

    m_bar->hideTranslationCombo();
    QVERIFY(languages->isHidden());
}

void tst_TitleBar::ignoresALanguageOutOfRange()
{
    auto* languages = m_bar->findChild<QComboBox*>(QStringLiteral("ComboxTrans"));
    languages->addItems({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c"),
                         QStringLiteral("d"), QStringLiteral("e")});
    languages->setCurrentIndex(2);
    QSignalSpy translate(m_bar, &TitleBar::signalTranslate);
    QVERIFY(translate.isValid());
    for (const int index : {4, -1}) {
        const ChosenLanguage english;
        m_bar->setLanguageIndex(index);
        QCOMPARE(languages->currentIndex(), 2);
        QCOMPARE(toolTips(), QStringLiteral("Minimise Restore Maximise Close"));
    }
    QCOMPARE(translate.count(), 0);
    m_bar->retranslate();
    QCOMPARE(toolTips(), QStringLiteral("zhMinAct zhReductionAct zhMaxAct zhCloseAct"));
}

void tst_TitleBar::retranslatesWhenTheToolkitSaysSo()
{
    m_bar->setTitleContent(QStringLiteral("zhMinAct"));
    QSignalSpy translate(m_bar, &TitleBar::signalTranslate);
    QVERIFY(translate.isValid());
    ChosenLanguage english;
    QCOMPARE(toolTips(), QStringLiteral("zhMinAct zhReductionAct zhMaxAct zhCloseAct"));
    QVERIFY(english.tell());
    QTRY_COMPARE(toolTips(), QStringLiteral("Minimise Restore Maximise Close"));
    QCOMPARE(m_bar->findChild<QLabel*>(QStringLiteral("TitleLabel"))->text(),
             QStringLiteral("zhMinAct"));
    QCOMPARE(translate.count(), 0);
}

void tst_TitleBar::textsOfALanguageAreNoMarkup()
{
    const QString markup = QStringLiteral("<b>Close</b>");
    QTemporaryFile file;
    QVERIFY(file.open());
    file.write(
        QmBytes().language("xx_XX").text("zhCloseAct", markup, "SheduleWidgets", "Widget").bytes());
    QVERIFY(file.flush());
    auto& texts =
        trel::mediadispatch::ProgramSheduleWidgetTranslateManager::instance().translator();
    QVERIFY(texts.load(file.fileName()));
    const QString before = texts.language();
    texts.switchLanguage(QStringLiteral("xx_XX"));
    m_bar->retranslate();
    texts.switchLanguage(before);
    QCOMPARE(closeButton()->accessibleName(), markup);
    QTextDocument tip;
    tip.setHtml(closeButton()->toolTip());
    QCOMPARE(tip.toPlainText(), markup);
}

void tst_TitleBar::letsAFilterHoverOverTitleAndButtons()
{
    MoveCounter filter;
    m_bar->setButtonType(TitleBar::NormalWindow);
    m_bar->setRestoreVisible(true);
    m_bar->setTitleContent(QStringLiteral("Week 12"));
    m_bar->setHoverFilter(&filter);
    QCoreApplication::processEvents();

    Mouse mouse(m_window.get());
    const auto* title = m_bar->findChild<QLabel*>(QStringLiteral("TitleLabel"));
    for (const QWidget* each :
         {static_cast<const QWidget*>(title), static_cast<const QWidget*>(button("ButtonMin")),
          static_cast<const QWidget*>(button("ButtonRestore")),
          static_cast<const QWidget*>(button("ButtonMax")),
          static_cast<const QWidget*>(closeButton())}) {
        QVERIFY(each->hasMouseTracking());
        mouse.moveTo(middleOf(each));
    }
    QCOMPARE(filter.seen.join(QLatin1Char(' ')),
             QStringLiteral("TitleLabel ButtonMin ButtonRestore ButtonMax "));
}

void tst_TitleBar::takesNoHoverFilterToo()
{
    const MessageLog log;
    m_bar->setHoverFilter(nullptr);
    QVERIFY(closeButton()->hasMouseTracking());
    QCOMPARE(log.texts(), QStringList());
}

void tst_TitleBar::paintsTheBackgroundOfAStyleSheetAlone()
{
    m_window->setStyleSheet(QStringLiteral("trel--mediadispatch--TitleBar { background: #123456 }"
                                           "QMenuBar::item { background: #ff0000 }"));
    m_bar->addAction(QStringLiteral("a menu that does not show"));
    const QImage image = m_bar->grab().toImage();
    QCOMPARE(image.pixelColor(60, 1), QColor(0x12, 0x34, 0x56));
    QCOMPARE(image.pixelColor(60, 28), QColor(0x12, 0x34, 0x56));
    for (int x = 40; x < 300; ++x)
        QCOMPARE(image.pixelColor(x, 15), QColor(0x12, 0x34, 0x56));
}

void tst_TitleBar::aSheetReachesEveryControl()
{
    const QStringList selectors = {
        QStringLiteral("QMenuBar[style=\"BG4\"]"),
        QStringLiteral("#TitleIconLabel"),
        QStringLiteral("#ComboxTrans"),
        QStringLiteral("#ButtonMin"),
        QStringLiteral("#ButtonRestore"),
        QStringLiteral("#ButtonMax"),
        QStringLiteral("QPushButton[imageBtn=\"close\"]"),
    };
    const QList<QWidget*> controls = {
        m_bar,
        m_bar->findChild<QLabel*>(QStringLiteral("TitleIconLabel")),
        m_bar->findChild<QComboBox*>(QStringLiteral("ComboxTrans")),
        button("ButtonMin"),
        button("ButtonRestore"),
        button("ButtonMax"),
        closeButton(),
    };
    const auto colourOf = [](int control) { return QColor(200, 20 * control, 30); };
    QString sheet;
    for (int i = 0; i < selectors.size(); ++i) {
        sheet += QStringLiteral("%1 { background-color: %2; border: none; }\n")
                     .arg(selectors[i], colourOf(i).name());
    }
    m_window->setStyleSheet(sheet);
    for (int i = 0; i < controls.size(); ++i) {
        controls[i]->show();
        controls[i]->resize(controls[i]->size().expandedTo(QSize(20, 20)));
        const QImage picture = controls[i]->grab().toImage();
        QVERIFY2(picture.pixelColor(2, 2) == colourOf(i), qPrintable(selectors[i]));
    }
}

void tst_TitleBar::isQuiet()
{
    const MessageLog log;
    QWidget window;
    auto* bar = new TitleBar(&window);
    bar->setTitleContent(QStringLiteral("Week 12"));
    window.resize(kWidth, 100);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    window.resize(20, 20);
    QTest::keyClick(&window, Qt::Key_Alt);
    QTest::keyClick(&window, Qt::Key_Return);
    QTest::keyClick(&window, Qt::Key_Alt);
    bar->grab();
    const TitleBar alone(nullptr);
    QVERIFY(alone.isHidden());
    QCOMPARE(log.texts(), QStringList());
}

TREL_TEST(tst_TitleBar, QApplication)

#include "tst_TitleBar.moc"
