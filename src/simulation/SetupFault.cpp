#include "simulation/SetupFault.h"

#include "messages/PluginText.h"
#include "simulation/SiteSetup.h"

#include <exception>

namespace TVR {

namespace {

/// What the simulator says of a mesh that cannot be made is for those who know it.
QString noMesh(const char* reason) {
  return PluginText::tr("The mesh of cells around the wells cannot be made. Please change the size "
                        "of the model and/or the numerical parameters.\n\n%1")
      .arg(reason);
}

} // namespace

QString setupFault() {
  try {
    throw;
  } catch (const SetupError& error) {
    return QString::fromStdString(error.what());
  } catch (const std::exception& meshError) {
    return noMesh(meshError.what());
  } catch (const char* meshError) {
    return noMesh(meshError);
  }
}

} // namespace TVR
