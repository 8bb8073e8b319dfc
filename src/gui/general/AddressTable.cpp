#include "gui/general/AddressTable.h"

#include "store/Manager.h"
#include "tables/PropertyModel.h"

#include <QHeaderView>
#include <QTableView>

namespace TVR::GUI {

void showAddress(QTableView& table, Data::Manager& store, Address address) {
  const QAbstractItemModel* const shownBefore = table.model();
  PropertyModel* const model = store.addressModel(address == Address::OfUser);
  model->setParent(&table); // the store would keep one more for each time that a page is entered
  table.setModel(model);
  delete shownBefore;
  table.hideColumn(PropertyModel::Unit);
  table.resizeColumnToContents(PropertyModel::Name);
  table.horizontalHeader()->setSectionResizeMode(PropertyModel::Value, QHeaderView::Stretch);
  table.setCurrentIndex(model->index(0, PropertyModel::Value));
}

} // namespace TVR::GUI
