#pragma once

#include <QFontMetrics>
#include <QString>

/// A text that is cut at another letter when it gets the other width instead of the first one, so
/// that a test can tell the two apart; empty when the font has none.
inline QString tellingText(const QFontMetrics& metrics, int width, int otherWidth)
{
    for (int narrow = 0; narrow < 40; ++narrow) {
        for (int wide = 0; wide < 10; ++wide) {
            const QString text = QString(narrow, QLatin1Char('i')) +
                                 QString(wide, QLatin1Char('W')) + QString(40, QLatin1Char('t'));
            if (metrics.elidedText(text, Qt::ElideRight, width) !=
                metrics.elidedText(text, Qt::ElideRight, otherWidth)) {
                return text;
            }
        }
    }
    return {};
}
