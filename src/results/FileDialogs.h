#pragma once

#include <QString>

namespace BrenvikApp {
class ApplicationInterface;
}

namespace TVR {

/// Asks for a file to read. The dialog begins in the working path, and the host (null without one)
/// is told where the user went. Empty if the user gives up.
QString fileToOpen(BrenvikApp::ApplicationInterface* host, const QString& title,
                   const QString& filter);

/// The same for a file to write; it begins with the file that is proposed, if there is one.
QString fileToSave(BrenvikApp::ApplicationInterface* host, const QString& title,
                   const QString& filter, const QString& proposal);

} // namespace TVR
