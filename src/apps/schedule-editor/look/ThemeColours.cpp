#include "ThemeColours.h"

namespace trel::desktop::look {

namespace {

void setLists(ThemeColours& colours)
{
    colours.list = QColor(0x13, 0x15, 0x19);
    colours.listHeader = QColor(0x1e, 0x22, 0x29);
    colours.listLine = QColor(0x2a, 0x2f, 0x39);
    colours.listText = QColor(0xe7, 0xea, 0xef);
}

void setDarkWeek(ThemeColours& colours)
{
    colours.weekGround = QColor(0x1f, 0x23, 0x2a);
    colours.weekLine = QColor(0x32, 0x38, 0x43);
    colours.weekToday = QColor(0x25, 0x36, 0x55);
    colours.weekBlock = QColor(0x26, 0x4a, 0x7d);
    colours.weekBlockLine = QColor(0x5b, 0x9b, 0xf8);
    colours.weekBlockText = QColor(0xf2, 0xf6, 0xff);
    colours.weekHidden = QColor(0x2a, 0x2f, 0x39);
    colours.weekHiddenPattern = QColor(0x3d, 0x44, 0x51);
    colours.weekHiddenText = QColor(0xe0, 0xe4, 0xec);
    colours.weekCollision = QColor(0xff, 0x8a, 0x3d);
    colours.weekBlack = QColor(0x09, 0x0a, 0x0c);
    colours.weekBlackText = QColor(0xa2, 0xa9, 0xb6);
    colours.weekFrozen = QColor(0x12, 0x33, 0x36);
    colours.weekFrozenPattern = QColor(0x1b, 0x44, 0x47);
    colours.weekFrozenText = QColor(0xb5, 0xe3, 0xe2);
    colours.weekInserted = QColor(0x5a, 0x35, 0x83);
    colours.weekInsertedText = QColor(0xf7, 0xf0, 0xff);
    colours.weekClock = QColor(0x3a, 0x32, 0x1c);
    colours.weekClockPattern = QColor(0x54, 0x47, 0x24);
    colours.weekClockText = QColor(0xff, 0xe2, 0x9a);
    colours.weekNow = QColor(0xff, 0x5c, 0x5c);
    colours.weekNowText = QColor(0x1a, 0x05, 0x05);
}

void setLightWeek(ThemeColours& colours)
{
    colours.weekGround = Qt::white;
    colours.weekLine = QColor(0xd8, 0xdc, 0xe4);
    colours.weekToday = QColor(0xd7, 0xe5, 0xfc);
    colours.weekBlock = QColor(0xcf, 0xe0, 0xfb);
    colours.weekBlockLine = QColor(0x24, 0x63, 0xcb);
    colours.weekBlockText = QColor(0x0f, 0x26, 0x4d);
    colours.weekHidden = QColor(0xf2, 0xf3, 0xf6);
    colours.weekHiddenPattern = QColor(0xd9, 0xdd, 0xe5);
    colours.weekHiddenText = QColor(0x3f, 0x47, 0x55);
    colours.weekCollision = QColor(0xd0, 0x4a, 0x02);
    colours.weekBlack = QColor(0x3a, 0x3f, 0x49);
    colours.weekBlackText = QColor(0xe7, 0xea, 0xef);
    colours.weekFrozen = QColor(0xda, 0xf1, 0xf0);
    colours.weekFrozenPattern = QColor(0xc3, 0xe5, 0xe3);
    colours.weekFrozenText = QColor(0x0d, 0x4a, 0x4b);
    colours.weekInserted = QColor(0xe8, 0xd9, 0xf8);
    colours.weekInsertedText = QColor(0x3d, 0x14, 0x66);
    colours.weekClock = QColor(0xff, 0xf4, 0xd6);
    colours.weekClockPattern = QColor(0xf5, 0xe2, 0xa8);
    colours.weekClockText = QColor(0x5c, 0x42, 0x00);
    colours.weekNow = QColor(0xc6, 0x22, 0x22);
    colours.weekNowText = Qt::white;
}

void setContrastWeek(ThemeColours& colours)
{
    colours.weekGround = Qt::black;
    colours.weekLine = QColor(0x8a, 0x8a, 0x8a);
    colours.weekToday = QColor(0x0a, 0x4f, 0xb0);
    colours.weekBlock = QColor(0x00, 0x3a, 0x7a);
    colours.weekBlockLine = Qt::white;
    colours.weekBlockText = Qt::white;
    colours.weekHidden = QColor(0x1a, 0x1a, 0x1a);
    colours.weekHiddenPattern = QColor(0x4a, 0x4a, 0x4a);
    colours.weekHiddenText = Qt::white;
    colours.weekCollision = QColor(0xff, 0xb0, 0x00);
    colours.weekBlack = Qt::black;
    colours.weekBlackText = Qt::white;
    colours.weekFrozen = QColor(0x00, 0x3b, 0x3b);
    colours.weekFrozenPattern = QColor(0x00, 0x5a, 0x5a);
    colours.weekFrozenText = QColor(0xd8, 0xff, 0xff);
    colours.weekInserted = QColor(0x5a, 0x2a, 0x96);
    colours.weekInsertedText = Qt::white;
    colours.weekClock = QColor(0x4a, 0x3a, 0x00);
    colours.weekClockPattern = QColor(0x6a, 0x54, 0x00);
    colours.weekClockText = QColor(0xff, 0xf0, 0xb0);
    colours.weekNow = QColor(0xff, 0x60, 0x60);
    colours.weekNowText = Qt::black;
}

void setDisabledTexts(QPalette& palette, const QColor& colour)
{
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText}) {
        palette.setColor(QPalette::Disabled, role, colour);
    }
}

} // namespace

