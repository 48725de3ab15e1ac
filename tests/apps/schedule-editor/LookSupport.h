#pragma once

#include <QImage>
#include <QRect>
#include <QWidget>

/// How far two colours are apart for a reader, from 1 to 21: (lighter + 0.05) / (darker + 0.05),
/// of the relative luminances.
double contrast(const QColor& first, const QColor& second);

/// The least that every text has to reach against its ground.
constexpr double kLeastContrast = 4.5;

/// What is seen in a part of a picture: the colour that fills most of it, and the one that stands
/// out from it most, which is that of the strokes when the part holds text.
struct Seen
{
    QColor ground;
    QColor text;
    double contrast = 1.0;
};

Seen lookAt(const QImage& picture, const QRect& part);

/// The share of a colour among the pixels of a picture, from 0 to 1.
double shareOf(const QImage& picture, const QColor& colour);

/// A picture of the widget as it stands in its window, other widgets above it included.
QImage pictureOf(QWidget* widget);

/// A line that says where a text stands out too little, or nothing.
QString faultOf(const QImage& picture, const QRect& part, const QString& what,
                double least = kLeastContrast);

/// The same for the text of a control in each of its states: at rest, with the pointer on it,
/// pressed where it can be, and disabled.
QString faultsOf(QWidget* widget, double least = kLeastContrast);

/// A data row for each theme, in the column "theme".
void addThemes();
