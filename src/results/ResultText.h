#pragma once

#include <QCoreApplication>
#include <QString>

namespace TVR {

/// Translation context of the texts that stand on the result page.
class ResultText {
  Q_DECLARE_TR_FUNCTIONS(TVRPlugin)
};

} // namespace TVR
