#pragma once

#include "page/painting/Inch.h"

#include <QFont>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <Qt>

class QPainter;
class QPainterPath;

namespace TVR::Page {

struct TextItem;

/// Texts are laid out at this resolution [dots per inch] whatever they are drawn on, so that their
/// widths and line breaks are alike everywhere. A point is ten dots.
constexpr int textResolution = 720;
/// Length of such a dot [mm].
constexpr double textDot = millimetresPerInch / textResolution;

/// The font with its size in dots of `textResolution`, without hinting. Sizes in pixels are taken
/// as 96 to the inch.
QFont pageFont(const QFont& font);

/// Width of the text and height of its line [mm].
QSizeF textSize(const QString& text, const QFont& font);

/// Writes one line of text in the painter's pen, on a page in [mm]. `place` is the point of the
/// text's box that `alignment` names: its left end, its centre for Qt::AlignCenter and so on. The
/// text is enlarged by `scale` and turned clockwise by `angle` [degrees] around that point.
void drawText(QPainter& painter, const QPointF& place, Qt::Alignment alignment, const QString& text,
              const QFont& font, double scale = 1, double angle = 0);

/// The outlines of the text, in [mm] around the centre of its box.
QPainterPath textOutline(const QString& text, const QFont& font);

/// Draws a text item with its frame and background, and its contents into the part `part` of its
/// box [mm]. A text that does not fit is made smaller until it does.
void paintTextItem(QPainter& painter, const TextItem& item, const QRectF& part);

/// The scale that paintTextItem makes the text fit its whole box with, 1 if it fits as it is.
double textItemScale(const TextItem& item);

} // namespace TVR::Page
