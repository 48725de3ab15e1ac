#pragma once

#include "service/ScheduleRecords.h"

#include <QHeaderView>
#include <QPixmap>

namespace trel::mediadispatch {

/// The header of a chooser table: a check mark for the whole table in section 0, labels in the
/// others, a thin separator between any two.
///
/// The images of the mark are taken when the header is built, and painted at the size of their
/// files. The labels are fetched on every paint, so that a change of language needs a repaint only.
class SHeaderView : public QHeaderView
{
    Q_OBJECT

public:
    SHeaderView(CheckType type, Qt::Orientation orientation, QWidget* parent = nullptr);

    /// Sets the mark, to keep it in step with the marks of the rows. Emits nothing.
    void setChecked(bool checked);
    /// Whether the mark is set.
    bool isChecked() const { return m_checked; }
    /// Turns the mark over as a press on it does.
    void toggle();

    /// From here on a drawn box, with a tick or without, stands in for an image that cannot be
    /// loaded; else there is nothing in its place.
    void drawMissingImages();
    /// Has labels that their sections have no room for cut with dots, and told by a tool tip. By
    /// itself the style gets them whole.
    void cutLongLabels();

    /// The label of a section in the language in use; empty where there is none.
    static QString label(int section);

signals:
    /// The operator has pressed the mark; ischeck is its new state.
    void signalSelectAll(CheckType type, bool ischeck);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    /// Shows the whole of a label that its section has no room for.
    bool viewportEvent(QEvent* event) override;
    void paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const override;

private:
    QString labelFor(int section, int width) const;
    void paintSeparator(QPainter* painter, const QRect& rect) const;
    void paintMark(QPainter* painter, const QRect& rect) const;

    QPixmap m_uncheckedPixmap;
    QPixmap m_checkedPixmap;
    bool m_checked = false;
    CheckType m_type;
    bool m_drawsMissingImages = false;
    bool m_cutsLongLabels = false;
};

} // namespace trel::mediadispatch
