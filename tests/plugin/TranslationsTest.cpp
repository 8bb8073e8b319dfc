#include "messages/PluginText.h"
#include "plugin/Languages.h"
#include "plugin/PluginTest.h"

#include <QDir>
#include <QTranslator>

using namespace TVR;
using namespace TVR::Parameter;

namespace {

class TranslationsTest : public PluginTest {
protected:
  TVRPlugin plugin;
};

QString textOfQt() {
  return QCoreApplication::translate("QPlatformTheme", "Cancel");
}

/// A text of the program and one of Qt, in the language that the plug-in's slot chooses.
QStringList textsAfter(TVRPlugin& plugin, const char* slot) {
  QMetaObject::invokeMethod(&plugin, slot);
  return {PluginText::tr("Withdrawal wells"), textOfQt()};
}

/// Both texts in German, of translators that are installed in the order of the files.
QStringList textsOf(const QStringList& files) {
  const QString directory = QCoreApplication::applicationDirPath() + "/../translations";
  std::vector<std::unique_ptr<QTranslator>> translators;
  for (const QString& file : files) {
    auto& translator = translators.emplace_back(std::make_unique<QTranslator>());
    EXPECT_TRUE(translator->load(file, directory)) << file.toStdString();
    QCoreApplication::installTranslator(translator.get());
  }
  return {PluginText::tr("Withdrawal wells"), textOfQt()};
}

} // namespace

TEST_F(TranslationsTest, aChosenLanguageIsThatOfTheProgramAndOfQt) {
  EXPECT_EQ(textsAfter(plugin, "setGerman"), (QStringList{"Entnahmebrunnen", "Abbrechen"}));
  EXPECT_EQ(textsAfter(plugin, "setFrench"), (QStringList{"Puits de prélèvement", "Annuler"}));
  EXPECT_EQ(textsAfter(plugin, "setEnglish"), (QStringList{"Withdrawal wells", "Cancel"}));
}

TEST_F(TranslationsTest, theOrderOfTheFilesDoesNotMatter) {
  const QStringList german{"Entnahmebrunnen", "Abbrechen"};
  EXPECT_EQ(textsOf({"qtbase_de.qm", "tevrane_de.qm"}), german);
  EXPECT_EQ(textsOf({"tevrane_de.qm", "qtbase_de.qm"}), german);
}

TEST_F(TranslationsTest, labelsOfParametersAreTranslated) {
  EXPECT_EQ(store.label(HydraulicConductivity), QVariant("Hydraulic conductivity"));
  QMetaObject::invokeMethod(&plugin, "setGerman");
  EXPECT_EQ(store.label(HydraulicConductivity), QVariant("Durchlässigkeitsbeiwert"));
  QMetaObject::invokeMethod(&plugin, "setFrench");
  EXPECT_EQ(store.label(Drawdown), QVariant("Rabattement"));
}

TEST_F(TranslationsTest, anotherLanguageIsEnglish) {
  QMetaObject::invokeMethod(&plugin, "setGerman");
  QMetaObject::invokeMethod(&plugin, "setLanguage", Q_ARG(QString, "it"), Q_ARG(bool, true));
  EXPECT_EQ(store.value(GuiLanguage), QVariant("en"));
  EXPECT_EQ(PluginText::tr("Withdrawal wells"), "Withdrawal wells");
}
