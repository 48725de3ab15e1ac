#pragma once

#include "help/KeyTable.h"

#include <QDialog>

class QTreeWidget;

namespace trel::desktop {

/// A sheet of all keys. Made anew each time it is asked for.
class KeySheet : public QDialog
{
    Q_OBJECT

public:
    KeySheet(const std::vector<KeySection>& sections, QWidget* parent);

private:
    void fill(const std::vector<KeySection>& sections);

    QTreeWidget* m_list;
};

} // namespace trel::desktop
