#pragma once

#include "messages/Messenger.h"

namespace TVR {

/// Shows messages in boxes that wait for the user.
class MessageBoxes final : public Messenger {
public:
  /// Whether there is somebody to see a box: there is a window system, and the platform does not
  /// draw off screen.
  static bool haveScreen();

  void tell(Severity severity, const QString& title, const QString& text,
            Qt::TextFormat format) override;
  bool agrees(const QString& title, const QString& text) override;
  bool saves(const QString& title, const QString& text) override;
  bool savesProposal(const QString& title, const QString& richText) override;
  bool saysYes(Severity severity, const QString& title, const QString& text) override;
  bool saysOk(const QString& title, const QString& text) override;
  Unsaved decidesOnChanges(const QString& title, const QString& text) override;
  void tellDone(const QString& title, const QString& text, const QString& details,
                const QString& picture) override;
};

} // namespace TVR
