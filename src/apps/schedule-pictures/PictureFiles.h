#pragma once

#include <QDir>
#include <QString>

#include <functional>

class QWidget;

namespace trel::pictures {

/// Lets deferred deletions, and layouts that follow one another, happen.
void settle();
/// Lets events go on until something has come about, or it takes too long.
void waitUntil(const std::function<bool()>& condition);

/// Files of pictures of windows.
class PictureFiles
{
public:
    /// Files are written to the folder, with the suffix before their extension.
    PictureFiles(const QDir& folder, const QString& suffix);

    void save(QWidget* widget, const QString& name);
    /// Does what opens a dialog or a menu over a window, draws it and closes it.
    void saveDialog(QWidget& window, const QString& name, const std::function<void()>& open,
                    const std::function<void(QWidget*)>& prepare = {});

    /// False after a picture could not be written.
    bool isComplete() const { return m_isComplete; }

private:
    QDir m_folder;
    QString m_suffix;
    bool m_isComplete = true;
};

} // namespace trel::pictures
