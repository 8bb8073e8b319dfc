#pragma once

#include <QString>

namespace TVR::Quantities {
struct SiteFigure;
}

namespace TVR::Study {

struct BaseSite;
struct ResultLayout;
struct Scalar;
struct StudyKey;

// What things are called on the page of a study, in the language of the moment.

/// What a key means: "Hydraulic conductivity", or "X coordinate of Pump"; the key itself where
/// there are no words for it.
QString titleOf(const StudyKey& key, const BaseSite& base);

/// An answer of a run: "Length of the plume of -1 K after 30 a [m]".
QString titleOf(const Scalar& scalar, const ResultLayout& layout, const BaseSite& base);

/// What meshes are compared by: "length of the plume of -1 K".
QString titleOf(const Quantities::SiteFigure& figure, const BaseSite& base);

/// The unit of a key's numbers as people write it.
QString unitText(const QString& unit);

} // namespace TVR::Study
