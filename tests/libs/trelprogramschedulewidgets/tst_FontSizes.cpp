#include "LookInForce.h"
#include "ShownEditor.h"

#include "MultiComboBox.h"
#include "SHeaderView.h"
#include "ScheduleText.h"
#include "apps/schedule-editor/PaintedTexts.h"
#include "card/PlanColumns.h"
#include "support/ChooserAnswer.h"
#include "support/PlanTaskWidgetInspector.h"
#include "support/TestProgram.h"

#include "trelwidgets/ComboBox.h"

#include <QDateEdit>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTableView>
#include <QTimeEdit>
#include <QToolTip>
#include <QtTest>

#include <algorithm>

using namespace trel::mediadispatch;

namespace {

QStringList paintedBy(QWidget& widget)
{
    PaintedTexts device(widget.size());
    widget.render(&device, QPoint(), QRegion(), QWidget::DrawChildren);
    return device.texts();
}

/// The toolkit takes its time to hide one.
void dropToolTip()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* const window : windows) {
        if (window->inherits("QTipLabel")) {
            delete window;
            return;
        }
    }
}

QString tipAt(QWidget& widget, const QPoint& place)
{
    dropToolTip();
    QHelpEvent event(QEvent::ToolTip, place, widget.mapToGlobal(place));
    QCoreApplication::sendEvent(&widget, &event);
    return QToolTip::text();
}

/// Empty where a text is painted whole, or cut with dots and told by a tool tip.
QString fault(const QStringList& painted, const QString& text, const QString& tip)
{
    const QString whole = text.trimmed();
    for (const QString& one : painted) {
        if (one.trimmed() == whole) {
            return QString();
        }
    }
    for (const QString& one : painted) {
        if (one.contains(QChar(0x2026))) {
            return tip == whole ? QString() : QStringLiteral("no tip: ") + whole;
        }
    }
    return QStringLiteral("no dots: ") + whole + QStringLiteral(" as ") +
           painted.join(QLatin1Char('|'));
}

/// The labels and buttons of a window of which some is cut, but not as it has to be.
QStringList badlyCut(const QWidget& window)
{
    QStringList faults;
    for (QWidget* const widget : window.findChildren<QWidget*>()) {
        const auto* const button = qobject_cast<QPushButton*>(widget);
        const auto* const label = qobject_cast<QLabel*>(widget);
        const QString text = button ? button->text() : label ? label->text() : QString();
        // The field of the programs is 150 wide, and its text is cut before it gets there.
        const bool isField = widget->objectName() == QLatin1String("lineEdit");
        if (!widget->isVisible() || text.trimmed().isEmpty() || isField) {
            continue;
        }
        const int wanted = widget->fontMetrics().horizontalAdvance(text.trimmed());
        const QStringList painted = paintedBy(*widget);
        const bool isWhole = painted.contains(text) || painted.contains(text.trimmed());
        if (isWhole && wanted > widget->width()) {
            faults.append(QStringLiteral("no dots: ") + text);
        } else if (!isWhole) {
            faults.append(fault(painted, text, tipAt(*widget, {5, 5})));
        }
    }
    faults.removeAll(QString());
    return faults;
}

/// A field in which one types scrolls while it has the focus.
void lookAtField(QAbstractSpinBox& field)
{
    auto* const line = field.findChild<QLineEdit*>();
    const bool isWhole = field.fontMetrics().horizontalAdvance(field.text()) + 4 <= line->width();
    const QString tip = tipAt(field, line->geometry().center());
    QCOMPARE(tip, isWhole ? QString() : field.text());
    QCOMPARE(paintedBy(*line).contains(field.text()), isWhole || field.hasFocus());
    if (!field.hasFocus()) {
        const QString found = fault(paintedBy(*line), field.text(), tip);
        QVERIFY2(found.isEmpty(), qPrintable(found));
    }
}

