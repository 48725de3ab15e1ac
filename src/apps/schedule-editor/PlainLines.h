#pragma once

#include <QString>
#include <QTextDocument>

namespace trel::desktop {

/// A text of several lines as a tool tip has to get it to show it to the letter. The toolkit judges
/// by the first line whether a text is markup, and others that look at the tool tip by all of it.
inline QString plainLines(const QString& text)
{
    return text.contains(QLatin1Char('<')) ? Qt::convertFromPlainText(text) : text;
}

} // namespace trel::desktop
