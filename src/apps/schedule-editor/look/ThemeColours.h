#pragma once

#include <QColor>
#include <QPalette>

namespace look {

/// The colours of one theme. Every text reaches a contrast of 4.5 to 1 on each ground that it is
/// painted on, in every state of its widget.
struct ThemeColours
{
    QColor window;
    QColor well; ///< What the cards lie in.
    QColor card;
    QColor cardLine;
    QColor title; ///< The bar of a card.
    QColor titleHover;
    QColor text;
    QColor faintText; ///< Hints.
    QColor disabledText;
    QColor errorText;

    QColor field;
    QColor fieldLine;
    QColor fieldLineHover;
    QColor disabledField;
    QColor disabledLine;

    QColor button;
    QColor buttonHover;
    QColor buttonPressed;
    QColor accent;
    QColor accentHover;
    QColor accentPressed;
    QColor accentText;
    QColor accentLine; ///< Focus, and the edge of what the accent only tints.
    QColor tint;       ///< The ground of what the accent only tints.
    QColor tintHover;

    QColor icon;
    QColor iconHover;
    QColor iconGround; ///< Under the image of a button that the pointer is on.
    QColor scrollThumb;
    QColor scrollThumbHover;

    QColor alternateRow;
    QColor hoveredRow;
    QColor selectedRow;
    QColor header;
    QColor line;     ///< Between rows, and around what floats.
    QColor floating; ///< Menus and open lists.

    /// Under the state of a plan. Its pure red and half green both stay legible only on a ground
    /// that is nearly black or nearly white.
    QColor state;
    QColor stateLine;

    /// The lists of the chooser. Their numbers, their marked rows and the words of their headers
    /// have colours of their own, light ones, so that these lists are dark under every theme.
    QColor list;
    QColor listHeader;
    QColor listLine;
    QColor listText;
};

ThemeColours darkColours();
ThemeColours lightColours();

/// What widgets without a look of their own are painted in.
QPalette windowPalette(const ThemeColours& colours);

/// The same for a list of the chooser and its header.
QPalette listPalette(const ThemeColours& colours);

} // namespace look
