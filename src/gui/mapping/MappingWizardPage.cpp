#include "gui/mapping/MappingWizardPage.h"

#include "design/ParameterId.h"
#include "disk/PictureReading.h"
#include "gui/mapping/WorldFile.h"
#include "gui/wizard/PictureChoice.h"
#include "messages/UserMessages.h"
#include "store/Manager.h"

#include <QCoreApplication>
#include <QEvent>

#include <cmath>

namespace TVR::GUI {

using namespace Parameter;

namespace {

constexpr char context[] = "GraphicWizard"; // as the translations spell it
constexpr double easternmost = 18577795;    ///< [m]
constexpr double northernmost = 10001889;   ///< [m]
constexpr double largestExtent = 10000;     ///< [m]
constexpr NumberRule extent{0, largestExtent};

/// A number that is stored as it is typed.
PageField typedNumberField(int id, QLineEdit* edit, const NumberRule& rule) {
  PageField field = numberField(id, edit, rule);
  field.entered = [edit] { return edit->text(); };
  return field;
}

bool canBeEntered(const PictureFrame& frame) {
  return std::abs(frame.x) <= easternmost && std::abs(frame.y) <= northernmost &&
         frame.width <= largestExtent && frame.height <= largestExtent;
}

QString metres(double length) {
  return QString::number(length, 'f', 2);
}

} // namespace

MappingWizardPage::MappingWizardPage(const PageSurroundings& surroundings, QWidget* parent)
    : QWizardPage(parent), surroundings_(surroundings), fields_(surroundings.store, context) {
  setupUi(this);
  fields_.showMessagesIn(feedback_page0);
  connect(horizontalExtentionUsed, &QRadioButton::toggled, extensionMap, &QWidget::setEnabled);
  connect(scaleUsed, &QRadioButton::toggled, scaleMap, &QWidget::setEnabled);
  addFields();
  addTests();
}

void MappingWizardPage::addFields() {
  fields_.add(numberField(ViewX, XMap, {0, easternmost}));
  fields_.add(numberField(ViewY, YMap, {0, northernmost}));
  fields_.add(flagField(ViewUseExtension, horizontalExtentionUsed, scaleUsed));
  fields_.add(numberField(ViewHorizontalExtension, extensionMap, extent));
  fields_.add(countField(ViewScale, scaleMap));
  fields_.add(flagField(BackgroundImage, imageGroupBox));
  fields_.add(textField(BackgroundImageFile, ImageFile));
  // Required oddity: the coordinates of the picture are stored as texts.
  fields_.add(typedNumberField(BackgroundImageX, XImage, {-easternmost, easternmost}));
  fields_.add(typedNumberField(BackgroundImageY, YImage, {-northernmost, northernmost}));
  fields_.add(numberField(BackgroundImageWidth, WidthImport, extent));
  fields_.add(numberField(BackgroundImageHeight, HeightImport, extent));
}

void MappingWizardPage::addTests() {
  const auto lacks = [](const QLineEdit* edit) { return [edit] { return lacksNumber(edit); }; };
  const auto lacksExtent = [](const QLineEdit* edit) {
    return [edit] { return lacksNumber(edit) || numberIn(edit) == 0; };
  };
  const auto lacksForPicture = [this](const QLineEdit* edit) {
    return [this, edit] { return imageGroupBox->isChecked() && lacksNumber(edit); };
  };
  fields_.test(
      lacks(XMap),
      QT_TRANSLATE_NOOP("GraphicWizard",
                        "Please provide a valid value for the x coordinate of the map origin."));
  fields_.test(
      lacks(YMap),
      QT_TRANSLATE_NOOP("GraphicWizard",
                        "Please provide a valid value for the y coordinate of the map origin."));
  fields_.test(
      [this, lacksExtent] {
        return horizontalExtentionUsed->isChecked() && lacksExtent(extensionMap)();
      },
      QT_TRANSLATE_NOOP(
          "GraphicWizard",
          "We need a valid value for the map extention (West - East) or select a scale!"));
  fields_.test([this] { return imageGroupBox->isChecked() && ImageFile->text().isEmpty(); },
               QT_TRANSLATE_NOOP("GraphicWizard",
                                 "Please provide a valid name for the background image file."));
  fields_.test(lacksForPicture(XImage),
               QT_TRANSLATE_NOOP("GraphicWizard", "Please provide a valid value for the x "
                                                  "coordinate of the background image origin."));
  fields_.test(lacksForPicture(YImage),
               QT_TRANSLATE_NOOP("GraphicWizard", "Please provide a valid value for the y "
                                                  "coordinate of the background image origin."));
  // Required oddity: the extents of the picture count without a picture too.
  fields_.test(lacksExtent(WidthImport),
               QT_TRANSLATE_NOOP(
                   "GraphicWizard",
                   "Please provide a valid value for the horizontal image extension (West-East)."));
  fields_.test(lacksExtent(HeightImport),
               QT_TRANSLATE_NOOP(
                   "GraphicWizard",
                   "Please provide a valid value for the vertical image extension (North-South)."));
}

void MappingWizardPage::initializePage() {
  fields_.enter();
  fields_.clearFeedback();
}

void MappingWizardPage::cleanupPage() {
  fields_.reset(QCoreApplication::translate("GraphicWizard",
                                            "Reset all changes on the mapping information?"));
}

bool MappingWizardPage::validatePage() {
  const bool isComplete = fields_.leave();
  surroundings_.store.setValue(GraphicWizardDone, isComplete);
  return isComplete;
}

void MappingWizardPage::on_selectImageFile_clicked() {
  const QString file = askForPicture(this, tr("Open background image"), surroundings_.host);
  if (file.isEmpty())
    return;
  ImageFile->setText(file);
  offerWorldFile(file);
}

void MappingWizardPage::offerWorldFile(const QString& picture) {
  const QString file = WorldFile::beside(picture);
  const QSize pixels = file.isEmpty() ? QSize() : pictureSize(picture);
  if (pixels.isEmpty())
    return;
  const auto refuse = [](const QString& reason) {
    tellUser(Severity::Warning, programTitle,
             tr("The world file beside the picture cannot be used. %1").arg(reason));
  };
  const WorldFile world = WorldFile::read(file);
  if (!world.fault().isEmpty())
    return refuse(world.fault());
  const PictureFrame frame = world.frame(pixels);
  const QString extentText = tr("%1 m by %2 m").arg(metres(frame.width), metres(frame.height));
  const QString originText = tr("%1, %2").arg(metres(frame.x), metres(frame.y));
  if (!canBeEntered(frame))
    return refuse(tr("Its extent of %1 at %2 cannot be entered here.").arg(extentText, originText));
  if (userAgrees(programTitle, tr("A world file beside the picture gives its origin as %1 and its "
                                  "extent as %2. Fill in these values?")
                                   .arg(originText, extentText)))
    take(frame);
}

void MappingWizardPage::take(const PictureFrame& frame) {
  XImage->setText(metres(frame.x));
  YImage->setText(metres(frame.y));
  WidthImport->setText(metres(frame.width));
  HeightImport->setText(metres(frame.height));
}

void MappingWizardPage::changeEvent(QEvent* event) {
  if (asksForTexts(*this, *event)) {
    retranslateUi(this);
    fields_.sayAgain();
  }
  QWizardPage::changeEvent(event);
}

} // namespace TVR::GUI