ThemeColours darkColours()
{
    ThemeColours colours;
    colours.window = QColor(0x1b, 0x1e, 0x24);
    colours.well = QColor(0x14, 0x16, 0x1a);
    colours.card = QColor(0x1f, 0x23, 0x2a);
    colours.cardLine = QColor(0x32, 0x38, 0x43);
    colours.title = QColor(0x28, 0x2d, 0x36);
    colours.titleHover = QColor(0x30, 0x36, 0x42);
    colours.text = QColor(0xe7, 0xea, 0xef);
    colours.faintText = QColor(0xa2, 0xa9, 0xb6);
    colours.disabledText = QColor(0x98, 0xa0, 0xae);
    colours.errorText = QColor(0xff, 0x92, 0x8c);
    colours.linkText = QColor(0x5b, 0x9b, 0xf8);

    colours.field = QColor(0x14, 0x16, 0x1b);
    colours.fieldLine = QColor(0x6b, 0x72, 0x80);
    colours.fieldLineHover = QColor(0x8e, 0x97, 0xa8);
    colours.disabledField = QColor(0x1f, 0x23, 0x2a);
    colours.disabledLine = QColor(0x2f, 0x35, 0x40);

    colours.button = QColor(0x2b, 0x30, 0x3a);
    colours.buttonHover = QColor(0x36, 0x3d, 0x49);
    colours.buttonPressed = QColor(0x22, 0x26, 0x2e);
    colours.accent = QColor(0x2f, 0x6f, 0xd6);
    colours.accentHover = QColor(0x29, 0x64, 0xc6);
    colours.accentPressed = QColor(0x22, 0x56, 0xae);
    colours.accentText = Qt::white;
    colours.accentLine = QColor(0x5b, 0x9b, 0xf8);
    colours.tint = QColor(0x1d, 0x2a, 0x40);
    colours.tintHover = QColor(0x24, 0x36, 0x55);
    colours.focus = QColor(0x8a, 0xb8, 0xff);

    colours.icon = QColor(0xc3, 0xc9, 0xd3);
    colours.iconHover = Qt::white;
    colours.iconDisabled = colours.fieldLine;
    colours.iconGround = QColor(0x3a, 0x41, 0x4e);
    colours.scrollThumb = QColor(0x6b, 0x74, 0x84);
    colours.scrollThumbHover = QColor(0x8e, 0x97, 0xa8);

    colours.alternateRow = QColor(0x18, 0x1b, 0x20);
    colours.hoveredRow = QColor(0x24, 0x28, 0x30);
    colours.selectedRow = QColor(0x25, 0x36, 0x55);
    colours.header = QColor(0x25, 0x29, 0x31);
    colours.line = QColor(0x2c, 0x31, 0x3b);
    colours.floating = QColor(0x24, 0x28, 0x30);

    colours.state = QColor(0x05, 0x05, 0x06);
    colours.stateLine = QColor(0x2c, 0x31, 0x3b);
    colours.stateFree = QColor(0x4f, 0xc7, 0x6c);
    colours.stateCollision = QColor(0xff, 0x6b, 0x63);
    setLists(colours);
    setDarkWeek(colours);
    return colours;
}

