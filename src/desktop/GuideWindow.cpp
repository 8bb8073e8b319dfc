#include "desktop/GuideWindow.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStyle>
#include <QTextBrowser>
#include <QToolBar>
#include <QUrl>

namespace TVR::Desktop {

namespace {

constexpr char firstPage[] = "index.md";
constexpr QSize usualSize(820, 720);

} // namespace

QString GuideWindow::usualDirectory(const QString& language) {
  const QDir guide(QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../guide"));
  return guide.filePath(QFileInfo::exists(guide.filePath(language + '/' + firstPage)) ? language
                                                                                      : "en");
}

GuideWindow::GuideWindow(const QString& directory, QWidget* parent)
    : QMainWindow(parent), text_(new QTextBrowser), bar_(*addToolBar(QString())) {
  setCentralWidget(text_);
  text_->setObjectName("guide");
  text_->document()->setDocumentMargin(16);
  bar_.setMovable(false);
  const auto addStep = [&](QStyle::StandardPixmap icon, auto slot) {
    QAction* const action = bar_.addAction(style()->standardIcon(icon), QString());
    connect(action, &QAction::triggered, text_, slot);
    return action;
  };
  back_ = addStep(QStyle::SP_ArrowBack, &QTextBrowser::backward);
  forward_ = addStep(QStyle::SP_ArrowForward, &QTextBrowser::forward);
  contents_ = addStep(QStyle::SP_DirHomeIcon, &QTextBrowser::home);
  back_->setShortcut(QKeySequence::Back);
  forward_->setShortcut(QKeySequence::Forward);
  back_->setEnabled(false);
  forward_->setEnabled(false);
  connect(text_, &QTextBrowser::backwardAvailable, back_, &QAction::setEnabled);
  connect(text_, &QTextBrowser::forwardAvailable, forward_, &QAction::setEnabled);
  retranslate(directory);
  resize(usualSize);
}

void GuideWindow::retranslate(const QString& directory) {
  setWindowTitle(tr("User Guide"));
  text_->setAccessibleName(windowTitle());
  bar_.setWindowTitle(tr("Navigation"));
  back_->setText(tr("Back"));
  forward_->setText(tr("Forward"));
  contents_->setText(tr("Contents"));
  read(QDir(directory));
}

/// What was read before is in another language: no way leads back there.
void GuideWindow::read(const QDir& guide) {
  const QString page = text_->source().fileName();
  const QString start = guide.filePath(firstPage);
  if (!QFileInfo::exists(start)) {
    text_->setPlainText(tr("The user guide is missing: there is no %1.\n\nTo solve this problem, "
                           "please re-install the program.")
                            .arg(QDir::toNativeSeparators(start)));
    return;
  }
  text_->setSource(QUrl::fromLocalFile(start), QTextDocument::MarkdownResource);
  text_->clearHistory();
  if (!page.isEmpty() && page != firstPage && guide.exists(page))
    text_->setSource(QUrl::fromLocalFile(guide.filePath(page)), QTextDocument::MarkdownResource);
}

} // namespace TVR::Desktop
