#include "LanguageFont.h"

#include <QLocale>
#include <QStringList>

namespace trel::desktop {

namespace {

/// The faces that are made for a language.
QStringList ownFamilies(const QString& language)
{
    const QLocale locale(language);
    switch (locale.language()) {
    case QLocale::Chinese:
        if (locale.script() == QLocale::TraditionalHanScript) {
            return {QStringLiteral("Microsoft JhengHei"), QStringLiteral("Noto Sans CJK TC")};
        }
        return {};
    case QLocale::Japanese:
        return {QStringLiteral("Yu Gothic UI"), QStringLiteral("Noto Sans CJK JP")};
    case QLocale::Korean:
        return {QStringLiteral("Malgun Gothic"), QStringLiteral("Noto Sans CJK KR")};
    default:
        // The Korean face has the letters of the Chinese one, and marks as wide as alphabets want.
        return {QStringLiteral("Microsoft YaHei"), QStringLiteral("Noto Sans CJK KR")};
    }
}

} // namespace

QFont languageFont(QFont font, const QString& language)
{
    QStringList families = ownFamilies(language);
    families << QStringLiteral("Microsoft YaHei") << QStringLiteral("Noto Sans CJK SC")
             << QStringLiteral("Noto Sans") << QStringLiteral("DejaVu Sans");
    families.removeDuplicates();
    font.setFamilies(families);
    return font;
}

} // namespace trel::desktop
