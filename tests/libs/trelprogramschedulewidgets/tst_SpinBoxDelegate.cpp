#include "SpinBoxDelegate.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QLineEdit>
#include <QSignalSpy>
#include <QSpinBox>
#include <QStandardItemModel>
#include <QTableView>
#include <QtTest>

#include <memory>

using namespace trel::mediadispatch;

namespace {

constexpr int kColumn = 3;

} // namespace

class tst_SpinBoxDelegate : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void look();
    void takesAndGivesTheEditRole();
    void tellsEveryStep();
    void tellsWhatItTakesFromTheModel();
    void tellsBeforeTheModelHasIt();
    void tellsWhereTheCellStandsNow();
    void takesOverAnOpenBox();
    void takesOverTheLastCount();
    void takesOverNothingOfAStranger();
    void refusesWhatIsOutOfRange_data();
    void refusesWhatIsOutOfRange();
    void otherEditorsAreLeftAlone();
    void withoutAModel();

private:
    QSpinBox* makeBox(int row)
    {
        const QModelIndex index = m_model->index(row, kColumn);
        m_view->openPersistentEditor(index);
        return qobject_cast<QSpinBox*>(m_view->indexWidget(index));
    }

    QStringList told()
    {
        QStringList texts;
        for (const QList<QVariant>& emission : *m_changes) {
            const QModelIndex index = emission.at(0).toModelIndex();
            texts.append(QStringLiteral("%1,%2: %3")
                             .arg(index.row())
                             .arg(index.column())
                             .arg(emission.at(1).toInt()));
        }
        m_changes->clear();
        return texts;
    }

    std::unique_ptr<QStandardItemModel> m_model;
    std::unique_ptr<SpinBoxDelegate> m_delegate;
    std::unique_ptr<QTableView> m_view;
    std::unique_ptr<QSignalSpy> m_changes;
};

void tst_SpinBoxDelegate::init()
{
    m_model = std::make_unique<QStandardItemModel>(3, 4);
    for (int row = 0; row < 3; ++row) {
        m_model->setData(m_model->index(row, kColumn), 1, Qt::EditRole);
    }
    m_delegate = std::make_unique<SpinBoxDelegate>();
    m_view = std::make_unique<QTableView>();
    m_view->setModel(m_model.get());
    m_view->setItemDelegateForColumn(kColumn, m_delegate.get());
    m_view->resize(600, 200);
    m_view->show();
    m_changes = std::make_unique<QSignalSpy>(m_delegate.get(), &SpinBoxDelegate::valueChanged);
    QVERIFY(m_changes->isValid());
}

void tst_SpinBoxDelegate::cleanup()
{
    m_changes.reset();
    m_view.reset();
    m_delegate.reset();
    m_model.reset();
}

void tst_SpinBoxDelegate::look()
{
    const QSpinBox* const box = makeBox(0);
    QVERIFY(box);
    QCOMPARE(box->size(), QSize(80, 30));
    QCOMPARE(box->minimumSize(), QSize(80, 30));
    QCOMPARE(box->maximumSize(), QSize(80, 30));
    QCOMPARE(box->minimum(), 1);
    QCOMPARE(box->maximum(), 999);
    QVERIFY(!box->hasFrame());
}

void tst_SpinBoxDelegate::takesAndGivesTheEditRole()
{
    const QModelIndex index = m_model->index(1, kColumn);
    m_model->setData(index, QStringLiteral("42"), Qt::EditRole);
    QSpinBox* const box = makeBox(1);
    QCOMPARE(box->value(), 42);

    box->setValue(43);
    m_delegate->setModelData(box, m_model.get(), index);
    QCOMPARE(index.data(Qt::EditRole), QVariant(43));
}

void tst_SpinBoxDelegate::tellsEveryStep()
{
    QSpinBox* const box = makeBox(2);
    QCOMPARE(told(), QStringList());
    QTest::keyClick(box, Qt::Key_Up);
    QTest::keyClick(box, Qt::Key_Up);
    QTest::keyClick(box, Qt::Key_Down);
    QCOMPARE(told(), (QStringList{QStringLiteral("2,3: 2"), QStringLiteral("2,3: 3"),
                                  QStringLiteral("2,3: 2")}));
}

