#include "messages/Messenger.h"

#include "support/MessageLog.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace TVR {
namespace {

/// Keeps what it is to show, and objects to every question.
class KeptMessages final : public Messenger {
public:
  void tell(Severity, const QString& title, const QString& text, Qt::TextFormat format) override {
    shown << title + ": " + text + (format == Qt::RichText ? " (rich)" : "");
  }
  bool agrees(const QString&, const QString& text) override { return keep("agrees " + text); }
  bool saves(const QString&, const QString& text) override { return keep("saves " + text); }
  bool savesProposal(const QString&, const QString& text) override {
    return keep("saves proposal " + text);
  }
  bool saysYes(Severity, const QString&, const QString& text) override {
    return !keep("says yes " + text);
  }
  bool saysOk(const QString&, const QString& text) override { return !keep("says ok " + text); }
  Unsaved decidesOnChanges(const QString&, const QString& text) override {
    keep("decides " + text);
    return Unsaved::Keep;
  }
  void tellDone(const QString&, const QString& text, const QString& details,
                const QString& picture) override {
    keep(text + ", " + details + ", " + picture);
  }

  QStringList shown;

private:
  bool keep(const QString& text) {
    shown << text;
    return false;
  }
};

TEST(Messenger, showsAllMessagesOnceItIsSet) {
  const MessageLog log;
  KeptMessages messages;
  setMessenger(&messages);
  tellUser(Severity::Critical, "Title", "first");
  tellUser(Severity::Warning, "Title", "second", Qt::RichText);
  EXPECT_FALSE(userAgrees("Title", "Go on?"));
  EXPECT_FALSE(userSaves("Title", "Save?"));
  EXPECT_FALSE(userSavesProposal("Title", "<b>Take it?</b>"));
  EXPECT_TRUE(userSaysYes(Severity::Warning, "Title", "Clear?"));
  EXPECT_TRUE(userSaysOk("Title", "Reset?"));
  EXPECT_EQ(userDecidesOnChanges("Title", "Changed."), Unsaved::Keep);
  tellUserDone("Title", "Done", "details", "picture");
  setMessenger(nullptr);
  EXPECT_EQ(messages.shown,
            (QStringList{"Title: first", "Title: second (rich)", "agrees Go on?", "saves Save?",
                         "saves proposal <b>Take it?</b>", "says yes Clear?", "says ok Reset?",
                         "decides Changed.", "Done, details, picture"}));
  EXPECT_TRUE(log.lines().isEmpty());
}

TEST(Messenger, withoutOneMessagesGoToTheLog) {
  KeptMessages messages;
  setMessenger(&messages);
  setMessenger(nullptr);
  const MessageLog log;
  tellUserDone("Title", "Done", "details", "picture");
  EXPECT_FALSE(userSavesProposal("Title", "<b>Take it?</b>"));
  EXPECT_FALSE(userSaysYes(Severity::Warning, "Title", "Clear?"));
  EXPECT_FALSE(userSaysOk("Title", "Reset?"));
  EXPECT_EQ(userDecidesOnChanges("Title", "Changed."), Unsaved::Discard);
  EXPECT_EQ(log.lines(), (QStringList{"Title: Done details", "Title: <b>Take it?</b>",
                                      "Title: Clear?", "Title: Reset?", "Title: Changed."}));
  EXPECT_TRUE(messages.shown.isEmpty());
}

} // namespace
} // namespace TVR
