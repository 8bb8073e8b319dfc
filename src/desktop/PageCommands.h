#pragma once

#include <QObject>
#include <QPageLayout>

#include <functional>
#include <memory>

class QPrinter;
class QWidget;

namespace TVR::Page {
class PageWindow;
}

namespace TVR::Desktop {

/// What the host does with the active page. Each command does nothing if there is none.
class PageCommands final : public QObject {
  Q_OBJECT

public:
  /// What the commands need to know of the program.
  struct Surroundings {
    std::function<Page::PageWindow*()> page;       ///< the active one, or null
    std::function<QString()> proposedName;         ///< of files: base name with its folder
    std::function<void(const QString&)> choseFile; ///< notes where the user put a file
    std::function<void(const QString&)> report;    ///< of what is done, for the status bar
  };

  /// Dialogs stand before `parent`, which outlives this object.
  PageCommands(QWidget& parent, Surroundings surroundings);
  ~PageCommands() override;

  /// Asks for a file of a kind ("pdf", "png", "svg") and writes the page to it.
  void exportAs(const QString& ending);
  void copyAsPicture();
  void setUpPage();
  void preview();
  void print();

private:
  QPrinter& printer(const Page::PageWindow& page);
  void keepPaper(const Page::PageWindow& page);
  void printPage(const Page::PageWindow& page);

  QWidget& parent_;
  const Surroundings surroundings_;
  std::unique_ptr<QPrinter> printer_; ///< made when it is needed: that takes time
  bool hasOwnPaper_ = false;          ///< the user chose another one than the sheet
};

} // namespace TVR::Desktop
