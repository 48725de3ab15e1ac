#include "HostTexts.h"

#include "EditorTexts.h"
#include "LanguageTexts.h"

#include <QSet>

#include <algorithm>

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
    static const std::vector<HostMenu> menus = {
        {QStringLiteral("the menu bar"),
         {QStringLiteral("EditorMenus: &Schedule"), QStringLiteral("EditorMenus: &Programs"),
          QStringLiteral("EditorMenus: &View"), QStringLiteral("EditorMenus: &Language")}},
        {QStringLiteral("the menu \"Schedule\""),
         {QStringLiteral("EditorMenus: &Edit schedule"),
          QStringLiteral("EditorMenus: &Open database…"),
          QStringLiteral("EditorMenus: &Read schedule from a file…"),
          QStringLiteral("EditorMenus: &Write schedule to a file…"),
          QStringLiteral("EditorMenus: &Quit")}},
        {QStringLiteral("the menu \"Programs\""),
         {QStringLiteral("EditorMenus: &Import files…"),
          QStringLiteral("EditorMenus: Import &folder…"),
          QStringLiteral("EditorMenus: &Remove from catalog")}},
        {QStringLiteral("the menu \"View\""),
         {QStringLiteral("EditorWindow: &Now and next"), QStringLiteral("PreviewDock: &Preview"),
          QStringLiteral("PreviewDock: &Full-screen preview"),
          QStringLiteral("EditorWindow: &Clock changes"), QStringLiteral("WeekDock: &Week"),
          QStringLiteral("EditorMenus: &Dark theme"), QStringLiteral("EditorMenus: &Light theme")}},
    };
    return menus;
}
