#pragma once

class QColor;
class QFont;
class QPainter;
class QSizeF;
class QString;

namespace TVR::Page {

struct LabelPlace;
struct PlaceBeside;
struct PlotItem;

/// The font of the labels in a plot.
QFont labelFont(const PlotItem& plot);

/// The room that a label takes [mm].
QSizeF labelRoom(const QString& text, const QFont& font);

/// Writes a label with a white rim around its letters, so that it is legible on lines and colours.
void writeLabel(QPainter& painter, const LabelPlace& place, const QString& text, const QFont& font,
                const QColor& colour);

/// Writes a label beside the point that it belongs to, with a thin line to it if it stands off.
void writeLabelBeside(QPainter& painter, const PlaceBeside& place, const QString& text,
                      const QFont& font, const QColor& colour);

} // namespace TVR::Page
