#pragma once

#include <QMainWindow>

class QDir;
class QTextBrowser;

namespace TVR::Desktop {

/// The user guide, read from Markdown files that lie beside the program.
class GuideWindow final : public QMainWindow {
  Q_OBJECT

public:
  /// `directory` holds "index.md"; that of the program is usualDirectory().
  explicit GuideWindow(const QString& directory, QWidget* parent = nullptr);

  /// Shows the page that is open as the guide in `directory` has it, and the window's own texts in
  /// the language of use.
  void retranslate(const QString& directory);

  /// The guide in a language, or else in English, in the folder "guide" beside that of the program.
  static QString usualDirectory(const QString& language);

private:
  void read(const QDir& guide);

  QTextBrowser* const text_;
  QToolBar& bar_; ///< a child of this window
  QAction* back_ = nullptr;
  QAction* forward_ = nullptr;
  QAction* contents_ = nullptr;
};

} // namespace TVR::Desktop
