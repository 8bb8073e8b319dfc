#pragma once

#include <QTextDocument>

namespace TVR {

/// A rich text that is all there is: whatever pictures, styles or files it names are not opened.
class ClosedDocument : public QTextDocument {
public:
  using QTextDocument::QTextDocument;

protected:
  QVariant loadResource(int type, const QUrl& name) override;
};

} // namespace TVR
