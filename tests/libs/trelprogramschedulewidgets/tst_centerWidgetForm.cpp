#include "PlanList.h"
#include "centerWidget.h"
#include "support/MetaMethods.h"
#include "support/RecordingService.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QtTest>

using namespace trel::mediadispatch;

namespace {

template <typename T>
T* child(const QWidget& panel, const char* name)
{
    return panel.findChild<T*>(QString::fromLatin1(name));
}

/// "minimum size; maximum size; style; text".
QString line(const QPushButton& button)
{
    return QStringLiteral("%1x%2; %3x%4; %5; %6")
        .arg(button.minimumWidth())
        .arg(button.minimumHeight())
        .arg(button.maximumWidth())
        .arg(button.maximumHeight())
        .arg(button.property("style").toString(), button.text());
}

} // namespace

/// What the panel is made of before anybody touches it.
class tst_centerWidgetForm : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void declaresItsMethodsInOrder();
    void thePanelItself();
    void buttons_data();
    void buttons();
    void theAddButtonReadsFromTheRight();
    void theScrollAreaHoldsTheList();
    void theListKeepsItsOwnLayout();
    void theHintFloatsOverTheList();
    void partsStandInOrder();
    void buildingCallsNoService();
};

void tst_centerWidgetForm::init()
{
    RecordingService::instance().reset();
}

void tst_centerWidgetForm::declaresItsMethodsInOrder()
{
    QCOMPARE(ownMethods(centerWidget::staticMetaObject, QMetaMethod::Signal).join(QLatin1Char(' ')),
             QStringLiteral("signalCancel() signalSave() signalStart() signalTranslation()"));
    QCOMPARE(ownMethods(centerWidget::staticMetaObject, QMetaMethod::Slot).join(QLatin1Char(' ')),
             QStringLiteral("slotShowProcess() slotCloseProcess() slotSave() slotStart() "
                            "slotTranslation() slotGetMapCount(int)"));
}

void tst_centerWidgetForm::thePanelItself()
{
    const centerWidget panel;
    QCOMPARE(panel.objectName(), QStringLiteral("centerWidget"));
    QCOMPARE(panel.size(), QSize(1168, 480));
    QCOMPARE(panel.minimumSize(), QSize(1168, 480));
    QCOMPARE(panel.maximumSize(), QSize(1168, 480));
    QCOMPARE(panel.sizePolicy(), QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed));
    QVERIFY(panel.testAttribute(Qt::WA_StyledBackground));
    QCOMPARE(panel.property("state").toString(), QStringLiteral("default"));
    QCOMPARE(panel.layout()->objectName(), QStringLiteral("verticalLayout"));
    QCOMPARE(panel.layout()->spacing(), 6);
    QCOMPARE(panel.layout()->contentsMargins(), QMargins(11, 11, 11, 11));
}

void tst_centerWidgetForm::buttons_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("expected");
    QTest::newRow("add") << QByteArray("pushButtonAddTask")
                         << QStringLiteral("104x25; 16777215x16777215; general; 添加播放任务");
    QTest::newRow("close") << QByteArray("pushButtonClose")
                           << QStringLiteral("58x25; 16777215x16777215; assist; 取消");
    QTest::newRow("start") << QByteArray("pushButtonStart")
                           << QStringLiteral("58x25; 16777215x16777215; assist; 启用");
    QTest::newRow("save") << QByteArray("pushButtonSave")
                          << QStringLiteral("58x25; 16777215x16777215; general; 确定");
}

void tst_centerWidgetForm::buttons()
{
    QFETCH(const QByteArray, name);
    QFETCH(const QString, expected);
    const centerWidget panel;
    const auto* button = child<QPushButton>(panel, name.constData());
    QVERIFY(button != nullptr);
    QCOMPARE(line(*button), expected);
    QCOMPARE(button->focusPolicy(), Qt::NoFocus);
    QVERIFY(button->isEnabled());
}

void tst_centerWidgetForm::theAddButtonReadsFromTheRight()
{
    const centerWidget panel;
    QCOMPARE(child<QPushButton>(panel, "pushButtonAddTask")->layoutDirection(), Qt::RightToLeft);
    QCOMPARE(child<QPushButton>(panel, "pushButtonSave")->layoutDirection(), Qt::LeftToRight);
}