ThemeColours lightColours()
{
    ThemeColours colours;
    colours.window = QColor(0xf4, 0xf5, 0xf8);
    colours.well = QColor(0xe8, 0xea, 0xef);
    colours.card = Qt::white;
    colours.cardLine = QColor(0xcf, 0xd4, 0xdd);
    colours.title = QColor(0xf0, 0xf2, 0xf6);
    colours.titleHover = QColor(0xe5, 0xe9, 0xf0);
    colours.text = QColor(0x1b, 0x1f, 0x27);
    colours.faintText = QColor(0x57, 0x5f, 0x6d);
    colours.disabledText = QColor(0x5d, 0x65, 0x73);
    colours.errorText = QColor(0xb3, 0x26, 0x1e);
    colours.linkText = QColor(0x24, 0x63, 0xcb);

    colours.field = Qt::white;
    colours.fieldLine = QColor(0x7d, 0x85, 0x94);
    colours.fieldLineHover = QColor(0x5f, 0x68, 0x78);
    colours.disabledField = QColor(0xf0, 0xf1, 0xf4);
    colours.disabledLine = QColor(0xdc, 0xdf, 0xe6);

    colours.button = Qt::white;
    colours.buttonHover = QColor(0xee, 0xf1, 0xf6);
    colours.buttonPressed = QColor(0xe1, 0xe5, 0xec);
    colours.accent = QColor(0x24, 0x63, 0xcb);
    colours.accentHover = QColor(0x1f, 0x57, 0xb4);
    colours.accentPressed = QColor(0x1a, 0x4a, 0x9a);
    colours.accentText = Qt::white;
    colours.accentLine = QColor(0x2f, 0x74, 0xe4);
    colours.tint = QColor(0xe9, 0xf0, 0xfd);
    colours.tintHover = QColor(0xd9, 0xe6, 0xfb);
    colours.focus = QColor(0x1f, 0x5f, 0xd0);

    colours.icon = QColor(0x48, 0x50, 0x5e);
    colours.iconHover = QColor(0x10, 0x14, 0x1a);
    colours.iconDisabled = colours.fieldLine;
    colours.iconGround = QColor(0xd9, 0xde, 0xe8);
    colours.scrollThumb = QColor(0x7d, 0x85, 0x94);
    colours.scrollThumbHover = QColor(0x5f, 0x68, 0x78);

    colours.alternateRow = QColor(0xf7, 0xf8, 0xfa);
    colours.hoveredRow = QColor(0xed, 0xf1, 0xf8);
    colours.selectedRow = QColor(0xd7, 0xe5, 0xfc);
    colours.header = QColor(0xec, 0xee, 0xf2);
    colours.line = QColor(0xd8, 0xdc, 0xe4);
    colours.floating = Qt::white;

    colours.state = Qt::white;
    colours.stateLine = QColor(0xd8, 0xdc, 0xe4);
    colours.stateFree = QColor(0x15, 0x73, 0x31);
    colours.stateCollision = QColor(0xc4, 0x1c, 0x1c);
    setLists(colours);
    setLightWeek(colours);
    return colours;
}