/// The widths of the columns and the sizes of the boxes in them are fixed in pixels.
void lookAtRow(PlanTaskWidgetInspector& rows, int row)
{
    const auto look = [](QWidget& widget, const QString& text) {
        const QString found = fault(paintedBy(widget), text, tipAt(widget, {5, 5}));
        QVERIFY2(found.isEmpty(), qPrintable(found));
        // What is painted whole has the room for it.
        if (paintedBy(widget).contains(text)) {
            QVERIFY2(widget.fontMetrics().horizontalAdvance(text) <= widget.width(),
                     qPrintable(text));
        }
    };
    look(rows.mode(row), rows.mode(row).currentText());
    look(rows.endAction(row), rows.endAction(row).currentText());
    look(rows.state(row), rows.state(row).text());
    lookAtField(rows.startTime(row));
    lookAtField(rows.endTime(row));
    lookAtField(rows.times(row));
    MultiComboBox& days = rows.weeks(row);
    const QString chosen = days.toolTip();
    const QString found = fault(paintedBy(*days.lineEdit()), chosen, chosen);
    QVERIFY2(found.isEmpty(), qPrintable(found));
}

void lookAtCaptions(QTableView& table, int row)
{
    const QStringList painted = paintedBy(*table.viewport());
    for (const int column :
         {TitleColumn, ModeCaptionColumn, StartTimeCaptionColumn, EndTimeCaptionColumn,
          TimesCaptionColumn, WeeksCaptionColumn, EndActionCaptionColumn}) {
        const QModelIndex cell = table.model()->index(row, column);
        const QString text = cell.data().toString().trimmed();
        const QString tip = tipAt(*table.viewport(), table.visualRect(cell).center());
        // A text of two words may stand on two lines.
        const QStringList words = text.split(QLatin1Char(' '));
        const auto isPainted = [&painted](const QString& word) {
            return std::any_of(painted.begin(), painted.end(), [&word](const QString& one) {
                return one.contains(word) && !one.contains(QChar(0x2026));
            });
        };
        const bool isWhole = std::all_of(words.begin(), words.end(), isPainted);
        QVERIFY2(tip == (isWhole ? QString() : text), qPrintable(text + painted.join(u'|')));
        QVERIFY2(isWhole || painted.join(u'|').contains(QChar(0x2026)), qPrintable(text));
    }
}

void lookAtHeader(SHeaderView& header)
{
    const QStringList painted = paintedBy(*header.viewport());
    const QVector<const char*> keys = {"zhCheckNumber", "szProgramLstStr", "zhPlayCounts"};
    for (int section = 1; section < header.count() && section <= keys.size(); ++section) {
        if (header.isSectionHidden(section)) {
            continue;
        }
        const QString label = scheduleText(keys.at(section - 1));
        const int room = header.sectionSize(section);
        const bool isWhole = header.fontMetrics().elidedText(label, Qt::ElideRight, room) == label;
        const QPoint place(header.sectionViewportPosition(section) + 3, 5);
        QCOMPARE(tipAt(*header.viewport(), place), isWhole ? QString() : label);
        const QString found = fault(painted, label, label);
        QVERIFY2(found.isEmpty() && painted.contains(label) == isWhole, qPrintable(label));
    }
}

} // namespace

/// Texts in fonts of 10 to 20 pixels: nothing is cut but what a fixed width forces, and that with
/// dots and a tool tip.
///
/// What is typed scrolls in the fields of dates, times and counts while they have the focus.
class tst_FontSizes : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void theEditor_data() { addSizes(); }
    void theEditor();
    void theChooser_data() { addSizes(); }
    void theChooser();
    void theDaysAreCutToTheirLine();
    void theDaysAreCutAgainInAnotherFont();

private:
    static void addSizes();
    static void take();

    std::unique_ptr<FormerLook> m_former;
};

void tst_FontSizes::init()
{
    m_former = std::make_unique<FormerLook>();
}

void tst_FontSizes::cleanup()
{
    dropToolTip();
    m_former.reset();
}

