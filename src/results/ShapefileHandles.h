#pragma once

#include <locale.h>
#include <shapefil.h>

#include <memory>
#include <type_traits>

namespace TVR {

/// What shapelib opens and makes, closed with the object.
using ShapeFile = std::unique_ptr<std::remove_pointer_t<SHPHandle>, decltype(&SHPClose)>;
using ShapeTable = std::unique_ptr<std::remove_pointer_t<DBFHandle>, decltype(&DBFClose)>;
using ShapeRecord = std::unique_ptr<SHPObject, decltype(&SHPDestroyObject)>;

/// Numbers have a decimal point on this thread while the object lives, whatever the user's locale:
/// shapelib prints them with the C library.
class DecimalPoint {
public:
  DecimalPoint()
      : locale_(newlocale(LC_NUMERIC_MASK, "C", duplocale(uselocale(nullptr)))),
        former_(uselocale(locale_)) {}
  ~DecimalPoint() {
    uselocale(former_);
    freelocale(locale_);
  }
  DecimalPoint(const DecimalPoint&) = delete;
  DecimalPoint& operator=(const DecimalPoint&) = delete;

private:
  const locale_t locale_;
  const locale_t former_;
};

} // namespace TVR