ThemeColours contrastColours()
{
    ThemeColours colours;
    const QColor raised(0x1a, 0x1a, 0x1a);
    const QColor hovered(0x2e, 0x2e, 0x2e);
    const QColor cyan(0x1a, 0xeb, 0xff);
    // Around lists, where the focus stands in its place: far from black, and from yellow.
    const QColor edge(0x7c, 0x7c, 0x7c);
    colours.window = Qt::black;
    colours.well = Qt::black;
    colours.card = Qt::black;
    colours.cardLine = edge;
    colours.title = raised;
    colours.titleHover = hovered;
    colours.text = Qt::white;
    colours.faintText = QColor(0xe0, 0xe0, 0xe0);
    colours.disabledText = QColor(0xc8, 0xc8, 0xc8);
    colours.errorText = QColor(0xff, 0xa8, 0xa2);
    colours.linkText = cyan;

    colours.field = Qt::black;
    colours.fieldLine = Qt::white;
    colours.fieldLineHover = cyan;
    colours.disabledField = raised;
    colours.disabledLine = QColor(0x8c, 0x8c, 0x8c);

    colours.button = Qt::black;
    colours.buttonHover = hovered;
    colours.buttonPressed = QColor(0x40, 0x40, 0x40);
    colours.accent = cyan;
    colours.accentHover = QColor(0x70, 0xf3, 0xff);
    colours.accentPressed = QColor(0x00, 0xc8, 0xdc);
    colours.accentText = Qt::black;
    colours.accentLine = cyan;
    colours.tint = QColor(0x00, 0x22, 0x2a);
    colours.tintHover = QColor(0x00, 0x38, 0x44);
    colours.focus = QColor(0xff, 0xe1, 0x00);

    colours.icon = Qt::white;
    colours.iconHover = Qt::black;
    colours.iconDisabled = colours.disabledLine;
    colours.iconGround = Qt::white;
    colours.scrollThumb = QColor(0xc8, 0xc8, 0xc8);
    colours.scrollThumbHover = Qt::white;

    colours.alternateRow = QColor(0x0d, 0x0d, 0x0d);
    colours.hoveredRow = hovered;
    colours.selectedRow = QColor(0x0a, 0x4f, 0xb0);
    colours.header = raised;
    colours.line = edge;
    colours.floating = Qt::black;

    colours.state = Qt::black;
    colours.stateLine = Qt::white;
    colours.stateFree = QColor(0x6b, 0xff, 0x8b);
    colours.stateCollision = QColor(0xff, 0x8f, 0x88);
    setLists(colours);
    colours.list = Qt::black;
    colours.listLine = colours.line;
    colours.listText = Qt::white;
    setContrastWeek(colours);
    return colours;
}

QPalette windowPalette(const ThemeColours& colours)
{
    QPalette palette;
    palette.setColor(QPalette::Window, colours.window);
    palette.setColor(QPalette::WindowText, colours.text);
    palette.setColor(QPalette::Base, colours.field);
    palette.setColor(QPalette::AlternateBase, colours.alternateRow);
    palette.setColor(QPalette::ToolTipBase, colours.floating);
    palette.setColor(QPalette::ToolTipText, colours.text);
    palette.setColor(QPalette::Text, colours.text);
    palette.setColor(QPalette::PlaceholderText, colours.faintText);
    palette.setColor(QPalette::Button, colours.button);
    palette.setColor(QPalette::ButtonText, colours.text);
    palette.setColor(QPalette::BrightText, colours.accentText);
    palette.setColor(QPalette::Link, colours.linkText);
    palette.setColor(QPalette::LinkVisited, colours.linkText);
    palette.setColor(QPalette::Highlight, colours.accent);
    palette.setColor(QPalette::HighlightedText, colours.accentText);
    palette.setColor(QPalette::Light, colours.buttonHover);
    palette.setColor(QPalette::Midlight, colours.buttonHover);
    palette.setColor(QPalette::Mid, colours.line);
    palette.setColor(QPalette::Dark, colours.fieldLine);
    setDisabledTexts(palette, colours.disabledText);
    palette.setColor(QPalette::Disabled, QPalette::Base, colours.disabledField);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, colours.selectedRow);
    return palette;
}

QPalette listPalette(const ThemeColours& colours)
{
    QPalette palette = windowPalette(colours);
    palette.setColor(QPalette::Base, colours.list);
    palette.setColor(QPalette::AlternateBase, colours.list);
    palette.setColor(QPalette::Window, colours.list);
    palette.setColor(QPalette::Button, colours.listHeader);
    palette.setColor(QPalette::Mid, colours.listLine);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::Link,
          QPalette::LinkVisited}) {
        palette.setColor(role, colours.listText);
    }
    return palette;
}

} // namespace trel::desktop::look
