#include "support/ChooserWindow.h"

#include <QApplication>
#include <QDialog>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSpinBox>
#include <QTableView>
#include <QTimer>
#include <QWindow>
#include <QtTest>

namespace {

// The columns as an operator meets them, from the left.
constexpr int kMark = 0;
constexpr int kNumber = 1;
constexpr int kName = 2;
constexpr int kCount = 3;

QString text(const QTableView* table, int row, int column)
{
    return table->model()->index(row, column).data().toString();
}

QString start(const QTableView* table, int row)
{
    const bool checked = table->model()->index(row, kMark).data(Qt::UserRole).toBool();
    return QLatin1String(checked ? "[x]" : "[ ]") + text(table, row, kNumber) + QLatin1Char(' ') +
           text(table, row, kName);
}

/// Clicks by way of the window, as only this way leads to a context menu.
void rightClick(const QWidget* widget, const QPoint& position)
{
    QWindow* window = widget->window()->windowHandle();
    const QPoint inWindow = widget->mapTo(widget->window(), position);
    QTest::mousePress(window, Qt::RightButton, Qt::NoModifier, inWindow);
    QTest::mouseRelease(window, Qt::RightButton, Qt::NoModifier, inWindow);
}

QStringList lines(const QMenu& menu)
{
    QStringList texts;
    for (const QAction* action : menu.actions()) {
        const bool inReach = menu.isEnabled() && action->isEnabled();
        texts.append(inReach ? action->text()
                             : QLatin1Char('(') + action->text() + QLatin1Char(')'));
    }
    return texts;
}

} // namespace

ChooserWindow::ChooserWindow(QDialog* chooser)
    : m_chooser(chooser)
{}

QWidget* ChooserWindow::frame() const
{
    return m_chooser->window();
}

QTableView* ChooserWindow::programTable() const
{
    return m_chooser->findChildren<QTableView*>().at(0);
}

QTableView* ChooserWindow::planTable() const
{
    return m_chooser->findChildren<QTableView*>().at(1);
}

QPushButton* ChooserWindow::button(const char* name) const
{
    return m_chooser->findChild<QPushButton*>(QString::fromLatin1(name));
}

QLabel* ChooserWindow::label(const char* name) const
{
    return m_chooser->findChild<QLabel*>(QString::fromLatin1(name));
}

QStringList ChooserWindow::programRows() const
{
    const QTableView* table = programTable();
    QStringList rows;
    for (int row = 0; row < table->model()->rowCount(); ++row) {
        rows.append(start(table, row));
    }
    return rows;
}

QStringList ChooserWindow::planRows() const
{
    const QTableView* table = planTable();
    QStringList rows;
    for (int row = 0; row < table->model()->rowCount(); ++row) {
        rows.append(start(table, row) + QLatin1String(" x") + text(table, row, kCount));
    }
    return rows;
}

QString ChooserWindow::message() const
{
    QStringList shown;
    const QLabel* tip = label("tipLab");
    if (!tip->isHidden()) {
        shown.append(QLatin1String("tip: ") + tip->text());
    }
    if (label("warningLab")->isHidden() != tip->isHidden()) {
        shown.append(QStringLiteral("the sign and its text differ"));
    }
    const QLabel* over = label("overTimeTip");
    if (!over->isHidden()) {
        shown.append(QLatin1String("over: ") + over->text());
    }
    return shown.join(QLatin1Char('|'));
}

QString ChooserWindow::total() const
{
    return label("showTime_label")->text();
}

bool ChooserWindow::canConfirm() const
{
    return button("comfirmBtn")->isEnabled();
}

void ChooserWindow::checkProgram(int row) const
{
    click(programTable(), row, kMark);
}

void ChooserWindow::checkPrograms(const std::initializer_list<int>& rows) const
{
    for (const int row : rows) {
        checkProgram(row);
    }
}

void ChooserWindow::checkPlan(int row) const
{
    click(planTable(), row, kMark);
}

void ChooserWindow::checkAllPrograms() const
{
    clickHeader(programTable());
}

void ChooserWindow::checkAllPlan() const
{
    clickHeader(planTable());
}

void ChooserWindow::choose() const
{
    press("pushButtonChonse");
}

void ChooserWindow::remove() const
{
    press("pushButtonDelete");
}

void ChooserWindow::moveUp() const
{
    press("UpBtn");
}

void ChooserWindow::moveDown() const
{
    press("DownBtn");
}

void ChooserWindow::confirm() const
{
    press("comfirmBtn");
}

void ChooserWindow::cancel() const
{
    press("cancelBtn");
}

void ChooserWindow::close() const
{
    QTest::mouseClick(frame()->findChild<QPushButton*>(QStringLiteral("ButtonClose")),
                      Qt::LeftButton);
}

QSpinBox* ChooserWindow::openCount(int row) const
{
    QTableView* table = planTable();
    const QPoint position = cell(table, row, kCount);
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, position);
    QTest::mouseDClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, position);
    return table->viewport()->findChild<QSpinBox*>();
}

void ChooserWindow::setCount(int row, int count) const
{
    QSpinBox* box = openCount(row);
    box->selectAll();
    QTest::keyClicks(box, QString::number(count));
    QTest::keyClick(box, Qt::Key_Return);
    // The box hands in its value from the event loop.
    QTRY_COMPARE(text(planTable(), row, kCount).toInt(), count);
}

QStringList ChooserWindow::contextMenu(int row, int line) const
{
    QStringList found;
    withContextMenu(row, [&](QMenu& menu) {
        found = lines(menu);
        if (line >= 0) {
            QTest::mouseClick(menu.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                              menu.actionGeometry(menu.actions().at(line)).center());
        }
    });
    return found;
}

void ChooserWindow::withContextMenu(int row, const std::function<void(QMenu&)>& steps) const
{
    QTableView* table = planTable();
    const bool exists = row < table->model()->rowCount();
    const QPoint position =
        exists ? cell(table, row, kName) : QPoint(60, table->viewport()->height() - 4);
    bool opened = false;
    QObject untilReturn;
    QTimer::singleShot(0, &untilReturn, [&] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!menu) {
            return;
        }
        opened = true;
        steps(*menu);
        if (menu == QApplication::activePopupWidget()) {
            QTest::mouseClick(menu->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                              QPoint(-10, -10));
        }
    });
    rightClick(table->viewport(), position);
    QVERIFY2(opened, "the right click opened no menu");
}

QPoint ChooserWindow::cell(QTableView* table, int row, int column) const
{
    const QModelIndex index = table->model()->index(row, column);
    table->scrollTo(index);
    return table->visualRect(index).center();
}

void ChooserWindow::click(QTableView* table, int row, int column) const
{
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, cell(table, row, column));
}

void ChooserWindow::clickHeader(QTableView* table) const
{
    QTest::mouseClick(table->horizontalHeader()->viewport(), Qt::LeftButton, Qt::NoModifier,
                      QPoint(5, 5));
}

void ChooserWindow::press(const char* name) const
{
    QTest::mouseClick(button(name), Qt::LeftButton);
}
