#pragma once

#include <QCoreApplication>
#include <QTranslator>

namespace TVR {

/// Answers every text with its context in front of it, as "context/text", while it lives.
class ContextTranslator : public QTranslator {
public:
  ContextTranslator() { QCoreApplication::installTranslator(this); }

  bool isEmpty() const override { return false; }
  QString translate(const char* context, const char* text, const char*, int) const override {
    return QString("%1/%2").arg(context, text);
  }
};

} // namespace TVR
