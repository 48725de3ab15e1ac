#include "memory/RecentDatabases.h"

#include "trelprogramschedule/store/StorePlace.h"

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QFontMetrics>
#include <QMenu>
#include <QSettings>

#include <algorithm>

using trel::mediadispatch::StorePlace;

namespace trel::desktop {

namespace {

const QLatin1String kRecent("databases/recent");
constexpr int kMost = 8;
/// What a path may take in the menu, in pixels.
constexpr int kWidest = 480;
/// No file system takes longer ones.
constexpr int kLongestPath = 4096;

bool isPlace(const QString& text)
{
    if (StorePlace::isAddress(text)) {
        // What was remembered is in its usual form, and never has a password.
        return text.size() <= kLongestPath && StorePlace(text).text() == text;
    }
    return text.size() <= kLongestPath && QDir::isAbsolutePath(text) &&
           std::all_of(text.begin(), text.end(),
                       [](QChar character) { return character.isPrint(); });
}

} // namespace

RecentDatabases::RecentDatabases(QSettings& settings, QMenu& menu, QObject* parent)
    : QObject(parent)
    , m_settings(settings)
    , m_menu(menu)
{
    connect(&m_menu, &QMenu::triggered, this,
            [this](const QAction* action) { emit chosen(action->data().toString()); });
    fill();
}

QStringList RecentDatabases::paths() const
{
    QStringList paths;
    const QStringList remembered = m_settings.value(kRecent).toStringList();
    for (const QString& path : remembered) {
        if (isPlace(path) && !paths.contains(path) && paths.size() < kMost) {
            paths.append(path);
        }
    }
    return paths;
}

QString RecentDatabases::last() const
{
    const QString path = paths().value(0);
    // A server is asked when it is opened.
    return StorePlace::isAddress(path) || QFileInfo(path).isFile() ? path : QString();
}

void RecentDatabases::add(const QString& path)
{
    QStringList now = paths();
    now.removeAll(path);
    now.prepend(path);
    m_settings.setValue(kRecent, QStringList(now.mid(0, kMost)));
    fill();
}

void RecentDatabases::fill()
{
    m_menu.clear();
    const QStringList now = paths();
    for (const QString& path : now) {
        // In a menu the sign would mark a letter.
        QString text = StorePlace::isAddress(path) ? path : QDir::toNativeSeparators(path);
        text.replace(QLatin1Char('&'), QLatin1String("&&"));
        QAction* const action =
            m_menu.addAction(m_menu.fontMetrics().elidedText(text, Qt::ElideMiddle, kWidest));
        action->setData(path);
    }
    m_menu.menuAction()->setEnabled(!now.isEmpty());
}

} // namespace trel::desktop
