#pragma once

#include "look/ThemeColours.h"

#include <QStyledItemDelegate>

namespace trel::desktop {

class ProgramTableModel;
class Thumbnails;

/// Shows the name of a program behind its picture, and at the edge of its row the color that it has
/// in the week.
class ProgramDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// Model and pictures outlive the delegate.
    ProgramDelegate(const ProgramTableModel& model, Thumbnails& pictures, QObject* parent);

    void setColours(const look::ThemeColours& colours) { m_colours = colours; }
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

    /// Where the color of a program stands in a cell, in reading direction.
    static QRect edge(const QStyleOptionViewItem& option);

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

private:
    const ProgramTableModel& m_model;
    Thumbnails& m_pictures;
    look::ThemeColours m_colours;
};

} // namespace trel::desktop
