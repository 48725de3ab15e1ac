#pragma once

#include "LanguageText.h"

#include <QStringList>

#include <vector>

namespace trel::console {

/// Every text of the desktop host, as its code has them: in English, without a translation. The
/// list is drawn from the host's code when this program is built.
const std::vector<LanguageText>& hostTexts();

/// The name of a text in findings, such as "EditorWindow: Save". Two texts of one name differ in
/// their disambiguation alone, and mean the same.
QString hostTextName(const LanguageText& text);

/// Whether a language file is one of the host, and not of the editor.
bool isHostFile(const LanguageTexts& file);

/// Entries that stand in one menu, by name, and so need letters that differ.
struct HostMenu
{
    QString name; ///< Such as "the View menu".
    QStringList entries;
};
const std::vector<HostMenu>& hostMenus();

} // namespace trel::console
