#pragma once

#include <QMetaMethod>
#include <QStringList>

/// The signatures of the methods of one kind that a class itself declares, in order.
inline QStringList ownMethods(const QMetaObject& metaObject, QMetaMethod::MethodType type)
{
    QStringList signatures;
    for (int i = metaObject.methodOffset(); i < metaObject.methodCount(); ++i) {
        const QMetaMethod method = metaObject.method(i);
        if (method.methodType() == type) {
            signatures.append(QString::fromLatin1(method.methodSignature()));
        }
    }
    return signatures;
}
