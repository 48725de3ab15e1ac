#pragma once

#include <QObject>

class QSettings;
class QWidget;

namespace trel::desktop {

/// Where it is written down what the windows of the program are like.
class WindowMemory : public QObject
{
    Q_OBJECT

public:
    /// Serves a window, to which it belongs, and those that open above it. The settings outlive it.
    WindowMemory(QSettings& settings, QWidget& window);
    ~WindowMemory() override;

    /// Of the windows that a window opens above; null where nothing is remembered.
    static QSettings* above(const QWidget& window);

private:
    QSettings& m_settings;
};

} // namespace trel::desktop
