#include "Theme.h"

#include <QApplication>
#include <QFile>
#include <QFont>
#include <QPalette>
#include <QStyleFactory>
#include <QWidget>

namespace theme {

namespace {

QPalette darkPalette()
{
    const QColor ground(0x1d, 0x20, 0x26);
    const QColor field(0x15, 0x17, 0x1c);
    const QColor raised(0x2a, 0x2e, 0x37);
    const QColor text(0xe6, 0xe8, 0xec);
    const QColor faint(0x8a, 0x91, 0x9e);
    const QColor accent(0x2f, 0x6f, 0xd6);

    QPalette palette;
    palette.setColor(QPalette::Window, ground);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Base, field);
    palette.setColor(QPalette::AlternateBase, QColor(0x1a, 0x1d, 0x23));
    palette.setColor(QPalette::ToolTipBase, raised);
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::PlaceholderText, faint);
    palette.setColor(QPalette::Button, raised);
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::BrightText, Qt::white);
    palette.setColor(QPalette::Link, QColor(0x6a, 0xa8, 0xff));
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText}) {
        palette.setColor(QPalette::Disabled, role, faint);
    }
    return palette;
}

} // namespace

void applyColours(QApplication& application)
{
    application.setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(darkPalette());
    // The columns of the editor's tables are fixed in pixels, and so is the size of the text.
    QFont font;
    font.setFamilies({QStringLiteral("Microsoft YaHei"), QStringLiteral("Noto Sans CJK SC"),
                      QStringLiteral("Noto Sans"), QStringLiteral("DejaVu Sans")});
    font.setPixelSize(12);
    QApplication::setFont(font);
}

void applySheet(QWidget& window)
{
    QFile sheet(QStringLiteral(":/qss/qss/dark.qss"));
    if (sheet.open(QIODevice::ReadOnly)) {
        window.setStyleSheet(QString::fromUtf8(sheet.readAll()));
    }
}

} // namespace theme
