#pragma once

#include <QString>

class QWidget;

namespace trel::desktop::look {

/// What the editor says about its widgets, by their object names and by the properties "style",
/// "imageBtn" and "labelImage". A null widget has none of it.

enum class ButtonKind {
    Plain,     ///< A caption; also "style" = "assist".
    General,   ///< "style" = "general": what the operator most likely wants.
    Wide,      ///< The button above the cards, as wide as the window.
    Image,     ///< An image and no caption.
    CardTitle, ///< The bar of a card, which folds it.
    FieldText  ///< The text half of a program field.
};

ButtonKind buttonKind(const QWidget* button);

/// The drawing on a button without a caption, or on a label; empty for none.
QString imageOf(const QWidget* widget);

/// The table of a card.
bool isPlanTable(const QWidget* widget);
/// A list of the chooser, or its header.
bool isChooserList(const QWidget* widget);
bool isChooserHeader(const QWidget* widget);
/// The host's table of programs.
bool isCatalogue(const QWidget* widget);
/// The word of a plan's state.
bool isStateLabel(const QWidget* widget);
/// Of such a label: whether its plan collides.
bool isOfCollision(const QWidget& label);
/// The outer frame of a program field.
bool isProgramField(const QWidget* widget);
/// A frame that only holds the halves of a program field together.
bool isInsideProgramField(const QWidget* widget);
/// What the cards scroll in.
bool isWell(const QWidget* widget);
/// The widget that the cards lie on.
bool isCardList(const QWidget* widget);

/// The line in which a day box shows what is chosen in it.
bool isLineOfChoices(const QWidget* widget);

QString styleOf(const QWidget* widget);
bool isNamed(const QWidget* widget, const char* name);

} // namespace trel::desktop::look
