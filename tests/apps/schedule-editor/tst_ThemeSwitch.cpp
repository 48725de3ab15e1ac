#include "HostFixture.h"
#include "support/TestProgram.h"

#include "card/PlanColumns.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QScrollArea>
#include <QTableView>
#include <QTimer>
#include <QToolTip>

#include <algorithm>
#include <functional>

using namespace trel::desktop;
using namespace trel::mediadispatch;

/// What is open over the editor while the theme changes: it shows nothing of the old one, which is
/// to say that it looks as if it had been opened under the new one.
class tst_ThemeSwitch : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void anOpenChooserFollows();
    void anOpenPromptFollows();
    void anOpenListFollows();
    void anOpenProgressFollows();
    void whatNobodySeesFollowsLater();
    void whatComesIntoSightIsReady_data();
    void whatComesIntoSightIsReady();
    void aWindowThatWasNeverShownFollowsLater();
    void toolTipsFollowLater();
    void aSecondSwitchBringsAllBack();

private:
    using Open = std::function<void()>;

    QWidget* cell(int column) const;
    QList<QWidget*> showManyCards() const;
    static bool follows(const QWidget* widget);
    static bool doAllFollow(const QWidget& part);
    QImage pictureOfModal(const Open& open, const QString& switchTo) const;
    void compareModal(const Open& open) const;

    std::unique_ptr<HostFixture> m_host;
};

namespace {

const QString kDark = QStringLiteral("dark");
const QString kLight = QStringLiteral("light");

} // namespace

void tst_ThemeSwitch::init()
{
    m_host = std::make_unique<HostFixture>();
    m_host->showDemonstration();
}

void tst_ThemeSwitch::cleanup()
{
    m_host.reset();
}

QWidget* tst_ThemeSwitch::cell(int column) const
{
    auto* table = m_host->firstTable();
    return table->indexWidget(table->model()->index(1, column));
}

/// The cards of an editor whose list is longer than its window.
QList<QWidget*> tst_ThemeSwitch::showManyCards() const
{
    std::map<int, PlayTask> tasks;
    for (int id = 1; id <= 60; ++id) {
        tasks[id].id = id;
        tasks[id].startDate = "2024.01.01";
        tasks[id].endDate = "2024.12.31";
        tasks[id].plans.resize(1);
        tasks[id].plans.front().id = 1;
    }
    m_host->host.replaceSchedule(tasks);
    m_host->showEditor();
    QCoreApplication::processEvents();
    return m_host->editor->findChildren<QWidget*>(QStringLiteral("PlanTaskWidget"));
}

/// Whether a widget without colours of its own has taken those of the theme.
bool tst_ThemeSwitch::follows(const QWidget* widget)
{
    return widget->testAttribute(Qt::WA_SetPalette) ||
           widget->palette().color(QPalette::Active, QPalette::Text) ==
               QApplication::palette(widget).color(QPalette::Active, QPalette::Text);
}

bool tst_ThemeSwitch::doAllFollow(const QWidget& part)
{
    const auto widgets = part.findChildren<QWidget*>();
    return follows(&part) && std::all_of(widgets.begin(), widgets.end(), follows);
}

/// A picture of the dialog that opens, taken after a switch where one is wanted.
QImage tst_ThemeSwitch::pictureOfModal(const Open& open, const QString& switchTo) const
{
    QImage picture;
    QTimer::singleShot(0, m_host->editor.get(), [this, &picture, &switchTo] {
        QWidget* modal = QApplication::activeModalWidget();
        if (!switchTo.isEmpty()) {
            modal->grab();
            m_host->themes.select(switchTo);
        }
        picture = modal->grab().toImage();
        modal->close();
    });
    // A prompt takes its title from the window that it lies over.
    QApplication::setActiveWindow(m_host->editor.get());
    open();
    return picture;
}

void tst_ThemeSwitch::compareModal(const Open& open) const
{
    const QImage dark = pictureOfModal(open, QString());
    const QImage switchedToLight = pictureOfModal(open, kLight);
    const QImage light = pictureOfModal(open, QString());
    const QImage switchedToDark = pictureOfModal(open, kDark);
    QVERIFY(!light.isNull());
    QVERIFY(light != dark);
    QCOMPARE(switchedToLight, light);
    QCOMPARE(switchedToDark, dark);
}

void tst_ThemeSwitch::anOpenChooserFollows()
{
    compareModal([this] {
        cell(ProgramsColumn)->findChild<QPushButton*>(QStringLiteral("pushButton"))->click();
    });
}

void tst_ThemeSwitch::anOpenPromptFollows()
{
    compareModal([this] {
        m_host->firstCard()->findChild<QPushButton*>(QStringLiteral("pushButtonDelete"))->click();
    });
}

