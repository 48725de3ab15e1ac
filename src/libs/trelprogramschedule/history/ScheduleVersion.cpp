#include "trelprogramschedule/history/ScheduleVersion.h"

#include <algorithm>

namespace trel::mediadispatch {

namespace {

bool isHidden(uint character)
{
    switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return false;
    }
}

} // namespace

Fault faultOfVersionTexts(const QString& name, const QString& note)
{
    for (const QString* text : {&name, &note}) {
        const int most = text == &name ? kLongestVersionName : kLongestVersionNote;
        const QVector<uint> characters = text->toUcs4();
        if (characters.size() > most) {
            return faultOf(FaultCode::VersionTextTooLong, most);
        }
        if (!text->isValidUtf16() || std::any_of(characters.begin(), characters.end(), isHidden)) {
            return {FaultCode::VersionTextHidden, {}};
        }
    }
    return {};
}

} // namespace trel::mediadispatch
