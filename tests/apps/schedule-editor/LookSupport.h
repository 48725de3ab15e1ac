#pragma once

#include <QImage>
#include <QRect>
#include <QWidget>

/// How far two colours are apart for a reader, from 1 to 21: (lighter + 0.05) / (darker + 0.05),
/// of the relative luminances.
double contrast(const QColor& first, const QColor& second);

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
