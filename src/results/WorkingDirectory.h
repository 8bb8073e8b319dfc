#pragma once

#include <QString>

namespace BrenvikApp {
class ApplicationInterface;
}

namespace TVR {

/// Where a file dialog begins: the host's working path, or without a host (null) the one in the
/// user's settings. May be empty.
QString startDirectory(const BrenvikApp::ApplicationInterface* host);

/// Tells the host the directory of the file that the user chose, if the host wants to know it.
void rememberDirectoryOf(const QString& fileName, BrenvikApp::ApplicationInterface* host);

} // namespace TVR
