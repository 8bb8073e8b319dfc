#pragma once

class QTableView;

namespace TVR::Data {
class Manager;
}

namespace TVR::GUI {

enum class Address { OfUser, OfProject };

/// Shows an address as it is now, in a table of names and values that write to the store at once.
void showAddress(QTableView& table, Data::Manager& store, Address address);

} // namespace TVR::GUI
