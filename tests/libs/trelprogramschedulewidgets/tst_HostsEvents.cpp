#include "CardLines.h"
#include "KeptTasks.h"
#include "support/PlanRecords.h"
#include "support/TestProgram.h"
#include "toolkit/NewWidgets.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>
#include <QtTest>

#include <map>
#include <memory>

using namespace trel::mediadispatch;

namespace {

const QEvent::Type kOwnEvent = static_cast<QEvent::Type>(QEvent::registerEventType());

/// A widget of the host. Counts what of all that it has left to the event loop comes.
class HostWidget : public QWidget
{
public:
    explicit HostWidget(QWidget* parent)
        : QWidget(parent)
    {
        auto* const layout = new QVBoxLayout(this);
        layout->addWidget(new QLabel(QStringLiteral("a label of the host")));
    }

    /// One of each, for the widget itself.
    void leaveEvents()
    {
        m_came.clear();
        for (const QEvent::Type type :
             {QEvent::PolishRequest, QEvent::LayoutRequest, QEvent::UpdateRequest, kOwnEvent}) {
            QCoreApplication::postEvent(this, new QEvent(type));
        }
        // Coming into sight, it asks to be painted.
        hide();
        show();
        QMetaObject::invokeMethod(
            this, [this] { ++calls; }, Qt::QueuedConnection);
    }

    QString came() const
    {
        QStringList texts;
        for (const QEvent::Type type : {QEvent::PolishRequest, QEvent::LayoutRequest,
                                        QEvent::UpdateRequest, QEvent::UpdateLater, kOwnEvent}) {
            const auto found = m_came.find(type);
            texts.append(QString::number(found == m_came.end() ? 0 : found->second));
        }
        return texts.join(QLatin1Char(' '));
    }

    int calls = 0;

protected:
    bool event(QEvent* event) override
    {
        ++m_came[event->type()];
        return QWidget::event(event);
    }

private:
    std::map<QEvent::Type, int> m_came;
};

PlayTask someTask(int id)
{
    return taskWithPlans({timePlan(1, "08:00:00", "09:00:00"), timePlan(2, "08:30:00", "09:30:00")},
                         id);
}

} // namespace

Q_DECLARE_METATYPE(std::function<void(PlanList&)>)

/// What a host has left to the event loop, beside cards and on their widgets, comes, whatever the
/// editor does with its own.
class tst_HostsEvents : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void comeBesideAList_data();
    void comeBesideAList();
    void comeWhileARefreshIsUnderWay_data();
    void comeWhileARefreshIsUnderWay();
    void cardsAreTheSameWithoutShortcuts();
};

void tst_HostsEvents::init()
{
    service().reset();
    for (const int id : {1, 2, 3}) {
        service().stored[id] = someTask(id);
    }
    setShortcutsOn(true);
}

void tst_HostsEvents::comeBesideAList_data()
{
    using Action = std::function<void(PlanList&)>;
    QTest::addColumn<Action>("act");
    QTest::newRow("a card is unfolded")
        << Action([](PlanList& list) { cardsInOrder(list).at(0)->setFolded(false); });
    QTest::newRow("a row is added") << Action([](PlanList& list) {
        cardsInOrder(list).at(0)->slotAddRowPlan(timePlan(5, "10:00:00", "11:00:00"), true);
    });
    QTest::newRow("a card is made and goes") << Action([](PlanList& list) {
        const auto card = std::make_unique<PlanTaskWidget>(someTask(4), list.parentWidget());
    });
    QTest::newRow("cards go") << Action([](PlanList& list) {
        delete cardsInOrder(list).at(2);
        list.slotDeleteTask(2);
    });
    QTest::newRow("a list comes into sight") << Action([](PlanList& list) {
        list.hide();
        list.show();
    });
}

void tst_HostsEvents::comeBesideAList()
{
    QFETCH(const std::function<void(PlanList&)>, act);
    QWidget window;
    HostWidget host(&window);
    auto* const list = new PlanList(&window);
    window.show();
    list->refreshPlanList();
    QCoreApplication::processEvents();

    host.leaveEvents();
    int callsOfViews = 0;
    for (QTableView* const view : list->findChildren<QTableView*>()) {
        if (view->window() == &window &&
            view->parentWidget()->parentWidget() == cardsInOrder(*list).at(0)) {
            for (QWidget* const part : {static_cast<QWidget*>(view), view->viewport()}) {
                QMetaObject::invokeMethod(
                    part, [&callsOfViews] { ++callsOfViews; }, Qt::QueuedConnection);
            }
        }
    }
    act(*list);
    QCOMPARE(host.calls, 0);
    QCoreApplication::processEvents();
    QCOMPARE(host.calls, 1);
    QCOMPARE(callsOfViews, 2);
    QCOMPARE(host.came().left(3), QStringLiteral("1 1"));
    QVERIFY2(!host.came().contains(QLatin1Char('0')), qPrintable(host.came()));
}

void tst_HostsEvents::comeWhileARefreshIsUnderWay_data()
{
    QTest::addColumn<bool>("isShown");
    QTest::newRow("in sight") << true;
    QTest::newRow("out of sight") << false;
}

void tst_HostsEvents::comeWhileARefreshIsUnderWay()
{
    QFETCH(const bool, isShown);
    QWidget window;
    HostWidget host(&window);
    auto* const list = new PlanList(&window);
    if (isShown) {
        window.show();
    }
    int callsOfCards = 0;
    QObject::connect(list, &PlanList::sigGetMapCount, [&](int count) {
        if (count == 1) {
            host.leaveEvents();
        }
        if (count > 0) {
            PlanTaskWidget* const card = cardsInOrder(*list).at(count - 1);
            for (QWidget* const part :
                 {static_cast<QWidget*>(card), card->findChild<QWidget*>(QStringLiteral("title")),
                  card->findChild<QWidget*>(QStringLiteral("schedule"))}) {
                QMetaObject::invokeMethod(
                    part, [&callsOfCards] { ++callsOfCards; }, Qt::QueuedConnection);
            }
        }
    });
    list->refreshPlanList();
    // None of it may come in the middle of a refresh, and all of it comes behind.
    QCOMPARE(host.calls + callsOfCards, 0);
    window.show();
    QCoreApplication::processEvents();
    QCOMPARE(host.calls, 1);
    QCOMPARE(callsOfCards, 9);
    QVERIFY2(!host.came().contains(QLatin1Char('0')), qPrintable(host.came()));
}

void tst_HostsEvents::cardsAreTheSameWithoutShortcuts()
{
    QVector<QImage> pictures;
    for (const bool areOn : {true, false}) {
        setShortcutsOn(areOn);
        QCOMPARE(areShortcutsOn(), areOn);
        QWidget window;
        auto* const layout = new QVBoxLayout(&window);
        auto* const list = new PlanList;
        layout->addWidget(list);
        window.resize(1200, 700);
        window.show();
        list->refreshPlanList();
        QCoreApplication::processEvents();
        pictures.append(window.grab().toImage());
        cardsInOrder(*list).at(1)->setFolded(false);
        QCoreApplication::processEvents();
        pictures.append(window.grab().toImage());
    }
    QCOMPARE(pictures.at(2), pictures.at(0));
    QCOMPARE(pictures.at(3), pictures.at(1));
    QVERIFY(pictures.at(0) != pictures.at(1));
}

TREL_TEST(tst_HostsEvents, QApplication)

#include "tst_HostsEvents.moc"
