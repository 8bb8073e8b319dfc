#include "messages/Messenger.h"

#include <QDebug>

namespace TVR {

namespace {

/// Writes messages to the log. Nobody can object there: what the program is about to do is agreed
/// to, and nothing else is asked for.
class LogMessenger final : public Messenger {
public:
  void tell(Severity severity, const QString& title, const QString& text, Qt::TextFormat) override {
    const QString line = QStringLiteral("%1: %2").arg(title, text);
    if (severity == Severity::Information)
      qInfo().noquote() << line;
    else
      qWarning().noquote() << line;
  }
  bool agrees(const QString& title, const QString& text) override {
    tell(Severity::Information, title, text, Qt::PlainText);
    return true;
  }
  bool saves(const QString& title, const QString& text) override { return agrees(title, text); }
  bool savesProposal(const QString& title, const QString& richText) override {
    tell(Severity::Warning, title, richText, Qt::RichText);
    return false;
  }
  bool saysYes(Severity severity, const QString& title, const QString& text) override {
    tell(severity, title, text, Qt::PlainText);
    return false;
  }
  bool saysOk(const QString& title, const QString& text) override {
    return saysYes(Severity::Information, title, text);
  }
  Unsaved decidesOnChanges(const QString& title, const QString& text) override {
    tell(Severity::Warning, title, text, Qt::PlainText);
    return Unsaved::Discard;
  }
  void tellDone(const QString& title, const QString& text, const QString& details,
                const QString&) override {
    qInfo().noquote() << QStringLiteral("%1: %2 %3").arg(title, text, details);
  }
};

LogMessenger theLog;
Messenger* theMessenger = &theLog;

} // namespace

void setMessenger(Messenger* messenger) {
  theMessenger = messenger ? messenger : &theLog;
}

void tellUser(Severity severity, const QString& title, const QString& text, Qt::TextFormat format) {
  theMessenger->tell(severity, title, text, format);
}

bool userAgrees(const QString& title, const QString& text) {
  return theMessenger->agrees(title, text);
}

bool userSaves(const QString& title, const QString& text) {
  return theMessenger->saves(title, text);
}

bool userSavesProposal(const QString& title, const QString& richText) {
  return theMessenger->savesProposal(title, richText);
}

bool userSaysYes(Severity severity, const QString& title, const QString& text) {
  return theMessenger->saysYes(severity, title, text);
}

bool userSaysOk(const QString& title, const QString& text) {
  return theMessenger->saysOk(title, text);
}

Unsaved userDecidesOnChanges(const QString& title, const QString& text) {
  return theMessenger->decidesOnChanges(title, text);
}

void tellUserDone(const QString& title, const QString& text, const QString& details,
                  const QString& picture) {
  theMessenger->tellDone(title, text, details, picture);
}

} // namespace TVR
