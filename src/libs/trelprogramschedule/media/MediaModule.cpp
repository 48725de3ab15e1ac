#include "media/MediaModule.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QMutexLocker>
#include <QPluginLoader>

#include <algorithm>
#include <utility>

#ifdef Q_OS_UNIX
#include <dlfcn.h>
#endif

namespace trel::mediadispatch {

namespace {

const QLatin1String kFile("/trelprogramschedulewidgets/trelmedia.so");

/// The folder of the library, or of the program, that holds this code; empty when nobody knows.
QString ownFolder()
{
#ifdef Q_OS_UNIX
    static const char here = 0;
    Dl_info info = {};
    if (dladdr(&here, &info) != 0 && info.dli_fname != nullptr) {
        const QString name = QFile::decodeName(info.dli_fname);
        // A program that the shell found goes by its bare name, which says nothing of its folder.
        return name.contains(QLatin1Char('/')) ? QFileInfo(name).canonicalPath() : QString();
    }
#endif
    return QString();
}

QStringList usualPlaces()
{
    QStringList places;
    if (const QString folder = ownFolder(); !folder.isEmpty()) {
        places.append(folder + kFile);
    }
    // For a program that holds the service itself, and so has no library beside the module.
    if (QCoreApplication::instance() != nullptr) {
        places.append(
            QDir::cleanPath(QCoreApplication::applicationDirPath() + QLatin1String("/../lib")) +
            kFile);
    }
    places.removeDuplicates();
    return places;
}

} // namespace

MediaModule::MediaModule(QStringList places)
    : m_places(std::move(places))
{}

MediaModule& MediaModule::instance()
{
    static MediaModule module(usualPlaces());
    return module;
}

QString MediaModule::file() const
{
    const auto found = std::find_if(m_places.begin(), m_places.end(),
                                    [](const QString& place) { return QFileInfo::exists(place); });
    return found == m_places.end() ? QString() : *found;
}

MediaModule::Opened MediaModule::failure(const QString& problem)
{
    if (!std::exchange(m_isFailureKnown, true)) {
        qWarning().noquote() << problem;
    }
    return {nullptr, problem};
}

MediaModule::Opened MediaModule::open()
{
    const QMutexLocker lock(&m_mutex);
    if (m_reader != nullptr) {
        return {m_reader, QString()};
    }
    const QString path = file();
    if (path.isEmpty()) {
        return failure(
            QStringLiteral("Media cannot be read, for a file of this program is missing: "
                           "%1")
                .arg(m_places.join(QLatin1String(", "))));
    }
    QPluginLoader loader(path);
    // The media libraries do not take being closed while one of their threads may still run.
    loader.setLoadHints(QLibrary::PreventUnloadHint);
    QObject* root = loader.instance();
    if (root == nullptr) {
        return failure(
            QStringLiteral("Media cannot be read, for a file of this program cannot be loaded: "
                           "%1: %2")
                .arg(path, loader.errorString()));
    }
    m_reader = qobject_cast<MediaReader*>(root);
    if (m_reader == nullptr) {
        return failure(QStringLiteral("Media cannot be read, for a file of this program is of "
                                      "another version: %1")
                           .arg(path));
    }
    return {m_reader, QString()};
}

} // namespace trel::mediadispatch
