#include "project/ParameterKeys.h"

#include "project/ParameterTable.h"

namespace TVR {

ParameterKeys::ParameterKeys() {
  for (const ParameterRow& row : parameterTable()) {
    if (*row.key != '\0')
      keys_.insert(row.id, QString::fromLatin1(row.key));
    if (*row.formerKey != '\0')
      formerKeys_.insert(row.id, QString::fromLatin1(row.formerKey));
  }
}

} // namespace TVR
