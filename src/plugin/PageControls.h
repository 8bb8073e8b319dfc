#pragma once

#include <QAction>
#include <QLineEdit>
#include <QPointer>
#include <QSpinBox>

class QObject;

namespace TVR {

/// The widgets and actions of the main window that follow the result page. Each may be null.
struct PageControls {
  QPointer<QSpinBox> scale;          ///< "tvr_scale": the scale of the map
  QPointer<QLineEdit> coordinates;   ///< "tvr_coordinates": place of the mouse on the map
  QPointer<QAction> exportShapefile; ///< "tvr_export_shapefile"
  QPointer<QAction> importResults;   ///< "tvr_import_results"

  static void setEnabled(QAction* action, bool enabled) {
    if (action)
      action->setEnabled(enabled);
  }
  static void setEnabled(QWidget* widget, bool enabled) {
    if (widget)
      widget->setEnabled(enabled);
  }
  /// Names the boxes in the language of the moment.
  void retranslate() const;
  /// Sets the scale box without a word to its listeners.
  void showScale(int value) const;
  /// A point of the map [m].
  void showCoordinates(double x, double y) const;
};

/// The box of the map's scale, 1 to 100000.
QSpinBox* makeScaleBox(int value);
/// The read-only box of the mouse's place, as wide as the largest coordinates need.
QLineEdit* makeCoordinateBox();

} // namespace TVR
