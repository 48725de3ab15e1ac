#include "PictureFiles.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPointer>
#include <QTimer>
#include <QWidget>

namespace trel::pictures {

namespace {

/// When a dialog has been laid out and painted, in milliseconds.
constexpr int kFirstLook = 200;
/// How long one is waited for, in milliseconds.
constexpr int kPatience = 10000;
/// The longest that is waited for what other threads make, in milliseconds.
constexpr int kLongestWait = 5000;
constexpr int kStep = 50;

QWidget* openWindow()
{
    QWidget* popup = QApplication::activePopupWidget();
    return popup != nullptr ? popup : QApplication::activeModalWidget();
}

} // namespace

void settle()
{
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

void waitUntil(const std::function<bool()>& condition)
{
    QElapsedTimer timer;
    timer.start();
    while (!condition() && timer.elapsed() < kLongestWait) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, kStep);
    }
}

PictureFiles::PictureFiles(const QDir& folder, const QString& suffix)
    : m_folder(folder)
    , m_suffix(suffix)
{}

void PictureFiles::save(QWidget* widget, const QString& name)
{
    const QString file = m_folder.filePath(name + m_suffix + QStringLiteral(".png"));
    m_isComplete = widget->grab().save(file) && m_isComplete;
}

void PictureFiles::saveDialog(QWidget& window, const QString& name,
                              const std::function<void()>& open,
                              const std::function<void(QWidget*)>& prepare)
{
    bool isDrawn = false;
    QElapsedTimer time;
    time.start();
    // A prompt names the window that it lies over.
    QApplication::setActiveWindow(&window);
    QTimer look;
    look.setInterval(kFirstLook);
    QObject::connect(&look, &QTimer::timeout, &window, [&] {
        const QPointer<QWidget> dialog = openWindow();
        if (!dialog) {
            return;
        }
        look.stop();
        if (prepare) {
            prepare(dialog);
            settle();
        }
        save(dialog, name);
        isDrawn = true;
        dialog->close();
        // And what it was asked over.
        for (QWidget* below = openWindow(); below != nullptr && below->close();) {
            below = openWindow();
        }
    });
    look.start();
    open();
    while (!isDrawn && time.elapsed() < kPatience) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, kFirstLook);
    }
    m_isComplete = isDrawn && m_isComplete;
    settle();
}

} // namespace trel::pictures
