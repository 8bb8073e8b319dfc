#pragma once

#include <QString>

class QWidget;

namespace BrenvikApp {
class ApplicationInterface;
}

namespace TVR::GUI {

/// Where a dialog for pictures begins: the host's working path; without a host the one of the
/// settings, or else the folder "data" beside the program.
QString pictureDirectory(const BrenvikApp::ApplicationInterface* host);

/// The filter of a dialog for pictures: all formats that can be read.
QString pictureFilter();

/// Asks for a picture; empty if none was chosen.
QString askForPicture(QWidget* parent, const QString& title,
                      const BrenvikApp::ApplicationInterface* host);

} // namespace TVR::GUI
