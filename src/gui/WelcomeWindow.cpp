#include "gui/WelcomeWindow.h"

#include "design/ParameterId.h"
#include "files/BuildTime.h"
#include "files/RecentProjects.h"
#include "gui/RecentProjectDelegate.h"
#include "messages/PluginText.h"
#include "messages/UserMessages.h"
#include "project/ProgramVersion.h"
#include "store/Manager.h"

#include <QEvent>
#include <QFile>
#include <QIcon>
#include <QPixmap>
#include <QShortcut>
#include <QTextStream>

namespace TVR {

using GUI::RecentProjectDelegate;

namespace {

constexpr char pictureFile[] = ":/TVR/images/welcome.png";
constexpr char iconFile[] = ":/TVR/images/tvr.png";

/// The text of a language without its line breaks; empty if there is none.
QString informationIn(const QString& language) {
  QFile file(QStringLiteral(":/TVR/resources/information_%1.txt").arg(language));
  if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
    return {};
  QTextStream lines(&file);
  lines.setCodec("UTF-8");
  QString text;
  while (!lines.atEnd())
    text += lines.readLine();
  return text;
}

} // namespace

WelcomeWindow::WelcomeWindow(const QString& title, QWidget* parent)
    : QWidget(parent), picture_(pictureFile) {
  setupUi(this);
  setWindowTitle(title);
  setAutoFillBackground(true);
  fitPicture();
  showInformation();
  showVersion();
  listOfProjects->setItemDelegate(new RecentProjectDelegate(listOfProjects));
  connect(startNew, &QAbstractButton::clicked, this, &WelcomeWindow::startNewProject);
  connect(listOfProjects, &QListWidget::itemDoubleClicked, this, &WelcomeWindow::openProjectOfItem);
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter})
    connect(new QShortcut(key, listOfProjects, nullptr, nullptr, Qt::WidgetShortcut),
            &QShortcut::activated, this, &WelcomeWindow::openCurrentProject);
  updateProjectEntries();
}

QString WelcomeWindow::translatedTitle() {
  return PluginText::tr("TVR: Welcome");
}

void WelcomeWindow::startNewProject() {
  emit newProject();
}

void WelcomeWindow::openProjectOfItem(QListWidgetItem* item) {
  emit openProject(item->data(RecentProjectDelegate::PathRole).toString());
}

void WelcomeWindow::openCurrentProject() {
  if (QListWidgetItem* const item = listOfProjects->currentItem())
    openProjectOfItem(item);
}

void WelcomeWindow::updateProjectEntries() {
  listOfProjects->clear();
  for (const RecentProject& project : recentProjects()) {
    auto* const item = new QListWidgetItem(
        QIcon(iconFile), QStringLiteral("%1 (%2)").arg(project.title, project.path));
    item->setData(RecentProjectDelegate::PathRole, project.path);
    item->setData(RecentProjectDelegate::TitleRole, project.title);
    item->setToolTip(project.path.toHtmlEscaped());
    listOfProjects->addItem(item);
  }
  noProjects->setVisible(listOfProjects->count() == 0);
}

void WelcomeWindow::showInformation() {
  const QString language = Data::Manager::instance()->value(Parameter::GuiLanguage).toString();
  if (const QString text = informationIn(language); !text.isEmpty())
    textBrowser->setText(text);
}

void WelcomeWindow::showVersion() {
  const QString version = versionLabel(TEVRANE_VERSION);
  const QString program = tr("%1 Version: %2").arg(programTitle, version);
  labelProgram->setText(program);
  labelVersion->setText(tr("<span style=\"color:#ffffff;\">Version: %1%2 created on %3</span>")
                            .arg(version, QString(), buildTime()));
  version_info_text->setText(program + '\n' + tr("Runs with Qt %1").arg(qVersion()));
}

/// The picture covers the window at any size; what does not fit is cut off at its edges.
void WelcomeWindow::fitPicture() {
  QPalette colours = palette();
  if (picture_.isNull()) {
    colours.setColor(backgroundRole(), QColor(0x1c, 0x4a, 0x60));
  } else {
    const QSize pixels = size() * devicePixelRatioF();
    QImage fitted =
        picture_.scaled(pixels, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
    const QRect middle(
        QPoint((fitted.width() - pixels.width()) / 2, (fitted.height() - pixels.height()) / 2),
        pixels);
    fitted = fitted.copy(middle);
    fitted.setDevicePixelRatio(devicePixelRatioF());
    colours.setBrush(backgroundRole(), QBrush(QPixmap::fromImage(fitted)));
  }
  setPalette(colours);
}

void WelcomeWindow::changeEvent(QEvent* event) {
  if (event->type() == QEvent::LanguageChange) {
    retranslateUi(this);
    setWindowTitle(translatedTitle());
    showInformation();
    showVersion();
  }
  QWidget::changeEvent(event);
}

void WelcomeWindow::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  fitPicture();
}

void WelcomeWindow::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  updateProjectEntries(); // one may have been opened since
}

} // namespace TVR
