#pragma once

#include <QCoreApplication>
#include <QString>

namespace TVR::Data {

/// Translation context of what the store and its reference database say.
class StoreText {
  Q_DECLARE_TR_FUNCTIONS(TVR::Data::Manager)
};

} // namespace TVR::Data