void tst_SpinBoxDelegate::tellsWhatItTakesFromTheModel()
{
    m_model->setData(m_model->index(1, kColumn), 7, Qt::EditRole);
    makeBox(1);
    QCOMPARE(told(), QStringList{QStringLiteral("1,3: 7")});
}

void tst_SpinBoxDelegate::tellsBeforeTheModelHasIt()
{
    QSpinBox* const box = makeBox(0);
    QVariant seen;
    connect(m_delegate.get(), &SpinBoxDelegate::valueChanged, m_view.get(),
            [&seen](const QModelIndex& index) { seen = index.data(Qt::EditRole); });
    box->stepUp();
    QCOMPARE(seen, QVariant(1));
}

void tst_SpinBoxDelegate::tellsWhereTheCellStandsNow()
{
    QSpinBox* const box = makeBox(2);
    m_model->removeRow(0);
    box->stepUp();
    QCOMPARE(told(), QStringList{QStringLiteral("1,3: 2")});
}

void tst_SpinBoxDelegate::takesOverAnOpenBox()
{
    const QModelIndex index = m_model->index(1, kColumn);
    m_view->edit(index);
    auto* const box = qobject_cast<QSpinBox*>(m_view->indexWidget(index));
    QVERIFY(box);
    box->setValue(5);
    QCOMPARE(index.data(), QVariant(1));
    m_delegate->takeOver(box);
    QCOMPARE(index.data(), QVariant(5));
    QCOMPARE(m_view->indexWidget(index), box);
    QVERIFY(box->isVisible());
}

void tst_SpinBoxDelegate::takesOverTheLastCount()
{
    m_model->setData(m_model->index(1, kColumn), 7, Qt::EditRole);
    QSpinBox* const box = makeBox(1);
    box->selectAll();
    QTest::keyClick(box, Qt::Key_Delete);
    QCOMPARE(box->cleanText(), QString());
    m_delegate->takeOver(box);
    QCOMPARE(m_model->index(1, kColumn).data(), QVariant(7));
    QCOMPARE(box->cleanText(), QStringLiteral("7"));
}

void tst_SpinBoxDelegate::takesOverNothingOfAStranger()
{
    QSpinBox stranger;
    stranger.setValue(9);
    m_delegate->takeOver(&stranger);
    for (int row = 0; row < m_model->rowCount(); ++row) {
        QCOMPARE(m_model->index(row, kColumn).data(), QVariant(1));
    }
}

void tst_SpinBoxDelegate::refusesWhatIsOutOfRange_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("value");
    QTest::newRow("0") << QStringLiteral("0") << 1;
    QTest::newRow("1000") << QStringLiteral("1000") << 100;
    QTest::newRow("999") << QStringLiteral("999") << 999;
    QTest::newRow("letters") << QStringLiteral("ab") << 1;
}

void tst_SpinBoxDelegate::refusesWhatIsOutOfRange()
{
    QFETCH(QString, typed);
    QFETCH(int, value);

    QSpinBox* const box = makeBox(0);
    box->selectAll();
    QTest::keyClicks(box, typed);
    box->interpretText();
    QCOMPARE(box->value(), value);
    box->setValue(0);
    QCOMPARE(box->value(), 1);
    box->setValue(1000);
    QCOMPARE(box->value(), 999);
}

void tst_SpinBoxDelegate::otherEditorsAreLeftAlone()
{
    const QModelIndex index = m_model->index(0, kColumn);
    QLineEdit other;
    m_delegate->setEditorData(&other, index);
    m_delegate->setModelData(&other, m_model.get(), index);
    QCOMPARE(other.text(), QString());
    QCOMPARE(index.data(Qt::EditRole), QVariant(1));
}

void tst_SpinBoxDelegate::withoutAModel()
{
    QSpinBox box;
    box.setValue(5);
    m_delegate->setEditorData(&box, QModelIndex());
    QCOMPARE(box.value(), 5);
    m_delegate->setModelData(&box, nullptr, m_model->index(0, kColumn));
    QCOMPARE(m_model->index(0, kColumn).data(Qt::EditRole), QVariant(1));
}

TREL_TEST(tst_SpinBoxDelegate, QApplication)
#include "tst_SpinBoxDelegate.moc"
