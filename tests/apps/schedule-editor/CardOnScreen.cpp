#include "CardOnScreen.h"

#include "ScheduleLines.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QScrollArea>
#include <QWindow>
#include <QtTest>

using namespace trel::mediadispatch;

namespace {

/// The scroll areas that are within each other, from the inside out.
void scrollIntoView(QWidget& widget)
{
    for (QWidget* above = widget.parentWidget(); above; above = above->parentWidget()) {
        if (auto* const area = qobject_cast<QScrollArea*>(above)) {
            area->ensureWidgetVisible(&widget, 0, 0);
        }
    }
}

bool isOpen(const QComboBox& box)
{
    return box.view()->isVisible();
}

QPoint entryPlace(const QComboBox& box, int entry)
{
    const QModelIndex index = box.model()->index(entry, box.modelColumn());
    const QRect inList = box.view()->visualRect(index);
    return inList.intersected(box.view()->viewport()->rect()).center();
}

} // namespace

void clickAt(QWidget& widget, const QPoint& position)
{
    // What has just been shown finds its place first.
    QCoreApplication::processEvents();
    scrollIntoView(widget);
    QWidget* const window = widget.window();
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, widget.mapTo(window, position));
}

void click(QWidget& widget)
{
    clickAt(widget, widget.rect().center());
}

QStringList CardOnScreen::lines() const
{
    // "Play task 3    "
    static const QRegularExpression number(QStringLiteral("(\\d+)\\s*$"));
    QStringList lines{taskLine(number.match(button("title").text()).captured(1).toInt(),
                               firstDay().text(), lastDay().text())};
    for (int row = 0; row < rowCount(); ++row) {
        lines.append(line(row));
    }
    return lines;
}

int CardOnScreen::rowCount() const
{
    return table().model()->rowCount();
}

QString CardOnScreen::line(int row) const
{
    static const QRegularExpression number(QStringLiteral("(\\d+):$"));
    const QString title = table().model()->index(row, TitleColumn).data().toString();
    PlanLine line;
    line.id = number.match(title).captured(1).toInt();
    line.mode = mode(row).currentIndex();
    line.start = startTime(row).text();
    line.end = endTime(row).text();
    line.times = times(row).text().toInt();
    const QStringList labels = weeks(row).toolTip().split(QLatin1Char(','));
    for (const QString& label : labels) {
        line.days.append(QString::number(weeks(row).findText(label)));
    }
    line.endAction = endAction(row).currentIndex();
    line.programs = programs(row);
    line.collides = isStateRed(row);
    return line.text();
}

bool CardOnScreen::isFolded() const
{
    return !table().isVisible();
}

QString CardOnScreen::programField(int row) const
{
    return cell(row, ProgramsColumn)->findChild<QPushButton*>(QStringLiteral("lineEdit"))->text();
}

QString CardOnScreen::programs(int row) const
{
    return table().model()->index(row, ProgramsColumn).data(ProgramTextRole).toString();
}

QString CardOnScreen::state(int row) const
{
    return static_cast<QLabel*>(cell(row, StateColumn))->text();
}

bool CardOnScreen::isStateRed(int row) const
{
    const QPalette& colours = cell(row, StateColumn)->palette();
    return colours.color(QPalette::WindowText) == QColor(Qt::red);
}

QTimeEdit& CardOnScreen::startTime(int row) const
{
    return *cell(row, StartTimeColumn)->findChild<QTimeEdit*>();
}

QTimeEdit& CardOnScreen::endTime(int row) const
{
    return *cell(row, EndTimeColumn)->findChild<QTimeEdit*>();
}

QSpinBox& CardOnScreen::times(int row) const
{
    return *cell(row, TimesColumn)->findChild<QSpinBox*>();
}

QComboBox& CardOnScreen::mode(int row) const
{
    return *cell(row, ModeColumn)->findChild<QComboBox*>();
}

QComboBox& CardOnScreen::weeks(int row) const
{
    return *cell(row, WeeksColumn)->findChild<QComboBox*>();
}

