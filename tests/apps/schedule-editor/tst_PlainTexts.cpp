#include "CardOnScreen.h"
#include "HostFixture.h"
#include "PseudoLanguage.h"
#include "support/ChooserAnswer.h"
#include "support/PromptAnswer.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/catalogue/ProgramImporter.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QDockWidget>
#include <QHelpEvent>
#include <QLabel>
#include <QMainWindow>
#include <QPointer>
#include <QStatusBar>
#include <QTextDocument>
#include <QToolTip>
#include <QVector>

#include <algorithm>

using namespace trel::desktop;
using namespace trel::mediadispatch;

namespace {

/// Nothing of it may become a picture, a link, a font or another character. Where it is drawn as
/// markup, a file is opened.
const QString kMarkup =
    QStringLiteral("<img src=\"file:///nowhere\"><b>x</b><a href=\"a\">y</a>&amp;");

QString named(const char* what)
{
    return kMarkup + QString::fromLatin1(what);
}

/// A plan whose texts are all markup, but for the times that it needs.
PlayPlan hostilePlan(int id)
{
    PlayPlan plan;
    plan.id = id;
    plan.startTime = "00:00:00";
    plan.endTime = "23:59:59";
    plan.times = 1;
    plan.weeks = named("days").toStdString();
    plan.serviceTime = named("service").toStdString();
    plan.programs = {{1, false, named("entry").toStdString(), 1},
                     {9, true, named("lost").toStdString(), 2}};
    return plan;
}

/// Whether a text that the toolkit is left to judge comes out to the letter.
bool isShownToTheLetter(const QString& text)
{
    if (!Qt::mightBeRichText(text)) {
        return true;
    }
    QTextDocument document;
    document.setHtml(text);
    return document.toPlainText().contains(QLatin1String("<img")) || !text.contains(kMarkup);
}

/// What would not be: labels that guess, and tool tips.
QStringList faultsOf(const QWidget& widget)
{
    QStringList faults;
    const QString name = QStringLiteral("%1 %2: ").arg(
        QLatin1String(widget.metaObject()->className()), widget.objectName());
    const auto* label = qobject_cast<const QLabel*>(&widget);
    if (label != nullptr && !label->text().isEmpty() && label->textFormat() != Qt::PlainText) {
        faults.append(name + QStringLiteral("guesses the format of ") + label->text());
    }
    if (!isShownToTheLetter(widget.toolTip()) || widget.toolTip().contains(kMarkup)) {
        faults.append(name + QStringLiteral("has the tool tip ") + widget.toolTip());
    }
    const auto* view = qobject_cast<const QAbstractItemView*>(&widget);
    const QAbstractItemModel* model = view == nullptr ? nullptr : view->model();
    for (int row = 0; model != nullptr && row < model->rowCount(); ++row) {
        for (int column = 0; column < model->columnCount(); ++column) {
            const QString tip = model->index(row, column).data(Qt::ToolTipRole).toString();
            if (tip.contains(kMarkup)) {
                faults.append(name + QStringLiteral("has a cell with the tool tip ") + tip);
            }
        }
    }
    return faults;
}

/// The same of every widget that there is, shown or not, a line each.
QString faultsOfAll()
{
    QStringList faults;
    const QWidgetList widgets = QApplication::allWidgets();
    for (const QWidget* widget : widgets) {
        // The toolkit's own tool tip, of which the next function takes care.
        if (!widget->inherits("QTipLabel")) {
            faults += faultsOf(*widget);
        }
    }
    return faults.join(QLatin1Char('\n'));
}

/// The tool tip that comes up over a widget.
QString tipOver(QWidget& widget, const QPoint& place)
{
    QToolTip::hideText();
    QHelpEvent event(QEvent::ToolTip, place, widget.mapToGlobal(place));
    QApplication::sendEvent(&widget, &event);
    return QToolTip::text();
}

/// The tool tips that come up over what can be seen, at places close to each other.
QStringList tipsOverAll()
{
    constexpr int kStep = 24;
    QStringList tips;
    // A tool tip is a widget as well, and one that is hidden goes by itself after a while.
    const QWidgetList all = QApplication::allWidgets();
    const QVector<QPointer<QWidget>> widgets(all.begin(), all.end());
    for (const QPointer<QWidget>& widget : widgets) {
        if (widget.isNull() || !widget->isVisible() || widget->inherits("QTipLabel")) {
            continue;
        }
        for (int y = qMin(kStep, widget->height()) / 2; y < widget->height(); y += kStep) {
            for (int x = qMin(kStep, widget->width()) / 2; x < widget->width(); x += kStep) {
                if (const QString tip = tipOver(*widget, {x, y}); !tip.isEmpty()) {
                    tips.append(tip);
                }
            }
        }
    }
    tips.removeDuplicates();
    return tips;
}

/// A text of a language file that is all markup.
QString marked(const QString& text)
{
    return kMarkup + text;
}

int widgetsWithMarkup()
{
    int count = 0;
    const QWidgetList widgets = QApplication::allWidgets();
    for (const QWidget* widget : widgets) {
        const auto* label = qobject_cast<const QLabel*>(widget);
        count += label != nullptr && label->text().contains(kMarkup) ? 1 : 0;
    }
    return count;
}

} // namespace

