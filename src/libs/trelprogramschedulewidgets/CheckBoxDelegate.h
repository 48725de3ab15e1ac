#pragma once

#include "service/ScheduleRecords.h"

#include <QPixmap>
#include <QStyledItemDelegate>

namespace trel::mediadispatch {

/// Shows the check marks in the first column of a chooser table, and turns them over on a press
/// anywhere in their cell. A mark is the data of its item under Qt::UserRole, a bool.
///
/// The images are taken when the delegate is built, and painted at the size of their files. The
/// view never sees an event of these cells.
class CheckBoxDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit CheckBoxDelegate(CheckType type, QObject* parent = nullptr);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

    /// From here on a drawn box, with a tick or without, stands in for an image that cannot be
    /// loaded; else there is nothing in its place.
    void drawMissingImages();

    /// Turns over the mark of a cell of its column, as a press on it does, with the signal.
    void toggle(QAbstractItemModel& model, const QModelIndex& index);

signals:
    /// The operator has pressed the mark of a row; check is its new state.
    void signalChecked(CheckType type, int row, bool check);

protected:
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;

private:
    QPixmap m_uncheckedPixmap;
    QPixmap m_checkedPixmap;
    CheckType m_type;
    bool m_drawsMissingImages = false;
};

} // namespace trel::mediadispatch