void tst_ThemeSwitch::anOpenListFollows()
{
    auto* box = cell(EndActionColumn)->findChild<QComboBox*>();
    const auto picture = [this, box](const QString& switchTo) {
        box->showPopup();
        QWidget* list = box->view()->window();
        if (!switchTo.isEmpty()) {
            list->grab();
            m_host->themes.select(switchTo);
        }
        QImage image = list->grab().toImage();
        box->hidePopup();
        return image;
    };
    const QImage dark = picture(QString());
    const QImage switched = picture(kLight);
    const QImage light = picture(QString());
    QVERIFY(light != dark);
    QCOMPARE(switched, light);
}

void tst_ThemeSwitch::anOpenProgressFollows()
{
    const auto picture = [this](const QString& switchTo) {
        QProgressDialog progress(&m_host->window);
        progress.setLabelText(QStringLiteral("News.mp4"));
        progress.setValue(40);
        progress.show();
        if (!switchTo.isEmpty()) {
            progress.grab();
            m_host->themes.select(switchTo);
        }
        return progress.grab().toImage();
    };
    const QImage dark = picture(QString());
    const QImage switched = picture(kLight);
    const QImage light = picture(QString());
    QVERIFY(light != dark);
    QCOMPARE(switched, light);
}

void tst_ThemeSwitch::whatNobodySeesFollowsLater()
{
    const QList<QWidget*> cards = showManyCards();
    QCOMPARE(cards.size(), 60);
    auto* const hidden = cards.first()->findChild<QTableView*>(QStringLiteral("schedule"));
    m_host->themes.select(kLight);
    QVERIFY(follows(cards.first()));
    QVERIFY(!follows(hidden));
    QVERIFY(!follows(cards.last()));
    QTRY_VERIFY(doAllFollow(*m_host->editor));
}

void tst_ThemeSwitch::whatComesIntoSightIsReady_data()
{
    QTest::addColumn<bool>("scrolls");
    QTest::newRow("scrolled") << true;
    QTest::newRow("unfolded") << false;
}

void tst_ThemeSwitch::whatComesIntoSightIsReady()
{
    QFETCH(const bool, scrolls);
    const QList<QWidget*> cards = showManyCards();
    auto* const area = m_host->editor->findChild<QScrollArea*>(QStringLiteral("scrollArea"));
    auto* const bar = cards.first()->findChild<QAbstractButton*>(QStringLiteral("title"));
    const auto show = [&] {
        if (scrolls) {
            area->ensureWidgetVisible(cards.last());
        } else {
            bar->setChecked(false);
        }
    };
    const QWidget* const part =
        scrolls ? cards.last() : cards.first()->findChild<QWidget*>(QStringLiteral("schedule"));
    const QColor before = part->palette().color(QPalette::Text);

    m_host->themes.select(kLight);
    QCOMPARE(part->palette().color(QPalette::Text), before);
    show();
    area->grab();
    QVERIFY(doAllFollow(*part));
    // Nothing else had its turn.
    QVERIFY(!doAllFollow(*m_host->editor));
}

void tst_ThemeSwitch::aWindowThatWasNeverShownFollowsLater()
{
    // The toolkit passes a palette over what lies below a style sheet.
    QWidget window;
    window.setStyleSheet(QStringLiteral("QWidget { margin: 0px; }"));
    const auto* const part = new QWidget(&window);
    part->ensurePolished();
    QVERIFY(follows(part));
    m_host->themes.select(kLight);
    QVERIFY(!follows(part));
    QTRY_VERIFY(follows(part));
}

void tst_ThemeSwitch::toolTipsFollowLater()
{
    const QColor dark = QToolTip::palette().color(QPalette::ToolTipText);
    m_host->themes.select(kLight);
    const QColor light = QApplication::palette().color(QPalette::ToolTipText);
    QVERIFY(light != dark);
    QTRY_COMPARE(QToolTip::palette().color(QPalette::ToolTipText), light);
}

void tst_ThemeSwitch::aSecondSwitchBringsAllBack()
{
    const QList<QWidget*> cards = showManyCards();
    const QColor dark = cards.last()->palette().color(QPalette::Text);
    m_host->themes.select(kLight);
    m_host->themes.select(kDark);
    m_host->themes.select(kLight);
    QTRY_VERIFY(cards.last()->palette().color(QPalette::Text) != dark);
    m_host->themes.select(kDark);
    QTRY_COMPARE(cards.last()->palette().color(QPalette::Text), dark);
}

TREL_TEST(tst_ThemeSwitch, QApplication)
#include "tst_ThemeSwitch.moc"
