#pragma once

#include <QColor>
#include <QPalette>

namespace trel::desktop::look {

/// The colours of one theme. Every text reaches a contrast of 4.5 to 1 on each ground that it is
/// painted on, in every state of its widget; edges of fields and buttons, thumbs and signs one of 3
/// to 1 on what is around them.
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
    QColor linkText;

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
    QColor accentLine; ///< The edge of what the accent only tints.
    QColor tint;       ///< The ground of what the accent only tints.
    QColor tintHover;
    /// Around what has the focus. Reaches a contrast of 3 to 1 on all that it takes the place of.
    QColor focus;

    QColor icon;
    QColor iconHover;
    QColor iconDisabled;
    QColor iconGround; ///< Under the image of a button that the pointer is on.
    QColor scrollThumb;
    QColor scrollThumbHover;

    QColor alternateRow;
    QColor hoveredRow;
    QColor selectedRow;
    QColor header;
    QColor line;     ///< Between rows, and around what floats.
    QColor floating; ///< Menus and open lists.

    /// Under the state of a plan, and its words. The card gives these a pure red and a half green,
    /// one of which is hard to read on any ground.
    QColor state;
    QColor stateLine;
    QColor stateFree;
    QColor stateCollision;

    /// The lists of the chooser. Their numbers, their marked rows and the words of their headers
    /// have colours of their own, light ones, so that these lists are dark under every theme.
    QColor list;
    QColor listHeader;
    QColor listLine;
    QColor listText;

    /// The picture of a week. What stands as a pattern on a ground differs from it little enough
    /// for a text to be read on both.
    QColor weekGround;
    QColor weekLine; ///< Between days and hours.
    QColor weekToday;
    QColor weekBlock; ///< A plan that has the screen.
    QColor weekBlockLine;
    QColor weekBlockText;
    QColor weekHidden; ///< A plan that another one keeps from the screen.
    QColor weekHiddenPattern;
    QColor weekHiddenText;
    QColor weekCollision;
    QColor weekBlack; ///< The screen is black, or keeps a last frame, between plans.
    QColor weekBlackText;
    QColor weekFrozen;
    QColor weekFrozenPattern;
    QColor weekFrozenText;
    QColor weekInserted;
    QColor weekInsertedText;
    QColor weekClock; ///< What a change of the clocks leaves out or doubles.
    QColor weekClockPattern;
    QColor weekClockText;
    QColor weekNow;
    QColor weekNowText;
};

ThemeColours darkColours();
ThemeColours lightColours();
/// For those who see little: light on black, with edges as light as the texts.
ThemeColours contrastColours();

/// What widgets without a look of their own are painted in.
QPalette windowPalette(const ThemeColours& colours);

/// The same for a list of the chooser and its header.
QPalette listPalette(const ThemeColours& colours);

} // namespace trel::desktop::look