void tst_FontSizes::addSizes()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("pixels");
    for (const char* language : {"en_US", "de_DE"}) {
        for (const int pixels : {10, 12, 14, 16, 18, 20}) {
            QTest::newRow(
                qPrintable(QStringLiteral("%1, %2").arg(QLatin1String(language)).arg(pixels)))
                << QString::fromLatin1(language) << pixels;
        }
    }
}

/// Takes the language and the font of the row.
void tst_FontSizes::take()
{
    QFETCH(const QString, language);
    QFETCH(const int, pixels);
    Look look;
    look.font.setPixelSize(pixels);
    look.put();
    RefusedConnections refused;
    scheduleControlUI loader;
    loader.loadLanguageFiles({QStringLiteral(LANGUAGE_DIR "/%1.qm").arg(language)});
    loader.switchLanguage(language);
}

void tst_FontSizes::theEditor()
{
    take();
    ShownEditor editor;
    static_cast<scheduleControlUI&>(editor.dialog()).translate();
    QCoreApplication::processEvents();
    QCOMPARE(badlyCut(editor.dialog()).join(u'|'), QString());
    for (QDateEdit* const date : editor.card(0).findChildren<QDateEdit*>()) {
        lookAtField(*date);
        date->setFocus();
        lookAtField(*date);
    }
    PlanTaskWidgetInspector rows(editor.card(0));
    for (int row = 0; row < rows.rowCount(); ++row) {
        lookAtRow(rows, row);
        lookAtCaptions(rows.table(), row);
    }
}

void tst_FontSizes::theChooser()
{
    take();
    ShownEditor editor;
    const PlanTaskWidgetInspector rows(editor.card(0));
    const ChooserAnswer answer([](ChooserWindow& chooser) {
        QCOMPARE(badlyCut(*chooser.frame()).join(u'|'), QString());
        for (SHeaderView* const header : chooser.frame()->findChildren<SHeaderView*>()) {
            lookAtHeader(*header);
        }
        chooser.cancel();
    });
    rows.cell(0, ProgramsColumn)->findChild<QPushButton*>(QStringLiteral("pushButton"))->click();
}

/// A style sheet may leave the line less room than the days were cut for, and gives it its color.
void tst_FontSizes::theDaysAreCutToTheirLine()
{
    const QString text = QStringLiteral("Mon,Wed,Fri");
    MultiComboBox days;
    QFont font = days.font();
    font.setPixelSize(10);
    days.setFont(font);
    days.setFixedWidth(60);
    days.setShownText(text);
    days.show();
    QCOMPARE(days.lineEdit()->text(), text);
    const QStringList painted = paintedBy(*days.lineEdit());
    QCOMPARE(painted.size(), 1);
    QVERIFY2(painted.first().endsWith(QChar(0x2026)), qPrintable(painted.first()));
    QVERIFY(text.startsWith(painted.first().chopped(1)));

    const auto redPixels = [&days] {
        const QImage image = days.grab().toImage();
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QColor color = image.pixelColor(x, y);
                count += color.red() > color.green() + 60 ? 1 : 0;
            }
        }
        return count;
    };
    QCOMPARE(redPixels(), 0);
    qApp->setStyleSheet(QStringLiteral("QComboBox { color: #ff0000; }"));
    QVERIFY(redPixels() > 10);
}

void tst_FontSizes::theDaysAreCutAgainInAnotherFont()
{
    MultiComboBox days;
    QFont font = days.font();
    font.setPixelSize(10);
    days.setFont(font);
    const QString text = QStringLiteral("Mon,Wed,Fri");
    days.setShownText(text);
    QCOMPARE(days.lineEdit()->text(), text);
    font.setPixelSize(20);
    days.setFont(font);
    QVERIFY2(days.lineEdit()->text().endsWith(QChar(0x2026)), qPrintable(days.lineEdit()->text()));
    font.setPixelSize(10);
    days.setFont(font);
    QCOMPARE(days.lineEdit()->text(), text);
}

TREL_TEST(tst_FontSizes, QApplication)
#include "tst_FontSizes.moc"
