#include "gui/DesignPropertyEditor.h"

#include "support/ContextTranslator.h"
#include "support/ProjectTest.h"

#include <QSignalSpy>
#include <QtTest>

using namespace TVR;
using namespace TVR::Parameter;

namespace {

class DesignPropertyEditorTest : public ProjectTest {
protected:
  template <typename Child>
  Child& child(const char* name) {
    auto* const found = editor.findChild<Child*>(name);
    EXPECT_TRUE(found) << name;
    return *found;
  }
  /// The value of a parameter as the panel shows it.
  QString shown(int id) { return editor.tree().propertyOfId().at(id)->valueText(); }
  QString nameOf(int id) { return editor.tree().propertyOfId().at(id)->propertyName(); }
  QStringList hiddenWidgets() {
    QStringList hidden;
    for (const char* const name :
         {"progressBar_total", "progressBar_step", "message_label", "stop_button"})
      if (child<QWidget>(name).isHidden())
        hidden << name;
    return hidden;
  }

  GUI::DesignPropertyEditor editor{store};
};

} // namespace

TEST_F(DesignPropertyEditorTest, hasTheWidgetsOfItsForm) {
  EXPECT_EQ(editor.windowTitle(), "Design Properties");
  EXPECT_FALSE(child<QLabel>("tvr_label").pixmap(Qt::ReturnByValue).isNull());
  EXPECT_EQ(child<QLabel>("message_label").text(), "not saved");
  EXPECT_EQ(child<QLabel>("file_label").text(), "not saved");
  EXPECT_FALSE(child<QAbstractButton>("stop_button").icon().isNull());
  EXPECT_TRUE(child<QFrame>("frame").findChild<QtTreePropertyBrowser*>());
  EXPECT_EQ(child<QAbstractButton>("editButton").text(), "Edit");
  EXPECT_EQ(child<QAbstractButton>("applyAndRunButton").text(), "Apply + Run");
  for (const char* const button : {"editButton", "applyAndRunButton"})
    EXPECT_FALSE(child<QAbstractButton>(button).icon().isNull()) << button;
  editor.showProgress(true);
  editor.resize(300, 500);
  editor.show();
  for (const char* const name : {"progressBar_step", "progressBar_total"})
    EXPECT_EQ(child<QProgressBar>(name).height(), 6) << name;
}

TEST_F(DesignPropertyEditorTest, showsProgressOnlyWhenItIsToldTo) {
  const QStringList all{"progressBar_total", "progressBar_step", "message_label", "stop_button"};
  EXPECT_EQ(hiddenWidgets(), all);
  editor.showProgress(true);
  EXPECT_EQ(hiddenWidgets(), QStringList());
  editor.showProgress(false);
  EXPECT_EQ(hiddenWidgets(), all);
}

TEST_F(DesignPropertyEditorTest, theButtonWantsTheRunToEndAsSoonAsItIsPressed) {
  const QSignalSpy cancelled(&editor, &GUI::DesignPropertyEditor::processCanceled);
  editor.showProgress(true);
  QTest::mousePress(&child<QAbstractButton>("stop_button"), Qt::LeftButton);
  EXPECT_EQ(cancelled.size(), 1);
  editor.cancelProcess();
  EXPECT_EQ(cancelled.size(), 2);
}

TEST_F(DesignPropertyEditorTest, showsValuesInTheUnitsOfForms) {
  store.setValue(ProjectName, "Three wells");
  store.setValue(HydraulicConductivity, 0.002);
  store.setValue(SimulationTime, 31557600.0 * 12);
  store.setValue(AquiferPorosity, 0.25);
  editor.updatePropertyView();
  EXPECT_EQ(shown(ProjectName), "Three wells");
  EXPECT_EQ(shown(HydraulicConductivity), "0.002 m/s");
  EXPECT_EQ(shown(SimulationTime), "12.00 a");
  EXPECT_EQ(shown(EffectivePorosity), "25.00 %");
}

TEST_F(DesignPropertyEditorTest, aProjectThatIsCalledByANumberKeepsItsName) {
  store.setValue(ProjectName, "0815");
  editor.updatePropertyView();
  EXPECT_EQ(shown(ProjectName), "0815");
}

TEST_F(DesignPropertyEditorTest, followsTheStoreOnceForManyChanges) {
  const QSignalSpy changes(editor.tree().manager(), &QtVariantPropertyManager::valueChanged);
  store.setValue(ProjectName, "a");
  store.setValue(ProjectName, "b");
  EXPECT_EQ(changes.size(), 0);
  QCoreApplication::processEvents();
  EXPECT_EQ(changes.size(), 1);
  EXPECT_EQ(shown(ProjectName), "b");
}

TEST_F(DesignPropertyEditorTest, namesTheFile) {
  EXPECT_EQ(editor.shownFile(), "");
  editor.showFile("/projects/school.tvr");
  EXPECT_EQ(child<QLabel>("file_label").text(), "/projects/school.tvr");
  EXPECT_EQ(editor.shownFile(), "/projects/school.tvr");
  editor.showFile({});
  EXPECT_EQ(child<QLabel>("file_label").text(), "not saved");
  EXPECT_EQ(editor.shownFile(), "");
}

TEST_F(DesignPropertyEditorTest, aLongFileNameNeedsNoWidth) {
  const int before = editor.minimumSizeHint().width();
  editor.showFile(QString("/folder").repeated(50) + "/p.tvr");
  EXPECT_EQ(editor.minimumSizeHint().width(), before);
}

TEST_F(DesignPropertyEditorTest, followsTheLanguage) {
  const ContextTranslator translator;
  QCoreApplication::sendPostedEvents();
  QCoreApplication::processEvents();
  QEvent change(QEvent::LanguageChange);
  QCoreApplication::sendEvent(&editor, &change);
  const QString context = "TVR::GUI::DesignPropertyEditor/";
  EXPECT_EQ(editor.windowTitle(), context + "Design Properties");
  EXPECT_EQ(child<QLabel>("file_label").text(), context + "not saved");
  EXPECT_EQ(editor.shownFile(), "");
  EXPECT_EQ(child<QAbstractButton>("editButton").text(), context + "Edit");
  EXPECT_EQ(nameOf(NumberOfWells), "TVR::ParameterName/Number of wells");
  EXPECT_EQ(nameOf(EffectivePorosity), "TVR::ParameterName/Porosity");
  EXPECT_EQ(nameOf(HeadingLastResults), "TVR::ParameterName/Last results");
  EXPECT_EQ(shown(AquiferUnconfined), "QtVariantPropertyManager/False");
}

TEST_F(DesignPropertyEditorTest, anotherLanguageKeepsWhatWasTyped) {
  editor.enableEditing();
  QtProperty& typed = *editor.tree().propertyOfId().at(ExchangeCaprock);
  const bool before = typed.value().toBool();
  typed.setValue(!before);
  editor.retranslate();
  EXPECT_EQ(typed.value(), QVariant(!before));
  EXPECT_TRUE(typed.isModified());
  EXPECT_EQ(child<QAbstractButton>("editButton").text(), "Stop editing");
}

TEST_F(DesignPropertyEditorTest, anotherLanguageKeepsFileAndMessage) {
  editor.showFile("/projects/school.tvr");
  editor.showProgress(true);
  child<QLabel>("message_label").setText("Simulate t = 3.00 a");
  editor.retranslate();
  EXPECT_EQ(editor.shownFile(), "/projects/school.tvr");
  EXPECT_EQ(child<QLabel>("message_label").text(), "Simulate t = 3.00 a");
}
