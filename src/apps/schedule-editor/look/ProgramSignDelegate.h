#pragma once

#include "look/ThemeColours.h"

#include <QStyledItemDelegate>

namespace trel::desktop::look {

/// Shows in front of the text of a cell the signs of the programs that it names, as its model has
/// them under kProgramsRole. Cells that name none, or none of the catalogue, look as they always
/// do.
class ProgramSignDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit ProgramSignDelegate(QObject* parent);
    ~ProgramSignDelegate() override;

    /// Those of the theme in force. The view is to be painted again.
    void setColours(const ThemeColours& colours) { m_colours = colours; }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

private:
    ThemeColours m_colours;
};

} // namespace trel::desktop::look
