#pragma once

#include <QItemDelegate>
#include <QString>

#include <functional>
#include <optional>

namespace TVR {

/// How the cells of a column are shown and edited in a unit that is not the model's.
struct CellQuantity {
  int role = Qt::EditRole; ///< of the value that is shown
  std::function<double(double value)> shown = [](double value) { return value; };
  std::function<double(double shown)> stored = [](double value) { return value; };
  QString unit;
  char format = 'f'; ///< of QString::number, as `decimals`
  int decimals = 0;
  std::optional<int> editorDecimals; ///< without one those of the editor stay, as do its limits
  std::optional<double> minimum;     ///< in the unit shown, as `maximum`
  std::optional<double> maximum;
  /// Belongs to what the column before it injects: a withdrawal has none, and shows none.
  bool ofInjection = false;
};

/// The rate of wells in l/min, whatever the model's roles hold.
CellQuantity rateQuantity();
/// The temperature change of what is injected, in K.
CellQuantity temperatureChangeQuantity();

/// Shows and edits the columns of a table that have a quantity in their units. All others are left
/// to the base class.
class QuantityDelegate : public QItemDelegate {
  Q_OBJECT

public:
  using QItemDelegate::QItemDelegate;

  /// The quantity of a column; none for one that the base class shows.
  virtual std::optional<CellQuantity> quantity(int column) const = 0;
  /// What a cell shows.
  QString shownText(const QModelIndex& index) const;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  void setEditorData(QWidget* editor, const QModelIndex& index) const override;
  void setModelData(QWidget* editor, QAbstractItemModel* model,
                    const QModelIndex& index) const override;
};

} // namespace TVR
