#pragma once

#include "tour/Visit.h"

namespace TVR::Test {

/// Goes to the dialogs that a program opens only where something has gone before, in a language
/// ("de", "en", "fr"): what an earlier one left unsaved, and a box of each kind. Needs a
/// QApplication.
void tourOfDialogs(const QString& language, const Visit& visit);

} // namespace TVR::Test
