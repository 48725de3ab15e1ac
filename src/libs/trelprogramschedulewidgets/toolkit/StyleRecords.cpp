#include "StyleRecords.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLineEdit>
#include <QStyle>

namespace trel::mediadispatch {

namespace {

bool isLineOfField(const QLineEdit& line)
{
    const QWidget* const field = line.parentWidget();
    return qobject_cast<const QAbstractSpinBox*>(field) || qobject_cast<const QComboBox*>(field);
}

} // namespace

void releaseStyleRecords(QWidget& part)
{
    // Without one above, a style sheet would bring records of its own.
    if (!part.style()->inherits("QStyleSheetStyle")) {
        return;
    }
    const QList<QLineEdit*> lines = part.findChildren<QLineEdit*>();
    for (QLineEdit* const line : lines) {
        if (isLineOfField(*line)) {
            line->setStyleSheet(QStringLiteral("/**/"));
        }
    }
}

} // namespace trel::mediadispatch
