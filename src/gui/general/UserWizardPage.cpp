#include "gui/general/UserWizardPage.h"

#include "design/ParameterId.h"
#include "disk/PictureReading.h"
#include "gui/general/AddressTable.h"
#include "gui/wizard/PictureChoice.h"
#include "store/Manager.h"

#include <QEvent>
#include <QIcon>
#include <QImage>
#include <QPixmap>

namespace TVR::GUI {

using namespace Parameter;

namespace {

/// A picture no larger than there is room for it; null if it cannot be read.
QPixmap picture(const QString& file) {
  constexpr QSize room(300, 150);
  const QImage image = readImage(file);
  if (image.width() <= room.width() && image.height() <= room.height())
    return QPixmap::fromImage(image);
  return QPixmap::fromImage(image.scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation));
}

} // namespace

UserWizardPage::UserWizardPage(const PageSurroundings& surroundings, QWidget* parent)
    : QWizardPage(parent), surroundings_(surroundings),
      fields_(surroundings.store, "GeneralWizard") {
  setupUi(this);
  toolButtonDeleteLogo->setIcon(QIcon(":/TVR/images/nok.png"));
}

void UserWizardPage::initializePage() {
  fields_.save({UserName, UserStreet, UserZip, UserLogo, UserLocation});
  showAddress(*userTableView, surroundings_.store, Address::OfUser);
  showLogo(fields_.saved(UserLogo).toString());
}

void UserWizardPage::cleanupPage() {
  fields_.reset(tr("Reset all changes on the user information?"));
}

bool UserWizardPage::validatePage() {
  surroundings_.store.setValue(UserLogo, logo_);
  return true;
}

void UserWizardPage::changeEvent(QEvent* event) {
  if (asksForTexts(*this, *event)) {
    retranslateUi(this);
    showAddress(*userTableView, surroundings_.store, Address::OfUser);
    showLogo(logo_);
  }
  QWizardPage::changeEvent(event);
}

void UserWizardPage::on_toolButtonLogoFileSelection_clicked() {
  const QString file = askForPicture(this, tr("Open logo image file"), surroundings_.host);
  if (!file.isEmpty())
    showLogo(file);
}

void UserWizardPage::on_toolButtonDeleteLogo_clicked() {
  showLogo({});
}

void UserWizardPage::showLogo(const QString& file) {
  logo_ = file;
  const bool hasLogo = !file.isEmpty();
  LogoFileName->setText(hasLogo ? file : tr("no file"));
  toolButtonDeleteLogo->setEnabled(hasLogo);
  LogoFileName->setToolTip(file);
  LogoView->setPixmap(picture(file));
  LogoView->setVisible(hasLogo);
}

} // namespace TVR::GUI
