#pragma once

#include "access/AccessibleEditor.h"

class QPushButton;

namespace trel::mediadispatch {

/// A button in a row of a plan table. The caller of a press does not wait for the prompts that it
/// may bring.
class AccessibleButton : public AccessibleEditor
{
public:
    explicit AccessibleButton(QPushButton& button);

    QStringList actionNames() const override;
    void doAction(const QString& action) override;
};

} // namespace trel::mediadispatch
