#pragma once

#include "gui/wizard/PageFields.h"
#include "gui/wizard/PageSurroundings.h"
#include "ui_MappingWizardPage.h"

#include <QWizardPage>

namespace TVR::GUI {

struct PictureFrame;

/// Origin and scale of the map, and the picture behind it.
class MappingWizardPage : public QWizardPage, private Ui::MappingWizardPage {
  Q_OBJECT

public:
  explicit MappingWizardPage(const PageSurroundings& surroundings, QWidget* parent = nullptr);

  void initializePage() override;
  void cleanupPage() override;
  bool validatePage() override;

protected:
  void changeEvent(QEvent* event) override;

private slots:
  void on_selectImageFile_clicked();

private:
  void addFields();
  void addTests();
  void offerWorldFile(const QString& picture);
  void take(const PictureFrame& frame);

  const PageSurroundings surroundings_;
  PageFields fields_;
};

} // namespace TVR::GUI
