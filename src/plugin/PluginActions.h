#pragma once

#include <QString>

class QAction;
class QMenu;
class QObject;

namespace TVR {

/// Names under which the actions are children of the plug-in object.
namespace ActionName {
inline constexpr char importResults[] = "tvr_import_results";
inline constexpr char exportShapefile[] = "tvr_export_shapefile";
inline constexpr char english[] = "tvr_english";
inline constexpr char french[] = "tvr_french";
inline constexpr char german[] = "tvr_german";
} // namespace ActionName

/// Makes the actions as children of `plugin`, whose slots they call. The three languages exclude
/// each other.
void createActions(QObject* plugin);

/// Checks the language that this locale name begins with; English for any other.
void checkLanguageAction(const QObject* plugin, const QString& language);

} // namespace TVR