/// No name, path, message or note is ever taken for markup, in whatever window it shows.
class tst_PlainTexts : public QObject
{
    Q_OBJECT

private slots:
    void everyWidgetShowsTextsToTheLetter();
    void languageFilesAreShownToTheLetter_data();
    void languageFilesAreShownToTheLetter();
    void insertionsAreShownToTheLetter();
    void promptsShowTextsToTheLetter();
    void theImportShowsNamesToTheLetter();

private:
    struct Hostile : HostFixture
    {
        Hostile()
        {
            // A slash ends the name of a file.
            const QString file = folder.filePath(QStringLiteral("<img src=x>&amp;<b>.db"));
            window.openDatabase(file, QString());
            std::vector<MediaSource> sources;
            for (const char* name : {"one", "two"}) {
                sources.push_back(
                    {named(name), QStringLiteral("udp://") + named(name), 0.0, ProgramKind::Live});
            }
            QVERIFY(host.addPrograms(sources).store);
            PlayTask task;
            task.id = 1;
            task.startDate = "2024.01.01";
            task.endDate = "2099.12.31";
            task.plans = {hostilePlan(1), hostilePlan(2)};
            PlayTask odd = task;
            odd.id = 2;
            odd.startDate = odd.endDate = named("date").toStdString();
            odd.plans.front().startTime = odd.plans.front().endTime = named("time").toStdString();
            QVERIFY(host.replaceSchedule({{1, task}, {2, odd}}));
            manager.slotOpen();
        }

        QList<QWidget*> openCards() const
        {
            const auto cards = editor->findChildren<QWidget*>(QStringLiteral("PlanTaskWidget"));
            for (QWidget* card : cards) {
                card->findChild<QAbstractButton*>(QStringLiteral("title"))->setChecked(false);
            }
            QCoreApplication::processEvents();
            return cards;
        }
    };
};

void tst_PlainTexts::everyWidgetShowsTextsToTheLetter()
{
    Hostile fixture;
    fixture.window.show();
    fixture.showEditor();
    const QList<QWidget*> cards = fixture.openCards();
    QVERIFY2(widgetsWithMarkup() > 0, "the panels of the host show no program");
    QCOMPARE(faultsOfAll(), QString());

    const QStringList tips = tipsOverAll();
    for (const QString& tip : tips) {
        QVERIFY2(!tip.contains(kMarkup) && isShownToTheLetter(tip), qPrintable(tip));
    }
    QVERIFY2(!tips.isEmpty(), "no tool tip came up");

    ChooserAnswer answer([](const ChooserWindow& chooser) {
        QCOMPARE(chooser.programTable()->model()->rowCount(), 2);
        chooser.checkProgram(0);
        chooser.choose();
        QCOMPARE(faultsOfAll(), QString());
        const QModelIndex name = chooser.programTable()->model()->index(0, 2);
        QVERIFY(name.data().toString().contains(kMarkup));
        chooser.cancel();
    });
    CardOnScreen(*cards.front()).openChooser(0);
    QCOMPARE(answer.count(), 1);
}

void tst_PlainTexts::languageFilesAreShownToTheLetter_data()
{
    QTest::addColumn<bool>("areCardsOpen");
    QTest::newRow("before the cards come") << false;
    QTest::newRow("while the cards are open") << true;
}

