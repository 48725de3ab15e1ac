#include "PictureBook.h"

#include "PictureFiles.h"
#include "PictureSchedule.h"
#include "card/PlanColumns.h"
#include "scheduleControlUI.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDateEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QTimeEdit>
#include <QTimer>

using namespace trel::mediadispatch;

namespace trel::pictures {

namespace {

QAbstractButton* button(const QWidget* parent, const char* name)
{
    return parent->findChild<QAbstractButton*>(QLatin1String(name));
}

} // namespace

PictureBook::PictureBook(scheduleControlUI& editor, PictureFiles& files)
    : m_editor(editor)
    , m_files(files)
{}

void PictureBook::drawAll()
{
    refresh();
    drawEditor();
    drawChoosers();
    drawMenu();
    drawPrompts();
    drawEmpty();
    refresh();
}

void PictureBook::refresh()
{
    m_editor.clearAndInitialize();
    if (QWidget* first = card()) {
        button(first, "title")->setChecked(false);
    }
    settle();
}

void PictureBook::drawEditor()
{
    m_files.save(&m_editor, QStringLiteral("editor"));
}

void PictureBook::drawChoosers()
{
    const auto openChooser = [this](int row) {
        if (QWidget* field = cellWidget(row, ProgramsColumn)) {
            button(field, "pushButton")->click();
        }
    };
    saveDialog(
        QStringLiteral("chooser"), [&] { openChooser(1); },
        [](QWidget* dialog) {
            const auto tables = dialog->findChildren<QTableView*>(QStringLiteral("schedule"));
            for (const int row : {0, 3}) {
                QAbstractItemModel* model = tables.first()->model();
                const QModelIndex cell = model->index(row, 0);
                QStyleOptionViewItem option;
                option.rect = tables.first()->visualRect(cell);
                QMouseEvent press(QEvent::MouseButtonPress, option.rect.center(), Qt::LeftButton,
                                  Qt::LeftButton, Qt::NoModifier);
                tables.first()->itemDelegate(cell)->editorEvent(&press, model, option, cell);
            }
        });
    addTroubledPlan();
    saveDialog(QStringLiteral("chooser-warnings"), [&] { openChooser(1); });
    refresh();
}

void PictureBook::drawMenu()
{
    saveDialog(QStringLiteral("chooser-menu"), [this] {
        QTimer::singleShot(0, &m_editor, [] {
            QWidget* chooser = QApplication::activeModalWidget();
            const auto tables = chooser->findChildren<QTableView*>(QStringLiteral("schedule"));
            QTableView* plan = tables.last();
            const QPoint first = plan->visualRect(plan->model()->index(0, 2)).center();
            emit plan->customContextMenuRequested(first);
            chooser->close();
        });
        button(cellWidget(1, ProgramsColumn), "pushButton")->click();
    });
}

void PictureBook::drawPrompts()
{
    saveDialog(QStringLiteral("prompt-delete-plan"),
               [this] { cellWidget(0, DeleteColumn)->findChild<QAbstractButton*>()->click(); });
    saveDialog(QStringLiteral("prompt-delete-task"),
               [this] { button(card(), "pushButtonDelete")->click(); });
    saveDialog(QStringLiteral("prompt-dates"), [this] {
        auto* start = card()->findChild<QDateEdit*>(QStringLiteral("dateEditVaildStartTime"));
        auto* end = card()->findChild<QDateEdit*>(QStringLiteral("dateEditVaildEndTime"));
        start->setDate(end->date().addDays(1));
    });
    saveDialog(QStringLiteral("prompt-times"), [this] {
        auto* end = cellWidget(1, EndTimeColumn)->findChild<QTimeEdit*>();
        end->setTime(QTime(1, 0));
    });
    overlapTasks();
    saveDialog(QStringLiteral("prompt-overlap"),
               [this] { button(&m_editor, "pushButtonSave")->click(); });
    refresh();
}

void PictureBook::drawEmpty()
{
    QMetaObject::invokeMethod(&m_editor, "sigclearPlanList");
    settle();
    m_files.save(&m_editor, QStringLiteral("editor-empty"));
}

void PictureBook::saveDialog(const QString& name, const std::function<void()>& open,
                             const std::function<void(QWidget*)>& prepare)
{
    m_files.saveDialog(m_editor, name, open, prepare);
}

QWidget* PictureBook::card() const
{
    return m_editor.findChild<QWidget*>(QStringLiteral("PlanTaskWidget"));
}

QWidget* PictureBook::cellWidget(int row, int column) const
{
    auto* table = card()->findChild<QTableView*>(QStringLiteral("schedule"));
    return table->indexWidget(table->model()->index(row, column));
}

} // namespace trel::pictures
