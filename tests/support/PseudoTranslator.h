#pragma once

#include <QCoreApplication>
#include <QStringList>
#include <QTranslator>

/// A language for tests, while this object lives: every text that the German translations know, of
/// the program as of Qt, in brackets and longer, as "[!! text ~~~ !!]". A text without brackets is
/// not translated, or no tool has found it in the sources.
class PseudoTranslator : public QTranslator {
public:
  PseudoTranslator() {
    const QString directory = QCoreApplication::applicationDirPath() + "/../translations";
    isLoaded_ = ours_.load("tevrane_de.qm", directory) && ofQt_.load("qtbase_de.qm", directory);
    QCoreApplication::installTranslator(this);
  }
  ~PseudoTranslator() override { QCoreApplication::removeTranslator(this); }

  bool isLoaded() const { return isLoaded_; }
  bool isEmpty() const override { return false; }
  QString translate(const char* context, const char* text, const char* comment,
                    int n) const override {
    if (ours_.translate(context, text, comment, n).isNull() &&
        ofQt_.translate(context, text, comment, n).isNull())
      return {};
    const QString english = QString::fromUtf8(text);
    return "[!! " + english + ' ' + QString(3 + english.size() / 3, '~') + " !!]";
  }

private:
  QTranslator ours_;
  QTranslator ofQt_;
  bool isLoaded_ = false;
};
