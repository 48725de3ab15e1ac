#include "TimeDelegate.h"

#include "card/EditorGeometry.h"
#include "service/ScheduleRecords.h"
#include "toolkit/FocusedWheel.h"

#include <QTimeEdit>

namespace trel::mediadispatch {

namespace {

constexpr int kEditorHeight = 24;

} // namespace

TimeDelegate::TimeDelegate(QObject* parent)
    : QItemDelegate(parent)
{}

QWidget* TimeDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                    const QModelIndex&) const
{
    auto* const editor = new FocusedWheel<QTimeEdit>(parent);
    editor->setFixedHeight(kEditorHeight);
    editor->setDisplayFormat(kTimeFormat);
    editor->setCalendarPopup(true);
    editor->setFocus(Qt::OtherFocusReason);
    editor->setContextMenuPolicy(Qt::NoContextMenu);
    return editor;
}

void TimeDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    if (auto* const timeEdit = qobject_cast<QTimeEdit*>(editor)) {
        timeEdit->setTime(
            QTime::fromString(index.data(Qt::DisplayRole).toString(), QString(kTimeFormat)));
    }
}

void TimeDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                const QModelIndex& index) const
{
    auto* const timeEdit = qobject_cast<QTimeEdit*>(editor);
    if (!timeEdit || !model) {
        return;
    }
    const QTime time = timeEdit->time();
    // Setting it again rewrites a half-typed text, so that the editor shows what the model gets.
    timeEdit->setTime(time);
    const int row = index.row();
    const int column = index.column();
    model->setData(index, time.toString(QString(kTimeFormat)), Qt::EditRole);
    emit signalUpdataTime(row, column, time);
}

void TimeDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                        const QModelIndex&) const
{
    if (editor) {
        editor->setGeometry(planEditorRect(option.rect));
    }
}

} // namespace trel::mediadispatch
