#pragma once

#include <QString>
#include <QTextDocument>

namespace trel::widgets {

/// A text as a tool tip has to get it to show it to the letter. The toolkit takes a tool tip that
/// looks like markup for markup, and would draw its pictures and open the files that they lie in.
/// What does not look like it stays as it is.
inline QString plainToolTip(const QString& text)
{
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

} // namespace trel::widgets
