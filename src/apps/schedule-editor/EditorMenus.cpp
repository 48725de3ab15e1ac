#include "EditorMenus.h"

#include "Languages.h"
#include "look/Themes.h"

#include <QActionGroup>
#include <QHash>
#include <QMenu>
#include <QMenuBar>

namespace trel::desktop {

namespace {

QAction* add(QMenu& menu, const QKeySequence& keys)
{
    QAction* action = menu.addAction(QString());
    action->setShortcut(keys);
    return action;
}

void addChoice(QMenu& menu, QActionGroup& group, const QString& text, const QString& name)
{
    QAction* action = menu.addAction(text);
    action->setCheckable(true);
    action->setData(name);
    group.addAction(action);
}

/// The name of a language with the letter that chooses it, which is the same in all languages.
QString lettered(const QString& language)
{
    static const QHash<QString, QChar> letters = {
        {QStringLiteral("de_DE"), QLatin1Char('D')}, {QStringLiteral("en_US"), QLatin1Char('E')},
        {QStringLiteral("es_ES"), QLatin1Char('s')}, {QStringLiteral("fr_FR"), QLatin1Char('F')},
        {QStringLiteral("ja_JP"), QLatin1Char('J')}, {QStringLiteral("ko_KR"), QLatin1Char('K')},
        {QStringLiteral("pt_BR"), QLatin1Char('P')}, {QStringLiteral("ru_RU"), QLatin1Char('R')},
        {QStringLiteral("zh_CN"), QLatin1Char('C')}, {QStringLiteral("zh_TW"), QLatin1Char('T')},
    };
    QString name = Languages::nativeName(language);
    const QChar letter = letters.value(language);
    if (letter.isNull()) {
        return name;
    }
    const int place = name.indexOf(letter);
    return place < 0 ? QStringLiteral("%1 (&%2)").arg(name, letter)
                     : name.insert(place, QLatin1Char('&'));
}

void mark(const QActionGroup& group, const QString& name)
{
    const QList<QAction*> actions = group.actions();
    for (QAction* action : actions) {
        action->setChecked(action->data().toString() == name);
    }
}

} // namespace

EditorMenus::EditorMenus(QMenuBar& bar, Languages& languages, Themes& themes)
    : QObject(&bar)
    , m_schedule(bar.addMenu(QString()))
    , m_programs(bar.addMenu(QString()))
    , m_view(bar.addMenu(QString()))
    , m_language(bar.addMenu(QString()))
    , m_editSchedule(add(*m_schedule, QKeySequence(QStringLiteral("Ctrl+E"))))
    , m_undo(add(*m_schedule, QKeySequence(QStringLiteral("Ctrl+Z"))))
    , m_redo(add(*m_schedule, QKeySequence(QStringLiteral("Ctrl+Shift+Z"))))
    , m_bringBack(add(*m_schedule, {}))
    , m_versions(add(*m_schedule, {}))
    , m_themes(new QActionGroup(this))
{
    m_schedule->addSeparator();
    m_newDatabase = add(*m_schedule, QKeySequence::New);
    m_openDatabase = add(*m_schedule, QKeySequence::Open);
    m_openFromServer = add(*m_schedule, {});
    m_recentDatabases = m_schedule->addMenu(QString());
    // The entry, and not the menu, whose own entries would stay out of reach.
    m_recentDatabases->menuAction()->setEnabled(false);
    m_importSchedule = add(*m_schedule, {});
    m_exportSchedule = add(*m_schedule, {});
    m_schedule->addSeparator();
    // As in the editor. Both ask first.
    m_startSchedule = add(*m_schedule, QKeySequence(Qt::Key_F5));
    m_stopSchedule = add(*m_schedule, QKeySequence(QStringLiteral("Shift+F5")));
    // Without keys: a slip of the hand would be on screen at once.
    m_skipPlay = add(*m_schedule, {});
    m_cancelInsertion = add(*m_schedule, {});
    m_schedule->addSeparator();
    m_quit = add(*m_schedule, QKeySequence::Quit);

    m_importFiles = add(*m_programs, QKeySequence(QStringLiteral("Ctrl+I")));
    m_importFolder = add(*m_programs, QKeySequence(QStringLiteral("Ctrl+Shift+I")));
    m_programs->addSeparator();
    m_searchPrograms = add(*m_programs, QKeySequence::Find);
    m_previewProgram = add(*m_programs, QKeySequence(Qt::Key_F4));
    m_whereUsed = add(*m_programs, {});
    m_removePrograms = add(*m_programs, QKeySequence::Delete);

    m_belowPanels = m_view->addSeparator();
    m_asRun = add(*m_view, {});
    m_view->addSeparator();
    buildThemes(themes);
    buildLanguages(languages);
    retranslate();
}

void EditorMenus::buildThemes(Themes& themes)
{
    const QStringList names = Themes::names();
    for (const QString& name : names) {
        addChoice(*m_view, *m_themes, QString(), name);
    }
    const auto markCurrent = [this, &themes] { mark(*m_themes, themes.current()); };
    markCurrent();
    connect(&themes, &Themes::changed, this, markCurrent);
    connect(m_themes, &QActionGroup::triggered, this,
            [&themes](const QAction* action) { themes.select(action->data().toString()); });
}

void EditorMenus::buildLanguages(Languages& languages)
{
    auto* group = new QActionGroup(this);
    const QStringList names = languages.names();
    for (const QString& name : names) {
        addChoice(*m_language, *group, lettered(name), name);
    }
    const auto markCurrent = [group, &languages] { mark(*group, languages.current()); };
    markCurrent();
    connect(&languages, &Languages::changed, this, markCurrent);
    connect(group, &QActionGroup::triggered, this,
            [&languages](const QAction* action) { languages.select(action->data().toString()); });
}

QAction* EditorMenus::viewMenu() const
{
    return m_view->menuAction();
}

QString EditorMenus::programsTitle() const
{
    return m_programs->title().remove(QLatin1Char('&'));
}

void EditorMenus::addPanel(QAction* toggle)
{
    m_view->insertAction(m_belowPanels, toggle);
}

void EditorMenus::retranslate()
{
    m_schedule->setTitle(tr("&Schedule"));
    m_editSchedule->setText(tr("&Edit schedule"));
    m_bringBack->setText(tr("&Bring back what was canceled"));
    m_versions->setText(tr("&Versions…"));
    m_newDatabase->setText(tr("&New database…"));
    m_recentDatabases->setTitle(tr("O&pen recent"));
    m_openDatabase->setText(tr("&Open database…"));
    m_openFromServer->setText(tr("Open &from a server…"));
    m_importSchedule->setText(tr("&Read schedule from a file…"));
    m_exportSchedule->setText(tr("&Write schedule to a file…"));
    m_skipPlay->setText(tr("S&kip to the next play"));
    m_cancelInsertion->setText(tr("&Cancel what is cut in"));
    m_startSchedule->setText(tr("St&art the schedule…"));
    m_stopSchedule->setText(tr("S&top the schedule…"));
    m_quit->setText(tr("&Quit"));
    m_programs->setTitle(tr("&Programs"));
    m_importFiles->setText(tr("&Import files…"));
    m_importFolder->setText(tr("Import &folder…"));
    m_searchPrograms->setText(tr("&Search"));
    m_previewProgram->setText(tr("&Preview"));
    m_whereUsed->setText(tr("&Where used…"));
    m_removePrograms->setText(tr("&Remove from catalog"));
    m_view->setTitle(tr("&View"));
    m_asRun->setText(tr("&As-run of a day…"));
    m_themes->actions().at(0)->setText(tr("&Dark theme"));
    m_themes->actions().at(1)->setText(tr("&Light theme"));
    m_themes->actions().at(2)->setText(tr("Hi&gh contrast"));
    m_language->setTitle(tr("&Language"));
}

} // namespace trel::desktop
