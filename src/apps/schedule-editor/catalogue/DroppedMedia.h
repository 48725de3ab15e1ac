#pragma once

#include <QStringList>

class QMimeData;

namespace trel::desktop {

/// What of something that is dragged can be imported. Looks at no file, so that it costs nothing
/// where a disk does not answer.
struct DroppedMedia
{
    QStringList paths; ///< Files, folders and addresses, in their order.
    int files = 0;     ///< Files and folders among them.
    int addresses = 0;
    int refused = 0; ///< What is none of these.

    explicit DroppedMedia(const QMimeData* data);

    bool isEmpty() const { return paths.isEmpty(); }
    /// What is taken and what is not, in a sentence in the language in use.
    QString words() const;
};

} // namespace trel::desktop
