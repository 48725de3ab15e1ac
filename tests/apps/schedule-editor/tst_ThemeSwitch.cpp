#include "HostFixture.h"
#include "support/TestProgram.h"

#include "card/PlanColumns.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QTableView>
#include <QTimer>

#include <functional>

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

private:
    using Open = std::function<void()>;

    QWidget* cell(int column) const;
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

TREL_TEST(tst_ThemeSwitch, QApplication)
#include "tst_ThemeSwitch.moc"
