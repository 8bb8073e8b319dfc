#pragma once

#include <QCoreApplication>
#include <QString>

namespace TVR {

/// Translation context of the texts that belong to the plug-in as a whole: its commands and what
/// stands on the result page.
class PluginText {
  Q_DECLARE_TR_FUNCTIONS(TVRPlugin)
};

} // namespace TVR
