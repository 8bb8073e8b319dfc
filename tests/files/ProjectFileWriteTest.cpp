#include "files/ProjectFiles.h"
#include "tables/DemandModel.h"
#include "tables/WellDemandModel.h"
#include "tables/WellModel.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>

namespace TVR::Data {
namespace {

using namespace Parameter;

class ProjectFileWriteTest : public ProjectFileTest {
protected:
  ProjectFileWriteTest() {
    store.setValue(NumberOfDemandsPerYear, 1);
    store.setValue(NumberOfWells, 2);
  }

  static QStringList namesOf(const QDomDocument& document) {
    QStringList names;
    for (QDomElement child = parameterSet(document).firstChildElement(); !child.isNull();
         child = child.nextSiblingElement())
      names << child.firstChildElement("name").text();
    return names;
  }
  static QStringList childrenOf(const QDomElement& element) {
    QStringList tags;
    for (QDomElement child = element.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement())
      tags << child.tagName();
    return tags;
  }
};

TEST_F(ProjectFileWriteTest, beginsWithTheTwoLiteralLines) {
  written();
  EXPECT_TRUE(bytesOf(path("written.tvr"))
                  .startsWith("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                              "<?xml-stylesheet type=\"text/xsl\" href=\"testresults.xsl\" ?>\n"
                              "<TVR>\n <__application_version>\n  <__version>2.0.7</__version>\n"));
}

TEST_F(ProjectFileWriteTest, rootHoldsVersionAndParameters) {
  const QDomElement root = written().documentElement();
  EXPECT_EQ(root.tagName(), "TVR");
  EXPECT_EQ(childrenOf(root), (QStringList{"__application_version", "__parameter_set"}));
}

TEST_F(ProjectFileWriteTest, buildIsDateBlankTime) {
  const QString build = written()
                            .documentElement()
                            .firstChildElement("__application_version")
                            .firstChildElement("__build")
                            .text();
  EXPECT_TRUE(QRegularExpression("^[A-Z][a-z]{2} [ 0-9][0-9] [0-9]{4} [0-9]{2}:[0-9]{2}:[0-9]{2}$")
                  .match(build)
                  .hasMatch())
      << build.toStdString();
}

TEST_F(ProjectFileWriteTest, aParameterHasNameValueAndEmptyUnit) {
  store.setValue(AquiferThickness, 12.5);
  const QDomElement thickness = element(written(), "aquifer_h");
  EXPECT_EQ(childrenOf(thickness), (QStringList{"name", "value", "unit"}));
  EXPECT_EQ(thickness.firstChildElement("value").text(), "12.5");
  EXPECT_FALSE(thickness.firstChildElement("unit").hasChildNodes());
}

TEST_F(ProjectFileWriteTest, parametersStandInTheOrderOfTheirIds) {
  const QDomDocument& document = written();
  QStringList expected;
  for (const int id : store.values().keys())
    expected << store.key(id);
  expected << "well_model"
           << "demand_model"
           << "well_demand_model";
  EXPECT_EQ(namesOf(document), expected);
}

TEST_F(ProjectFileWriteTest, aFlagIsAWord) {
  store.setStored(AquiferUnconfined, true);
  store.setStored(BackgroundImage, false);
  const QDomDocument& document = written();
  EXPECT_EQ(valueOf(document, "aquifer_unconfined"), "true");
  EXPECT_EQ(valueOf(document, "background_image"), "false");
}

TEST_F(ProjectFileWriteTest, aParameterWithoutKeyHasAnEmptyName) {
  store.setStored(BatchOutputFile, "result.out");
  const QDomElement found = element(written(), "");
  EXPECT_FALSE(found.isNull());
  EXPECT_EQ(found.firstChildElement("value").text(), "result.out");
}

TEST_F(ProjectFileWriteTest, lettersStandAsEscapedEntities) {
  store.setStored(ProjectName, QStringLiteral("Grundwasser Zürich <1>"));
  written();
  EXPECT_TRUE(bytesOf(path("written.tvr")).contains("Grundwasser Z&amp;uuml;rich &lt;1"));
}

TEST_F(ProjectFileWriteTest, controlCharactersAreLeftOut) {
  store.setStored(ProjectName, QString("a\x01"
                                       "b\x0b"
                                       "c\x1f"
                                       "d\te\nf"));
  EXPECT_EQ(valueOf(written(), "project_name"), "abcd\te\nf");
}

TEST_F(ProjectFileWriteTest, theWellTableHoldsAllColumns) {
  const QDomElement wells = element(written(), "well_model");
  EXPECT_EQ(wells.attribute("row"), "2");
  EXPECT_EQ(wells.attribute("column"), "5");
  EXPECT_EQ(childrenOf(wells).count("value"), 10);
}

TEST_F(ProjectFileWriteTest, aCellHasRowColumnAndEmptyUnit) {
  WellModel& model = *store.wellModel();
  model.setData(model.index(0, WellModel::X), 123.25);
  QDomElement value = element(written(), "well_model").firstChildElement("value");
  value = value.nextSiblingElement("value");
  EXPECT_EQ(value.text(), "123.25");
  EXPECT_EQ(value.attribute("row"), "0");
  EXPECT_EQ(value.attribute("column"), "1");
  EXPECT_TRUE(value.hasAttribute("unit"));
  EXPECT_EQ(value.attribute("unit"), "");
}

TEST_F(ProjectFileWriteTest, theTableOfRatesLeavesOutTwoColumnsButCountsThem) {
  store.setValue(NumberOfDemandsPerYear, 3);
  const QDomElement rates = element(written(), "well_demand_model");
  EXPECT_EQ(rates.attribute("row"), "6");
  EXPECT_EQ(rates.attribute("column"), "2");
  const QDomElement first = rates.firstChildElement("value");
  EXPECT_EQ(first.attribute("column"), "2");
  EXPECT_EQ(first.nextSiblingElement("value").attribute("column"), "3");
  EXPECT_EQ(childrenOf(rates).count("value"), 12);
}

TEST_F(ProjectFileWriteTest, withoutAWindowThereIsNoPage) {
  const QString name = path("plain.tvr");
  ASSERT_TRUE(store.write(name, nullptr, {{"plot_field_id", 3}}));
  EXPECT_FALSE(bytesOf(name).contains("graphic_ids"));
  EXPECT_FALSE(bytesOf(name).contains("__graphic>"));
}

TEST_F(ProjectFileWriteTest, isFalseWhereNoFileCanBe) {
  EXPECT_FALSE(store.write(path("no/such/directory/a.tvr"), nullptr, {}));
  EXPECT_FALSE(store.write(path("."), nullptr, {}));
}

TEST_F(ProjectFileWriteTest, anotherReaderAcceptsTheFile) {
  store.setStored(ProjectName, QStringLiteral("ä & <b> \"ñ\" \u20ac ]]> \x02 \r end"));
  written();
  QProcess reader;
  reader.start("xmllint", {"--noout", path("written.tvr")});
  ASSERT_TRUE(reader.waitForFinished());
  EXPECT_EQ(reader.exitCode(), 0) << reader.readAllStandardError().toStdString();
}

} // namespace
} // namespace TVR::Data
