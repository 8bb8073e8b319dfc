#pragma once

#include <QAccessibleWidget>
#include <QHash>

class QTableView;

namespace TVR::GUI {

/// A table as assistive technologies see it. Its cells are called what they show, in the unit that
/// they show it in, which a model may have for no role. What it is made of is numbered as the
/// library numbers it: row by row, with the headings before the first row and one before each row.
class SpokenTable final : public QAccessibleWidget, public QAccessibleTableInterface {
public:
  explicit SpokenTable(QTableView* view);
  ~SpokenTable() override;

  void* interface_cast(QAccessible::InterfaceType type) override;

  int childCount() const override;
  QAccessibleInterface* child(int index) const override;
  int indexOfChild(const QAccessibleInterface* child) const override;
  QAccessibleInterface* childAt(int x, int y) const override;

  QAccessibleInterface* caption() const override { return nullptr; }
  QAccessibleInterface* summary() const override { return nullptr; }
  QAccessibleInterface* cellAt(int row, int column) const override;
  int rowCount() const override;
  int columnCount() const override;
  QString columnDescription(int column) const override;
  QString rowDescription(int row) const override;
  int selectedCellCount() const override;
  QList<QAccessibleInterface*> selectedCells() const override;
  int selectedColumnCount() const override { return selectedColumns().size(); }
  int selectedRowCount() const override { return selectedRows().size(); }
  QList<int> selectedColumns() const override;
  QList<int> selectedRows() const override;
  bool isColumnSelected(int column) const override { return selectedColumns().contains(column); }
  bool isRowSelected(int row) const override { return selectedRows().contains(row); }
  // Cells are selected one by one.
  bool selectRow(int /*row*/) override { return false; }
  bool selectColumn(int /*column*/) override { return false; }
  bool unselectRow(int /*row*/) override { return false; }
  bool unselectColumn(int /*column*/) override { return false; }
  void modelChange(QAccessibleTableModelChangeEvent* event) override;

private:
  void forgetCells();

  QTableView& view_;
  mutable QHash<int, QAccessible::Id> cells_; ///< that were asked for
};

} // namespace TVR::GUI
