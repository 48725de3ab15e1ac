#pragma once

#include <QPointer>
#include <QString>

class QAbstractSpinBox;
class QKeyEvent;

namespace trel::mediadispatch {

/// A key that a date, time or count field is about to take, for screen readers. The toolkit tells
/// of a text before it stands there, and so never of the last digit. The keys that step a value
/// are left to the toolkit, which tells of the value by itself.
class TypedValue
{
public:
    TypedValue(QAbstractSpinBox& field, const QKeyEvent& key);

    /// To be called when the field has taken the key, which it may not have survived. Tells of its
    /// value where the key has left another text that is a whole value.
    void tell() const;

private:
    QPointer<QAbstractSpinBox> m_field; ///< Null where nobody listens, or the key types nothing.
    QString m_formerText;
};

} // namespace trel::mediadispatch
