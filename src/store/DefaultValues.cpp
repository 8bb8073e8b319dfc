#include "store/DefaultValues.h"

#include "design/WellDesign.h"
#include "project/ParameterKeys.h"
#include "project/ParameterTable.h"
#include "store/ReferenceDatabase.h"

namespace TVR::Data {

std::optional<ParameterValues> defaultValues(const ParameterKeys& keys) {
  const auto defaults = ReferenceDatabase::defaults();
  if (!defaults)
    return std::nullopt;
  ParameterValues values;
  for (const auto& [key, value] : *defaults) {
    const int id = keys.idOfKey(key);
    if (isClearableText(id)) {
      const QString text = value.toString();
      if (text == "0.0" || text == "0")
        values.insert(id, QString());
    } else if (isFlagInDefaults(id)) {
      values.insert(id, wholeNumber(value.toDouble()) >= 1);
    } else {
      values.insert(id, value);
    }
  }
  return values;
}

} // namespace TVR::Data
