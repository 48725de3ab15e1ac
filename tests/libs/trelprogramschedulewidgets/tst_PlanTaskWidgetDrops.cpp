#include "OpenCard.h"
#include "support/TestProgram.h"

#include "MultiComboBox.h"
#include "PlanStandardItemModel.h"
#include "kCustomLineEdit.h"

#include <QApplication>
#include <QDateEdit>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QSpinBox>
#include <QTableView>
#include <QTimeEdit>
#include <QUrl>

#include <memory>

using namespace trel::mediadispatch;

namespace {

RecordingService& service()
{
    return RecordingService::instance();
}

PlayTask threePlans(int id)
{
    PlayTask task = taskWithPlans({timePlan(1, "08:00:00", "09:00:00"),
                                   frequencyPlan(2, "10:00:00", 2, {entry(1)}, "1,3"),
                                   timePlan(3, "12:00:00", "13:00:00", "5")},
                                  id);
    return task;
}

std::unique_ptr<QMimeData> rowData(const OpenCard& card, int row)
{
    const PlanStandardItemModel& model = card.rows.model();
    return std::unique_ptr<QMimeData>(model.mimeData({model.index(row, TitleColumn)}));
}

/// Two cards that show the same plans, and a list view.
struct Scene
{
    Scene()
        : open(threePlans(1))
        , other(threePlans(2))
    {
        list.addItems({QStringLiteral("first"), QStringLiteral("second")});
        list.setDragDropMode(QAbstractItemView::DragDrop);
        list.setDefaultDropAction(Qt::MoveAction);
        list.show();
        before = open.rows.lines();
        for (int row = 0; row < open.rows.rowCount(); ++row) {
            editors.append(&open.rows.startTime(row));
            editors.append(&open.rows.weeks(row));
        }
        service().clearLog();
    }

    /// What is dragged over the card.
    std::unique_ptr<QMimeData> load(const QByteArray& kind) const
    {
        if (kind == "rows of its own") {
            return rowData(open, 2);
        }
        if (kind == "rows of another card") {
            return rowData(other, 1);
        }
        if (kind == "items of another view") {
            const QAbstractItemModel& items = *list.model();
            return std::unique_ptr<QMimeData>(items.mimeData({items.index(1, 0)}));
        }
        auto data = std::make_unique<QMimeData>();
        if (kind == "files") {
            data->setUrls({QUrl(QStringLiteral("file:///tmp/film.mp4"))});
        } else {
            data->setText(QStringLiteral("7"));
        }
        return data;
    }

    /// Where something is dropped; each place stands on the screen.
    QWidget& target(const QByteArray& place) const
    {
        if (place == "start") {
            return *open.rows.startTime(1).findChild<QLineEdit*>();
        }
        if (place == "end") {
            return *open.rows.endTime(0).findChild<QLineEdit*>();
        }
        if (place == "times") {
            return *open.rows.times(1).findChild<QLineEdit*>();
        }
        if (place == "days") {
            return *open.rows.weeks(1).lineEdit();
        }
        if (place == "date") {
            return *named<QDateEdit>(open.card, "dateEditVaildStartTime").findChild<QLineEdit*>();
        }
        if (place == "programs") {
            return open.rows.programs(1);
        }
        return *open.rows.table().viewport();
    }

    QPoint placeIn(const QByteArray& place) const
    {
        const QTableView& table = open.rows.table();
        // Captions stand in cells without an editor.
        const QRect caption = table.visualRect(open.rows.model().index(0, StartTimeCaptionColumn));
        if (place == "row") {
            return caption.center();
        }
        if (place == "gap") {
            return QPoint(caption.center().x(), caption.bottom());
        }
        if (place == "below") {
            return table.viewport()->rect().bottomLeft() + QPoint(20, -3);
        }
        return target(place).rect().center();
    }

    /// Empty when the card holds and shows what it did, in the same widgets, also in another
    /// language.
    QString change()
    {
        for (const auto& editor : editors) {
            if (!editor) {
                return QStringLiteral("an editor is gone");
            }
        }
        if (open.rows.lines() != before || !service().edits().isEmpty()) {
            return open.rows.lines().join(QLatin1Char('\n'));
        }
        open.card.slotTranslation();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (open.rows.lines() != before) {
            return open.rows.lines().join(QLatin1Char('\n'));
        }
        return open.rows.disagreement();
    }

    OpenCard open;
    OpenCard other;
    QListWidget list;
    QStringList before;
    QList<QPointer<QWidget>> editors;
};

/// Sends the three events of a drag and drop as the toolkit does. True when the drop was taken.
bool drop(QWidget& target, const QPoint& place, const QMimeData& data, Qt::DropActions actions)
{
    QDragEnterEvent enter(place, actions, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&target, &enter);
    QDragMoveEvent move(place, actions, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&target, &move);
    QDropEvent dropped(place, actions, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&target, &dropped);
    return enter.isAccepted() || move.isAccepted() || dropped.isAccepted();
}

void addLoads()
{
    QTest::addColumn<QByteArray>("kind");
    QTest::addColumn<QByteArray>("place");
    QTest::addColumn<Qt::DropActions>("actions");
    for (const char* kind :
         {"rows of its own", "rows of another card", "items of another view", "files", "text"}) {
        for (const char* place :
             {"row", "gap", "below", "start", "end", "times", "days", "date", "programs"}) {
            const auto row = [kind, place](const char* name, Qt::DropActions actions) {
                QTest::addRow("%s, %s, %s", kind, place, name)
                    << QByteArray(kind) << QByteArray(place) << actions;
            };
            row("move", Qt::MoveAction);
            row("copy", Qt::CopyAction);
            row("either", Qt::MoveAction | Qt::CopyAction);
        }
    }
}

} // namespace

/// The order of plans is the order in which they were added, so nothing that is dropped on a card
/// counts.
class tst_PlanTaskWidgetDrops : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void nothingIsTaken_data() { addLoads(); }
    void nothingIsTaken();
    void anotherViewTakesTheSameDrop();
    void theTableStaysSetUpForMoves();
};

void tst_PlanTaskWidgetDrops::init()
{
    service().reset();
    service().addProgram(1, "film", 60000.0);
}

void tst_PlanTaskWidgetDrops::nothingIsTaken()
{
    QFETCH(QByteArray, kind);
    QFETCH(QByteArray, place);
    QFETCH(Qt::DropActions, actions);
    Scene scene;
    const auto data = scene.load(kind);
    QVERIFY(!drop(scene.target(place), scene.placeIn(place), *data, actions));
    QCOMPARE(scene.change(), QString());
}

// Or the drops above would prove nothing.
void tst_PlanTaskWidgetDrops::anotherViewTakesTheSameDrop()
{
    Scene scene;
    QWidget& viewport = *scene.list.viewport();
    const auto data = scene.load("rows of another card");
    QVERIFY(drop(viewport, viewport.rect().center(), *data, Qt::MoveAction));
    QVERIFY(scene.list.count() > 2);
}

void tst_PlanTaskWidgetDrops::theTableStaysSetUpForMoves()
{
    const OpenCard open(threePlans(1));
    const QTableView& table = open.rows.table();
    QCOMPARE(table.dragDropMode(), QAbstractItemView::DropOnly);
    QVERIFY(!table.dragEnabled());
    QVERIFY(!table.showDropIndicator());
}

TREL_TEST(tst_PlanTaskWidgetDrops, QApplication)
#include "tst_PlanTaskWidgetDrops.moc"
