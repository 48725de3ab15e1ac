#include "MediaName.h"

#include <QRegularExpression>

namespace trel::mediadispatch {

namespace {

/// With the longest suffix and mark that there are, far from what a name may have.
constexpr int kLongestName = 140;

bool isPlain(QChar character)
{
    static const QString forbidden = QStringLiteral("/\\:*?\"<>|");
    switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_PrivateUse:
    case QChar::Other_NotAssigned:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return false;
    default:
        return !forbidden.contains(character) && character != QChar::ReplacementCharacter;
    }
}

QString cut(QString name)
{
    while (name.toUtf8().size() > kLongestName) {
        // Not in the middle of a character.
        name.chop(name.size() > 1 && name.at(name.size() - 1).isLowSurrogate() ? 2 : 1);
    }
    return name;
}

QString suffixOf(const std::string& path)
{
    static const QRegularExpression form(QStringLiteral("\\.([A-Za-z0-9]{1,8})$"));
    const QRegularExpressionMatch match = form.match(QString::fromStdString(path).right(16));
    return match.hasMatch() ? QLatin1Char('.') + match.captured(1).toLower() : QString();
}

} // namespace

QString mediaFileName(const std::string& name, const std::string& path, const QString& mark)
{
    QString plain = QString::fromStdString(name).left(kLongestName);
    for (QChar& character : plain) {
        if (!isPlain(character)) {
            character = QLatin1Char('_');
        }
    }
    plain = cut(plain).trimmed();
    while (plain.startsWith(QLatin1Char('.'))) {
        plain.remove(0, 1);
    }
    // What is cut off in the middle of a pair of halves is no character.
    if (!plain.isEmpty() && plain.at(plain.size() - 1).isHighSurrogate()) {
        plain.chop(1);
    }
    if (plain.trimmed().isEmpty()) {
        plain = QStringLiteral("media");
    }
    return plain + mark + suffixOf(path);
}

} // namespace trel::mediadispatch
