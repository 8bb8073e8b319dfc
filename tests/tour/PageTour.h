#pragma once

#include "tour/Visit.h"

namespace TVR::Test {

/// Goes to every page of the wizards in a language ("de", "en", "fr"), at their size: as it is
/// entered, with each check mark and choice turned, with everything emptied and refused, and in the
/// other states in which it shows more; and to the boxes in which it asks something. Needs a
/// QApplication; works on the store of this program, which has the defaults afterwards.
///
/// `project` is a batch file.
void tourOfPages(const QString& language, const QString& project, const Visit& visit);

} // namespace TVR::Test
