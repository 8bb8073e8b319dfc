#pragma once

#include <QString>

namespace TVR {

/// What to tell the user of the exception that is being handled, if a run that could not be set up
/// threw it; any other is thrown again. To be called in a handler. The text has no markup.
QString setupFault();

} // namespace TVR
