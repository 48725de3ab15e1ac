#pragma once

#include <QStyledItemDelegate>

namespace trel::desktop {

class ProgramTableModel;
class Thumbnails;

/// Shows the name of a program behind its picture.
class ProgramDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// Model and pictures outlive the delegate.
    ProgramDelegate(const ProgramTableModel& model, Thumbnails& pictures, QObject* parent);

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

private:
    const ProgramTableModel& m_model;
    Thumbnails& m_pictures;
};

} // namespace trel::desktop
