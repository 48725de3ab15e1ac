#include "HostFixture.h"
#include "LookSupport.h"
#include "support/TestProgram.h"

#include "card/PlanColumns.h"

#include <QApplication>
#include <QDateEdit>
#include <QHeaderView>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTableView>
#include <QTimer>

using namespace trel::desktop;
using namespace trel::mediadispatch;

/// Every text against its ground, on the pixels of the windows.
class tst_Contrast : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void textsOfTheEditor_data() { addThemes(); }
    void textsOfTheEditor();
    void selectedTexts_data() { addThemes(); }
    void selectedTexts();
    void textsOfRows_data() { addThemes(); }
    void textsOfRows();
    void statesOfPlans_data() { addThemes(); }
    void statesOfPlans();
    void textsOfTheChooser_data() { addThemes(); }
    void textsOfTheChooser();
    void textsOfTheHost_data() { addThemes(); }
    void textsOfTheHost();
    void textsOfMenus_data() { addThemes(); }
    void textsOfMenus();
    void bordersOfMenus_data() { addThemes(); }
    void bordersOfMenus();

private:
    void spoilPlan(int planId) const;

    std::unique_ptr<HostFixture> m_host;
};

namespace {

QString faultsOfCells(QTableView* table, const QList<int>& columns)
{
    const QImage picture = pictureOf(table->viewport());
    QString faults;
    for (int row = 0; row < table->model()->rowCount(); ++row) {
        for (const int column : columns) {
            const QModelIndex index = table->model()->index(row, column);
            const QRect cell = table->visualRect(index).adjusted(0, 2, 0, -2);
            if (!index.data().toString().trimmed().isEmpty() && picture.rect().contains(cell)) {
                faults += faultOf(picture, cell, index.data().toString());
            }
        }
    }
    return faults;
}

/// At rest, and with everything selected.
QString faultsOfStates(QTableView* table, const QList<int>& columns)
{
    table->clearSelection();
    const QString atRest = faultsOfCells(table, columns);
    table->selectAll();
    return atRest + faultsOfCells(table, columns);
}

} // namespace

void tst_Contrast::init()
{
    m_host = std::make_unique<HostFixture>();
    QFETCH(QString, theme);
    m_host->themes.select(theme);
    m_host->showDemonstration();
}

void tst_Contrast::cleanup()
{
    m_host.reset();
}

void tst_Contrast::textsOfTheEditor()
{
    QString faults;
    for (const char* name :
         {"pushButtonAddTask", "pushButtonClose", "pushButtonStart", "pushButtonSave", "TitleLabel",
          "title", "labelvalidTime", "labelTo", "dateEditVaildStartTime", "dateEditVaildEndTime"}) {
        faults += faultsOf(m_host->editor->findChild<QWidget*>(QLatin1String(name)));
    }
    emit m_host->editor->sigclearPlanList();
    const QList<QLabel*> labels = m_host->editor->findChildren<QLabel*>();
    for (QLabel* label : labels) {
        if (label->property("style").toString() == QLatin1String("grayHint")) {
            QVERIFY(label->isVisible());
            faults += faultsOf(label);
        }
    }
    QVERIFY2(faults.isEmpty(), qPrintable(faults));
}

void tst_Contrast::selectedTexts()
{
    auto* date = m_host->editor->findChild<QDateEdit*>(QStringLiteral("dateEditVaildStartTime"));
    QWidget* times = m_host->cell(0, TimesColumn);
    QString faults;
    for (QAbstractSpinBox* box :
         {static_cast<QAbstractSpinBox*>(date), times->findChild<QAbstractSpinBox*>()}) {
        box->selectAll();
        auto* line = box->findChild<QLineEdit*>();
        QVERIFY(line->hasSelectedText());
        // Where the first letter stands, the ground of the selection is what is most seen.
        faults += faultOf(pictureOf(line), QRect(2, 4, 9, line->height() - 8), box->objectName());
    }
    QVERIFY2(faults.isEmpty(), qPrintable(faults));
}

void tst_Contrast::textsOfRows()
{
    QString faults;
    const QList<int> captions{TitleColumn,           ModeCaptionColumn,  StartTimeCaptionColumn,
                              EndTimeCaptionColumn,  TimesCaptionColumn, WeeksCaptionColumn,
                              EndActionCaptionColumn};
    for (const int row : {0, 1}) {
        for (const int column : {ModeColumn, StartTimeColumn, EndTimeColumn, TimesColumn,
                                 WeeksColumn, EndActionColumn}) {
            QWidget* holder = m_host->cell(row, column);
            faults += faultsOf(holder->layout()->itemAt(0)->widget());
        }
        QWidget* field = m_host->cell(row, ProgramsColumn);
        faults += faultsOf(field->findChild<QWidget*>(QStringLiteral("lineEdit")));
    }
    faults += faultsOfStates(m_host->firstTable(), captions);
    QVERIFY2(faults.isEmpty(), qPrintable(faults));
}

