#pragma once

#include <QLatin1String>
#include <QStringList>

#include <vector>

namespace trel::console {

/// A text that the editor looks up in its language files.
struct EditorText
{
    const char* key;
    int room = 0; ///< What its cell leaves for it, in pixels; 0 where the window gives way to it.
    const char* before = ""; ///< What stands in the cell around it, at its longest.
    const char* after = "";
};

/// Every text of the editor, in the order of its own language files.
const std::vector<EditorText>& editorTexts();

/// The Linguist context and disambiguation that the editor asks for.
inline const QLatin1String kTextGroup("SheduleWidgets");
inline const QLatin1String kTextContext("Widget");

/// Whether the editor finds a text that stands there. A text without a disambiguation stands for
/// every one; the compiler of language files leaves it away where it decides nothing.
bool isFoundByEditor(const QString& group, const QString& context);

/// Texts that the editor tells apart by comparing them, and that have to differ within their set.
struct ComparedTexts
{
    QString name; ///< Such as "the days".
    QStringList keys;
};
const std::vector<ComparedTexts>& comparedTexts();

/// The texts that stand in lists joined by commas: the days, and the marks behind programs.
const QStringList& listedTexts();

} // namespace trel::console
