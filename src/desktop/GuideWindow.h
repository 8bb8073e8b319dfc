#pragma once

#include <QMainWindow>

class QTextBrowser;

namespace TVR::Desktop {

/// The user guide, read from Markdown files that lie beside the program.
class GuideWindow final : public QMainWindow {
  Q_OBJECT

public:
  /// `directory` holds "index.md"; that of the program is usualDirectory().
  explicit GuideWindow(const QString& directory, QWidget* parent = nullptr);

  /// The guide in a language, or else in English, in the folder "guide" beside that of the program.
  static QString usualDirectory(const QString& language);

private:
  QTextBrowser* const text_;
};

} // namespace TVR::Desktop