void tst_Contrast::statesOfPlans()
{
    QString faults;
    QStringList words;
    const auto look = [&](int row) {
        auto* label = qobject_cast<QLabel*>(m_host->cell(row, StateColumn));
        words.append(label->text());
        faults += faultOf(pictureOf(label), label->rect().adjusted(6, 12, -6, -12), label->text());
    };
    for (int row = 0; row < 4; ++row) {
        look(row);
    }
    m_host->firstTable()->selectAll();
    look(3);
    // Both states are there, and the words alone tell them apart.
    QCOMPARE(words.count(words.first()), 3);
    QVERIFY(words.last() != words.first());
    QVERIFY2(faults.isEmpty(), qPrintable(faults));
}

void tst_Contrast::spoilPlan(int planId) const
{
    int index = -1;
    PlayPlan plan = m_host->manager.getPlan(1, planId, index);
    struProgInfo invalid;
    invalid.isInvalid = true;
    invalid.progIndex = kInvalidProgIndex;
    invalid.progName = "Summer sale";
    struProgInfo gone;
    gone.progIndex = 999;
    gone.progName = "Gone";
    plan.programs.push_back(invalid);
    plan.programs.push_back(gone);
    m_host->manager.addPlan(1, plan);
}

void tst_Contrast::textsOfTheChooser()
{
    spoilPlan(2);
    QString faults = QStringLiteral("no chooser");
    QTimer::singleShot(0, m_host->editor.get(), [&faults] {
        QWidget* chooser = QApplication::activeModalWidget();
        faults.clear();
        for (const char* name : {"overTimeTip", "tipLab"}) {
            chooser->findChild<QWidget*>(QLatin1String(name))->show();
        }
        QCoreApplication::processEvents();
        for (const char* name : {"label", "label_2", "label_timeWord", "overTimeTip", "tipLab",
                                 "pushButtonDelete", "cancelBtn", "comfirmBtn", "TitleLabel"}) {
            faults += faultsOf(chooser->findChild<QWidget*>(QLatin1String(name)));
        }
        const auto tables = chooser->findChildren<QTableView*>(QStringLiteral("schedule"));
        for (QTableView* table : tables) {
            faults += faultsOfCells(table, {1, 2, 3});
            // The pointer on each row in turn.
            for (int row = 0; row < table->model()->rowCount(); ++row) {
                const QPoint place = table->visualRect(table->model()->index(row, 2)).center();
                QHoverEvent hover(QEvent::HoverMove, place, QPointF(-1, -1));
                QCoreApplication::sendEvent(table->viewport(), &hover);
                faults += faultsOfCells(table, {1, 2, 3});
            }
            const QImage header = pictureOf(table->horizontalHeader()->viewport());
            for (int section = 1; section < table->model()->columnCount(); ++section) {
                const QRect part(table->horizontalHeader()->sectionViewportPosition(section), 0,
                                 table->horizontalHeader()->sectionSize(section), header.height());
                if (part.width() > 0) {
                    faults += faultOf(header, part.adjusted(3, 2, -3, -2),
                                      QStringLiteral("section %1").arg(section));
                }
            }
        }
        chooser->close();
    });
    QWidget* field = m_host->cell(1, ProgramsColumn);
    field->findChild<QPushButton*>(QStringLiteral("pushButton"))->click();
    QVERIFY2(faults.isEmpty(), qPrintable(faults));
}

void tst_Contrast::textsOfTheHost()
{
    m_host->window.show();
    QCoreApplication::processEvents();
    auto* programs = m_host->window.findChild<QTableView*>(QStringLiteral("programTable"));
    const QString faults = faultsOfStates(programs, {0, 1, 2, 3});
    QVERIFY2(faults.isEmpty(), qPrintable(faults));
}

void tst_Contrast::textsOfMenus()
{
    QString faults;
    for (const bool isEnabled : {true, false}) {
        QMenu menu;
        menu.addAction(QStringLiteral("Move up"));
        menu.addAction(QStringLiteral("Move down"));
        menu.setEnabled(isEnabled);
        menu.ensurePolished();
        menu.resize(menu.sizeHint());
        if (isEnabled) {
            menu.setActiveAction(menu.actions().first());
        }
        const QImage picture = menu.grab().toImage();
        for (QAction* action : menu.actions()) {
            faults += faultOf(picture, menu.actionGeometry(action).adjusted(4, 3, -4, -3),
                              action->text());
        }
    }
    QVERIFY2(faults.isEmpty(), qPrintable(faults));
}

void tst_Contrast::bordersOfMenus()
{
    QMenu menu;
    menu.addAction(QStringLiteral("Move up"));
    menu.ensurePolished();
    menu.resize(menu.sizeHint());
    const QImage picture = menu.grab().toImage();
    const int middle = picture.height() / 2;
    const QColor window = m_host->themes.colours().window;
    const QColor ground = lookAt(picture, picture.rect()).ground;
    for (const QPoint& place :
         {QPoint(0, middle), QPoint(picture.width() - 1, middle), QPoint(picture.width() / 2, 0),
          QPoint(picture.width() / 2, picture.height() - 1)}) {
        const QColor edge(picture.pixel(place));
        QVERIFY2(contrast(edge, window) >= 3.0, qPrintable(edge.name()));
        QVERIFY2(contrast(edge, ground) >= 3.0, qPrintable(edge.name()));
    }
}

TREL_TEST(tst_Contrast, QApplication)
#include "tst_Contrast.moc"
