#pragma once

#include "messages/UserMessages.h"

namespace TVR {

/// Whoever shows messages to the user; the application says who. See UserMessages.h for what each
/// of them is.
class Messenger {
public:
  virtual ~Messenger() = default;

  virtual void tell(Severity severity, const QString& title, const QString& text,
                    Qt::TextFormat format) = 0;
  virtual bool agrees(const QString& title, const QString& text) = 0;
  virtual bool saves(const QString& title, const QString& text) = 0;
  virtual bool savesProposal(const QString& title, const QString& richText) = 0;
  virtual bool saysYes(Severity severity, const QString& title, const QString& text) = 0;
  virtual bool saysOk(const QString& title, const QString& text) = 0;
  virtual Unsaved decidesOnChanges(const QString& title, const QString& text) = 0;
  virtual void tellDone(const QString& title, const QString& text, const QString& details,
                        const QString& picture) = 0;
};

/// From now on `messenger` shows all messages; it must outlive its use. With null they go to the
/// log, and nobody objects, as at the start of the program.
void setMessenger(Messenger* messenger);

} // namespace TVR
