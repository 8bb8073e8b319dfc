#pragma once

#include <QAbstractTableModel>
#include <QString>
#include <QVariant>
#include <QVector>

namespace TVR {

/// What a table of parameters may know of the parameter store. Ids are those of Parameter::Id; an
/// id without a label or a value gives an empty text or an invalid variant.
class PropertySource {
public:
  virtual ~PropertySource() = default;

  /// Translated name of a parameter.
  virtual QString label(int id) const = 0;
  /// Effective value of a parameter.
  virtual QVariant value(int id) const = 0;
  /// Writes a value; all rules that depend on `id` run before the call returns. False for an
  /// invalid variant.
  virtual bool setValue(int id, const QVariant& value) = 0;
};

/// A table over a fixed list of parameters: name, value and unit, one row per parameter.
class PropertyModel : public QAbstractTableModel {
  Q_OBJECT

public:
  enum Column { Name, Value, Unit, ColumnCount };

  /// The rows stand in the order of `ids`. `source` must outlive the model. Values can be changed
  /// while `editable`.
  PropertyModel(const QVector<int>& ids, PropertySource& source, bool editable,
                QObject* parent = nullptr);

  int rowCount(const QModelIndex& parent = QModelIndex()) const override;
  int columnCount(const QModelIndex& parent = QModelIndex()) const override;
  /// Name and value in the display and the edit role; the unit column holds nothing. The display
  /// role shows the energy demand without decimals.
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation,
                      int role = Qt::DisplayRole) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  /// Writes to the source, in the value column while editable and with the edit role; else, and
  /// where the source refuses, returns false.
  bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

public slots:
  /// Tells the views that anything may have changed.
  void revert() override;

private:
  QVector<int> ids_;
  PropertySource& source_;
  bool editable_;
};

} // namespace TVR
