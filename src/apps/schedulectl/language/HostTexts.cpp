#include "HostTexts.h"

#include "EditorTexts.h"
#include "LanguageTexts.h"

#include <QSet>

#include <algorithm>

namespace trel::console {

const std::vector<LanguageText>& hostTexts()
{
    static const std::vector<LanguageText> texts =
        readLanguageTexts(QStringLiteral(":/language/host.ts")).texts;
    return texts;
}

QString hostTextName(const LanguageText& text)
{
    return text.group + QLatin1String(": ") + text.key;
}

bool isHostFile(const LanguageTexts& file)
{
    QSet<QString> groups;
    for (const LanguageText& text : hostTexts()) {
        groups.insert(text.group);
    }
    const auto isOfHost = [&groups](const LanguageText& text) {
        return groups.contains(text.group);
    };
    const auto isOfEditor = [](const LanguageText& text) { return text.group == kTextGroup; };
    return std::any_of(file.texts.begin(), file.texts.end(), isOfHost) &&
           std::none_of(file.texts.begin(), file.texts.end(), isOfEditor);
}

const std::vector<HostMenu>& hostMenus()
{
    const auto entry = [](const char* groupClass, const char* key) {
        return QStringLiteral("trel::desktop::%1: %2")
            .arg(QLatin1String(groupClass), QString::fromUtf8(key));
    };
    static const std::vector<HostMenu> menus = {
        {QStringLiteral("the menu bar"),
         {entry("EditorMenus", "&Schedule"), entry("EditorMenus", "&Programs"),
          entry("week::WeekMenu", "&Week"), entry("EditorMenus", "&View"),
          entry("EditorMenus", "&Language"), entry("HelpMenu", "&Help")}},
        {QStringLiteral("the menu \"Help\""),
         {entry("HelpMenu", "&Guide"), entry("HelpMenu", "&Keyboard shortcuts"),
          entry("HelpMenu", "&About this program")}},
        {QStringLiteral("the menu \"Schedule\""),
         {entry("EditorMenus", "&Edit schedule"), entry("undo::HistoryActions", "&Undo"),
          entry("undo::HistoryActions", "Re&do"),
          entry("EditorMenus", "&Bring back what was canceled"), entry("EditorMenus", "&Versions…"),
          entry("EditorMenus", "&New database…"), entry("EditorMenus", "&Open database…"),
          entry("EditorMenus", "Open &from a server…"), entry("EditorMenus", "O&pen recent"),
          entry("EditorMenus", "&Read schedule from a file…"),
          entry("EditorMenus", "&Write schedule to a file…"),
          entry("EditorMenus", "St&art the schedule…"),
          entry("EditorMenus", "S&kip to the next play"),
          entry("EditorMenus", "&Cancel what is cut in"),
          entry("EditorMenus", "S&top the schedule…"), entry("EditorMenus", "&Quit")}},
        {QStringLiteral("the menu \"Programs\""),
         {entry("EditorMenus", "&Import files…"), entry("EditorMenus", "Import &folder…"),
          entry("EditorMenus", "&Search"), entry("EditorMenus", "&Preview"),
          entry("EditorMenus", "&Where used…"), entry("EditorMenus", "&Remove from catalog")}},
        {QStringLiteral("the menu \"Week\""),
         {entry("week::WeekMenu", "&Today"), entry("week::WeekMenu", "&Previous week"),
          entry("week::WeekMenu", "&Next week"), entry("week::WeekMenu", "&Choose a day…")}},
        {QStringLiteral("the menu \"View\""),
         {entry("EditorWindow", "&Now and next"), entry("PreviewDock", "&Preview"),
          entry("PreviewDock", "&Full-screen preview"), entry("EditorWindow", "&Clock changes"),
          entry("ProblemDock", "Pro&blems"), entry("EditorWindow", "Catal&og"),
          entry("undo::HistoryDock", "&History"), entry("players::PlayersDock", "Pla&yers"),
          entry("EditorMenus", "&As-run of a day…"), entry("EditorMenus", "&Dark theme"),
          entry("EditorMenus", "&Light theme"), entry("EditorMenus", "Hi&gh contrast")}},
    };
    return menus;
}

} // namespace trel::console
