#include "gui/general/ProjectWizardPage.h"

#include "design/ParameterId.h"
#include "disk/ClosedDocument.h"
#include "gui/general/AddressTable.h"
#include "store/Manager.h"

#include <QEvent>

namespace TVR::GUI {

using namespace Parameter;

ProjectWizardPage::ProjectWizardPage(const PageSurroundings& surroundings, QWidget* parent)
    : QWizardPage(parent), surroundings_(surroundings),
      fields_(surroundings.store, "GeneralWizard") {
  setupUi(this);
  // A description may come from anybody, and name files.
  descriptionBrowser->setDocument(new ClosedDocument(descriptionBrowser));
}

void ProjectWizardPage::initializePage() {
  fields_.save({ProjectStreet, ProjectZip, ProjectLocation, ProjectName, ProjectDescription});
  showAddress(*addressTableView, surroundings_.store, Address::OfProject);
  projectName->setText(fields_.saved(ProjectName).toString());
  descriptionBrowser->setHtml(fields_.saved(ProjectDescription).toString());
}

void ProjectWizardPage::cleanupPage() {
  if (PageFields::agreesToReset(tr("Reset all changes on the project information?")))
    fields_.restore({ProjectName, ProjectStreet, ProjectZip, ProjectLocation, ProjectDescription});
}

bool ProjectWizardPage::validatePage() {
  surroundings_.store.setValue(ProjectName, projectName->text());
  surroundings_.store.setValue(ProjectDescription, descriptionBrowser->toHtml());
  surroundings_.store.setValue(GeneralWizardDone, true);
  return true;
}

void ProjectWizardPage::changeEvent(QEvent* event) {
  if (asksForTexts(*this, *event)) {
    retranslateUi(this);
    showAddress(*addressTableView, surroundings_.store, Address::OfProject);
  }
  QWizardPage::changeEvent(event);
}

} // namespace TVR::GUI
