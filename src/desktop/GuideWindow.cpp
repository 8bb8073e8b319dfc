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
    : QMainWindow(parent), text_(new QTextBrowser) {
  setWindowTitle(tr("User Guide"));
  setCentralWidget(text_);
  text_->setObjectName("guide");
  text_->setAccessibleName(windowTitle());
  text_->document()->setDocumentMargin(16);
  auto* bar = addToolBar(tr("Navigation"));
  bar->setMovable(false);
  const auto addStep = [&](QStyle::StandardPixmap icon, const QString& text, auto slot) {
    QAction* const action = bar->addAction(style()->standardIcon(icon), text);
    connect(action, &QAction::triggered, text_, slot);
    return action;
  };
  QAction* const back = addStep(QStyle::SP_ArrowBack, tr("Back"), &QTextBrowser::backward);
  QAction* const forward = addStep(QStyle::SP_ArrowForward, tr("Forward"), &QTextBrowser::forward);
  addStep(QStyle::SP_DirHomeIcon, tr("Contents"), &QTextBrowser::home);
  back->setShortcut(QKeySequence::Back);
  forward->setShortcut(QKeySequence::Forward);
  back->setEnabled(false);
  forward->setEnabled(false);
  connect(text_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
  connect(text_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
  const QString start = QDir(directory).filePath(firstPage);
  if (QFileInfo::exists(start))
    text_->setSource(QUrl::fromLocalFile(start), QTextDocument::MarkdownResource);
  else
    text_->setPlainText(tr("The user guide is missing: there is no %1.\n\nTo solve this problem, "
                           "please re-install the program.")
                            .arg(QDir::toNativeSeparators(start)));
  resize(usualSize);
}

} // namespace TVR::Desktop