void tst_centerWidgetForm::theScrollAreaHoldsTheList()
{
    const centerWidget panel;
    const auto* area = child<QScrollArea>(panel, "scrollArea");
    QVERIFY(area != nullptr);
    QCOMPARE(area->contextMenuPolicy(), Qt::NoContextMenu);
    QCOMPARE(area->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QVERIFY(area->widgetResizable());
    QCOMPARE(area->verticalScrollBar()->contextMenuPolicy(), Qt::NoContextMenu);
    QCOMPARE(area->verticalScrollBar()->minimumWidth(), 8);
    QCOMPARE(area->verticalScrollBar()->maximumWidth(), 8);
    QCOMPARE(area->widget(), static_cast<QWidget*>(panel.planList()));
    QCOMPARE(panel.planList()->objectName(), QStringLiteral("widget"));
    QCOMPARE(panel.planList()->styleSheet(),
             QStringLiteral("QWidget#widget{background:transparent;}"));
}

void tst_centerWidgetForm::theListKeepsItsOwnLayout()
{
    const centerWidget panel;
    QCOMPARE(panel.planList()->layout()->spacing(), 2);
    QCOMPARE(panel.planList()->layout()->count(), 2);
    const auto* idle = child<QVBoxLayout>(panel, "verticalLayout_2");
    QVERIFY(idle != nullptr);
    QVERIFY(idle != panel.planList()->layout());
    QCOMPARE(idle->parent(), panel.planList());
    QCOMPARE(idle->spacing(), 6);
    QCOMPARE(idle->contentsMargins(), QMargins(11, 11, 11, 11));
    QCOMPARE(idle->count(), 1);
    QCOMPARE(idle->itemAt(0)->spacerItem()->sizeHint(), QSize(20, 349));
    QCOMPARE(idle->itemAt(0)->spacerItem()->sizePolicy(),
             QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Expanding));
}

void tst_centerWidgetForm::theHintFloatsOverTheList()
{
    const centerWidget panel;
    const auto* area = child<QScrollArea>(panel, "scrollArea");
    const auto hints = area->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(hints.size(), 1);
    QCOMPARE(hints.at(0)->property("style").toString(), QStringLiteral("grayHint"));
    QCOMPARE(hints.at(0)->text(), QString());

    const auto* layout = qobject_cast<QVBoxLayout*>(area->layout());
    QVERIFY(layout != nullptr);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->count(), 4);
    QVERIFY(layout->itemAt(0)->spacerItem() != nullptr);
    QCOMPARE(layout->itemAt(1)->spacerItem()->sizeHint().height(), 72);
    QCOMPARE(layout->itemAt(2)->widget(), static_cast<QWidget*>(hints.at(0)));
    QCOMPARE(layout->itemAt(2)->alignment(), Qt::AlignHCenter);
    QVERIFY(layout->itemAt(3)->spacerItem() != nullptr);
    for (int i = 0; i < layout->count(); ++i) {
        QCOMPARE(layout->stretch(i), 0);
    }
}

void tst_centerWidgetForm::partsStandInOrder()
{
    const centerWidget panel;
    const QLayout* column = panel.layout();
    QCOMPARE(column->count(), 3);
    QCOMPARE(column->itemAt(0)->widget()->objectName(), QStringLiteral("pushButtonAddTask"));
    QCOMPARE(column->itemAt(1)->widget()->objectName(), QStringLiteral("scrollArea"));
    const QLayout* row = column->itemAt(2)->layout();
    QCOMPARE(row->objectName(), QStringLiteral("horizontalLayout"));
    QCOMPARE(row->spacing(), 6);
    QCOMPARE(row->count(), 4);
    QCOMPARE(row->itemAt(0)->spacerItem()->sizeHint(), QSize(55, 20));
    QCOMPARE(row->itemAt(0)->spacerItem()->sizePolicy(),
             QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum));
    QCOMPARE(row->itemAt(1)->widget()->objectName(), QStringLiteral("pushButtonClose"));
    QCOMPARE(row->itemAt(2)->widget()->objectName(), QStringLiteral("pushButtonStart"));
    QCOMPARE(row->itemAt(3)->widget()->objectName(), QStringLiteral("pushButtonSave"));
}

void tst_centerWidgetForm::buildingCallsNoService()
{
    const centerWidget panel;
    QCOMPARE(RecordingService::instance().log, QStringList());
}

TREL_TEST(tst_centerWidgetForm, QApplication)

#include "tst_centerWidgetForm.moc"