/// A language file may be anybody's.
void tst_PlainTexts::languageFilesAreShownToTheLetter()
{
    QFETCH(const bool, areCardsOpen);
    Hostile fixture;
    fixture.window.resize(1180, 720);
    fixture.window.show();
    if (areCardsOpen) {
        fixture.showEditor();
        fixture.openCards();
    }
    const PseudoLanguage language(*fixture.editor, marked);
    if (!areCardsOpen) {
        fixture.showEditor();
        fixture.openCards();
    }
    for (const char* name : {"pbtCreatCopy", "pushButtonDelete"}) {
        auto* button = fixture.firstCard()->findChild<QWidget*>(QLatin1String(name));
        QVERIFY2(button != nullptr, name);
        QToolTip::hideText();
        const QPoint place = button->rect().center();
        QEnterEvent enter(place, button->mapTo(button->window(), place),
                          button->mapToGlobal(place));
        QApplication::sendEvent(button, &enter);
        const QString tip = QToolTip::text();
        QVERIFY2(Qt::mightBeRichText(tip) && isShownToTheLetter(tip) && !tip.contains(kMarkup),
                 qPrintable(tip));
    }
    const QList<QDockWidget*> panels = fixture.window.findChildren<QDockWidget*>();
    for (QDockWidget* panel : panels) {
        panel->show();
        panel->raise();
        QCoreApplication::processEvents();
        QCOMPARE(faultsOfAll(), QString());
        const QStringList tips = tipsOverAll();
        for (const QString& tip : tips) {
            QVERIFY2(!tip.contains(kMarkup) && isShownToTheLetter(tip), qPrintable(tip));
        }
        QVERIFY2(std::any_of(tips.begin(), tips.end(),
                             [](const QString& tip) { return Qt::mightBeRichText(tip); }),
                 qPrintable(panel->objectName()));
    }
}

void tst_PlainTexts::insertionsAreShownToTheLetter()
{
    Hostile fixture;
    fixture.window.show();
    const QList<QDockWidget*> panels = fixture.window.findChildren<QDockWidget*>();
    for (QDockWidget* panel : panels) {
        panel->show();
    }
    PlayPlan plan = hostilePlan(1);
    plan.serviceFlagA = true;
    QVERIFY(fixture.host.insertPlan(1, 1, plan, false));
    auto* badge = fixture.window.findChild<QWidget*>(QStringLiteral("nowInserted"));
    QVERIFY(badge != nullptr);
    QTRY_VERIFY(badge->isVisible());
    const QString tip = tipOver(*badge, badge->rect().center());
    QVERIFY2(Qt::mightBeRichText(tip), qPrintable(tip));
    QVERIFY2(!tip.contains(kMarkup) && isShownToTheLetter(tip), qPrintable(tip));
}

void tst_PlainTexts::promptsShowTextsToTheLetter()
{
    Hostile fixture;
    fixture.window.show();
    QString faults;
    int shown = 0;
    QTimer::singleShot(0, &fixture.window, [&] {
        faults = faultsOfAll();
        shown = widgetsWithMarkup();
    });
    const PromptAnswer answer(1);
    fixture.window.tell(kMarkup);
    QCOMPARE(answer.texts(), QStringList{kMarkup});
    QCOMPARE(faults, QString());
    QVERIFY(shown > 0);
    fixture.window.statusBar()->showMessage(kMarkup);
    QCOMPARE(faultsOfAll(), QString());
    QVERIFY(fixture.window.windowTitle().contains(QStringLiteral("<img")));
}

void tst_PlainTexts::theImportShowsNamesToTheLetter()
{
    Hostile fixture;
    fixture.window.show();
    QSignalSpy ended(&fixture.window, &EditorWindow::importEnded);
    QVERIFY(ended.isValid());
    const PromptAnswer answer(1); // The file is refused, since it is not there.
    fixture.window.importMedia({QStringLiteral("/no/") + QStringLiteral("<b>bold<b>.mp4")});
    auto* progress = fixture.window.findChild<QWidget*>(QStringLiteral("importProgress"));
    QVERIFY(progress != nullptr);
    QCOMPARE(progress->findChild<QLabel*>()->textFormat(), Qt::PlainText);
    QVERIFY(ended.wait());
    QVERIFY2(answer.texts().first().contains(QStringLiteral("<b>bold<b>")),
             qPrintable(answer.texts().first()));
}

TREL_TEST(tst_PlainTexts, QApplication)
#include "tst_PlainTexts.moc"
