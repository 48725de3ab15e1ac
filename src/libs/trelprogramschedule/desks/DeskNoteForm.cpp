#include "DeskNoteForm.h"

#include <algorithm>

namespace trel::mediadispatch {

namespace {

bool isShown(QChar character)
{
    const QChar::Category category = character.category();
    return category != QChar::Other_Control && category != QChar::Other_Format &&
           category != QChar::Separator_Line && category != QChar::Separator_Paragraph;
}

} // namespace

bool isDeskName(const QString& text)
{
    return !text.isEmpty() && text.size() <= kLongestDesk &&
           std::all_of(text.begin(), text.end(), isShown);
}

} // namespace trel::mediadispatch
