#include "files/BuildTime.h"

namespace TVR {

QString buildTime() {
  return QStringLiteral(__DATE__ " " __TIME__);
}

} // namespace TVR
