#include "plugin/PageControls.h"

#include "messages/PluginText.h"

#include <QSignalBlocker>

namespace TVR {

void PageControls::retranslate() const {
  if (scale) {
    scale->setAccessibleName(PluginText::tr("Scale of the map"));
    scale->setToolTip(PluginText::tr("Scale of the map"));
  }
  if (coordinates) {
    coordinates->setAccessibleName(PluginText::tr("Position of the mouse on the map"));
    coordinates->setToolTip(PluginText::tr("Position of the mouse on the map"));
  }
}

void PageControls::showScale(int value) const {
  if (!scale)
    return;
  const QSignalBlocker blocker(scale);
  scale->setValue(value);
}

void PageControls::showCoordinates(double x, double y) const {
  if (coordinates)
    coordinates->setText(
        QStringLiteral("%1 %2").arg(QString::number(x, 'f', 3), QString::number(y, 'f', 3)));
}

QSpinBox* makeScaleBox(int value) {
  auto* box = new QSpinBox;
  box->setObjectName("tvr_scale");
  box->setButtonSymbols(QAbstractSpinBox::NoButtons);
  box->setRange(1, 100000);
  box->setPrefix("1 : ");
  box->setValue(value);
  return box;
}

QLineEdit* makeCoordinateBox() {
  auto* box = new QLineEdit;
  box->setObjectName("tvr_coordinates");
  box->setReadOnly(true);
  box->setAlignment(Qt::AlignCenter);
  box->setText("0000000.000  0000000.000");
  box->adjustSize();
  const int width = box->fontMetrics().horizontalAdvance(box->text());
  box->setFixedSize(qMax(box->width(), width), box->height());
  box->clear();
  return box;
}

} // namespace TVR