QComboBox& CardOnScreen::endAction(int row) const
{
    return *cell(row, EndActionColumn)->findChild<QComboBox*>();
}

QDateEdit& CardOnScreen::firstDay() const
{
    return *m_card.findChild<QDateEdit*>(QStringLiteral("dateEditVaildStartTime"));
}

QDateEdit& CardOnScreen::lastDay() const
{
    return *m_card.findChild<QDateEdit*>(QStringLiteral("dateEditVaildEndTime"));
}

void CardOnScreen::toggleFold() const
{
    QPushButton& title = button("title");
    clickAt(title, QPoint(60, title.height() / 2));
}

void CardOnScreen::choose(QComboBox& box, int entry) const
{
    click(box);
    QTRY_VERIFY(isOpen(box));
    // Right after its opening the list takes no click, so that a slow click does not choose.
    const auto clickedAway = [&box, entry] {
        if (isOpen(box)) {
            clickAt(*box.view()->viewport(), entryPlace(box, entry));
        }
        return !isOpen(box);
    };
    QTRY_VERIFY(clickedAway());
    QCOMPARE(box.currentIndex(), entry);
}

void CardOnScreen::type(QSpinBox& box, const char* number) const
{
    click(box);
    QTRY_COMPARE(QApplication::focusWidget(), &box);
    box.selectAll();
    QTest::keyClicks(&box, QLatin1String(number));
    QTest::keyClick(&box, Qt::Key_Return);
}

void CardOnScreen::type(QTimeEdit& edit, const char* text) const
{
    click(edit);
    QTRY_COMPARE(QApplication::focusWidget(), &edit);
    const QStringList sections = QString::fromLatin1(text).split(QLatin1Char(':'));
    for (int i = 0; i < sections.size(); ++i) {
        edit.setSelectedSection(edit.sectionAt(i));
        QTest::keyClicks(&edit, sections.at(i));
    }
    QTest::keyClick(&edit, Qt::Key_Return);
}

void CardOnScreen::copy(int row) const
{
    click(*cell(row, CopyColumn)->findChild<QPushButton*>());
}

void CardOnScreen::remove(int row) const
{
    click(*cell(row, DeleteColumn)->findChild<QPushButton*>());
}

void CardOnScreen::addPlan() const
{
    click(button("pushButtonAdd"));
}

void CardOnScreen::openChooser(int row) const
{
    click(*cell(row, ProgramsColumn)->findChild<QPushButton*>(QStringLiteral("pushButton")));
}

void CardOnScreen::copyTask() const
{
    click(button("pbtCreatCopy"));
}

void CardOnScreen::removeTask() const
{
    click(button("pushButtonDelete"));
}

QTableView& CardOnScreen::table() const
{
    return *m_card.findChild<QTableView*>(QStringLiteral("schedule"));
}

QWidget* CardOnScreen::cell(int row, PlanColumn column) const
{
    const QModelIndex index = table().model()->index(row, column);
    table().scrollTo(index);
    return table().indexWidget(index);
}

QPushButton& CardOnScreen::button(const char* name) const
{
    return *m_card.findChild<QPushButton*>(QLatin1String(name));
}

void CardOnScreen::openDays(int row) const
{
    // The list stays shut for a moment after it has closed.
    QComboBox& box = weeks(row);
    const auto opened = [&box] {
        if (!isOpen(box)) {
            click(box);
        }
        return isOpen(box);
    };
    QTRY_VERIFY(opened());
}

void CardOnScreen::clickDays(int row, const std::initializer_list<int>& days) const
{
    for (const int day : days) {
        clickAt(*weeks(row).view()->viewport(), entryPlace(weeks(row), day));
    }
}

void CardOnScreen::leaveDays(int row) const
{
    QTest::keyClick(weeks(row).view(), Qt::Key_Escape);
    QTRY_VERIFY(!isOpen(weeks(row)));
}
