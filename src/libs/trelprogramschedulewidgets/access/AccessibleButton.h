#pragma once

#include "access/AccessibleEditor.h"

class QPushButton;

namespace trel::mediadispatch {

/// A button of the editor. The caller of a press does not wait for the prompts that it may bring,
/// and behind one it is not pressed. The one with which a plan's programs are chosen says which
/// they are, those that are invalid or missing with their marks.
class AccessibleButton : public AccessibleEditor
{
public:
    explicit AccessibleButton(QPushButton& button);

    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;

    QStringList actionNames() const override;
    void doAction(const QString& action) override;
    QStringList keyBindingsForAction(const QString& action) const override;

protected:
    QPushButton& button() const;

private:
    QString programs() const;
};

} // namespace trel::mediadispatch
