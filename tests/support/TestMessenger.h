#pragma once

#include "messages/Messenger.h"

#include <QStringList>

/// A user who reads all messages and answers as a test wants.
class TestMessenger final : public TVR::Messenger {
public:
  void tell(TVR::Severity, const QString& title, const QString& text, Qt::TextFormat) override {
    told << title + ": " + text;
  }
  bool agrees(const QString& title, const QString& text) override {
    questions << title + ": " + text;
    return agreeing;
  }
  bool saves(const QString& title, const QString& text) override {
    questions << title + ": " + text;
    return saving;
  }
  bool savesProposal(const QString& title, const QString& text) override {
    return saves(title, text);
  }
  bool saysOk(const QString& title, const QString& text) override {
    questions << title + ": " + text;
    return yes;
  }
  bool saysYes(TVR::Severity, const QString& title, const QString& text) override {
    questions << title + ": " + text;
    return yes;
  }
  TVR::Unsaved decidesOnChanges(const QString& title, const QString& text) override {
    questions << title + ": " + text;
    return unsaved;
  }
  void tellDone(const QString& title, const QString& text, const QString& details,
                const QString&) override {
    told << title + ": " + text + ' ' + details;
  }

  QStringList told;
  QStringList questions;
  bool agreeing = true;
  bool yes = true;
  bool saving = true;
  TVR::Unsaved unsaved = TVR::Unsaved::Keep;
};
