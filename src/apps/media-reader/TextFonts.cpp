#include "TextFonts.h"

#include <QFont>
#include <QImage>
#include <QPainter>

void prepareTextFonts()
{
    // A few letters of each kind of writing, since each may stand in a file of its own.
    const QString letters = QStringLiteral("Aä Я Ω 新闻 ニュース 뉴스 العربية עברית ไทย हिन्दी ●");
    QImage paper(16, 16, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&paper);
    for (const char* family : {"sans-serif", "serif", "monospace"}) {
        for (const bool isBold : {false, true}) {
            QFont font(QString::fromLatin1(family));
            font.setBold(isBold);
            painter.setFont(font);
            painter.drawText(0, 8, letters);
        }
    }
}
