#include "CustomTableModel.h"
#include "SHeaderView.h"
#include "chooser/ChooserColumns.h"
#include "chooser/ChooserTables.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QTableView>
#include <QtTest>

using namespace trel::mediadispatch;

namespace {

/// Counts how often somebody starts to listen to it.
class WatchedModel : public CustomTableModel
{
public:
    int connections = 0;

protected:
    void connectNotify(const QMetaMethod&) override { ++connections; }
};

/// What a table costs that is given a header first and a model then.
int plainConnections(int columns)
{
    WatchedModel model;
    model.setColumnCount(columns);
    QTableView table;
    table.setHorizontalHeader(new QHeaderView(Qt::Horizontal, &table));
    table.setModel(&model);
    return model.connections;
}

QString headerLine(const QTableView& table)
{
    const QHeaderView* const header = table.horizontalHeader();
    QStringList sections;
    for (int section = 0; section < header->count(); ++section) {
        const bool isFixed = header->sectionResizeMode(section) == QHeaderView::Fixed;
        sections.append(QString::number(header->sectionSize(section)) +
                        QLatin1String(isFixed ? "" : "~"));
    }
    return sections.join(QLatin1Char(' ')) +
           QLatin1String(header->stretchLastSection() ? " stretched" : "");
}

} // namespace

/// What the two tables of the chooser are before they are filled.
class tst_ChooserTables : public QObject
{
    Q_OBJECT

private slots:
    void theHeadersHaveFixedSections();
    void aModelIsConnectedOnce();
};

void tst_ChooserTables::theHeadersHaveFixedSections()
{
    CustomTableModel offers;
    CustomTableModel choices;
    QTableView offerTable;
    QTableView choiceTable;
    offerTable.resize(400, 300);
    choiceTable.resize(400, 300);
    const SHeaderView* const offerHeader = setUpProgramTable(&offerTable, &offers);
    const SHeaderView* const choiceHeader = setUpChoiceTable(&choiceTable, &choices);
    offerTable.show();
    choiceTable.show();
    QCOMPARE(offerTable.horizontalHeader(), offerHeader);
    QCOMPARE(choiceTable.horizontalHeader(), choiceHeader);
    const int width = offerTable.viewport()->width();
    QCOMPARE(headerLine(offerTable), QStringLiteral("34 50 %1 stretched").arg(width - 84));
    QCOMPARE(headerLine(choiceTable), QStringLiteral("34 50 110 %1 stretched").arg(width - 194));
    QCOMPARE(offerTable.verticalHeader()->defaultSectionSize(), 31);
    QVERIFY(offerTable.verticalHeader()->isHidden());
    for (int column = 0; column < ChoiceVisibleColumnCount; ++column) {
        QCOMPARE(choices.headerData(column, Qt::Horizontal).toString(), QString());
    }
}

void tst_ChooserTables::aModelIsConnectedOnce()
{
    WatchedModel offers;
    QTableView offerTable;
    setUpProgramTable(&offerTable, &offers);
    QCOMPARE(offers.connections, plainConnections(OfferColumnCount));

    WatchedModel choices;
    QTableView choiceTable;
    setUpChoiceTable(&choiceTable, &choices);
    QCOMPARE(choices.connections, plainConnections(ChoiceVisibleColumnCount));
}

TREL_TEST(tst_ChooserTables, QApplication)

#include "tst_ChooserTables.moc"
