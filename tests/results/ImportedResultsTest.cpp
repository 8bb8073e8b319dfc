#include "results/ResultImport.h"

#include <QDomDocument>

#include <gtest/gtest.h>

namespace TVR {
namespace {

QDomDocument document(const QString& version, const QString& rest) {
  QDomDocument project;
  EXPECT_TRUE(project.setContent(QStringLiteral("<TVR><__application_version><__version>%1"
                                                "</__version></__application_version>%2</TVR>")
                                     .arg(version, rest)));
  return project;
}

ImportedResults resultsOfVersion(const QString& version) {
  return resultsOf(document(version, "<__graphic><CanvasEx Version=\"1.2\"/></__graphic>"),
                   "a.tvr");
}

QStringList idsOf(const QList<QDomElement>& items) {
  QStringList ids;
  for (const QDomElement& item : items)
    ids << item.attribute("id");
  return ids;
}

TEST(ImportedResults, threeCharactersOfTheVersionDecide) {
  EXPECT_TRUE(resultsOfVersion("1.2").hasResults);
  EXPECT_TRUE(resultsOfVersion("2.0.7").hasResults);
  EXPECT_FALSE(resultsOfVersion("1.19").hasResults) << "reads as 1.1";
  EXPECT_TRUE(resultsOfVersion("1.20").hasResults);
  EXPECT_FALSE(resultsOfVersion("1.1").hasResults);
  EXPECT_FALSE(resultsOfVersion("new").hasResults);
  EXPECT_FALSE(resultsOfVersion("").hasResults);
}

TEST(ImportedResults, aFileWithoutAVersionIsTooOld) {
  QDomDocument project;
  for (const char* text :
       {"<TVR><__graphic/></TVR>", "<TVR><__application_version/><__graphic/></TVR>",
        "<TVR><a><__application_version><__version>2.0</__version></__application_version></a>"
        "<__graphic/></TVR>"}) {
    ASSERT_TRUE(project.setContent(QByteArray(text)));
    EXPECT_FALSE(resultsOf(project, "a.tvr").hasResults) << text;
  }
}

TEST(ImportedResults, aFileWithoutAPageHasNone) {
  EXPECT_FALSE(resultsOf(document("2.0.7", ""), "a.tvr").hasResults);
  EXPECT_FALSE(resultsOf(document("2.0.7", "<a><__graphic/></a>"), "a.tvr").hasResults);
}

TEST(ImportedResults, gridItemsAreFoundAtAnyDepthInDocumentOrder) {
  const ImportedResults results = resultsOf(
      document("2.0.7",
               "<Item id=\"0\" Type=\"GraphicsGridDataItem\"/>"
               "<__graphic><CanvasEx Version=\"1.2\"><Items>"
               "<Item id=\"3\" Type=\"GraphicsPlotItem\"><Children>"
               "<Item id=\"7\" Type=\"GraphicsGridDataItem\"><Children>"
               "<Item id=\"8\" Type=\"GraphicsIsoline\"/></Children></Item></Children></Item>"
               "<Item id=\"5\" Type=\"GraphicsGridDataItem\"/><Item id=\"6\"/>"
               "<item id=\"9\" Type=\"GraphicsGridDataItem\"/>"
               "</Items></CanvasEx></__graphic>"),
      "a.tvr");
  EXPECT_EQ(idsOf(results.grids), (QStringList{"7", "5"}));
}

TEST(ImportedResults, theFormOfThePageIsZeroWhereItIsNotSaid) {
  const auto pageVersion = [](const char* graphic) {
    return resultsOf(document("2.0.7", graphic), "a.tvr").pageVersion;
  };
  EXPECT_EQ(pageVersion("<__graphic><CanvasEx Version=\"1.25\"/></__graphic>"), 1.25);
  EXPECT_EQ(pageVersion("<__graphic><CanvasEx/></__graphic>"), 0);
  EXPECT_EQ(pageVersion("<__graphic><CanvasEx Version=\"new\"/></__graphic>"), 0);
  EXPECT_EQ(pageVersion("<__graphic/>"), 0);
}

TEST(ImportedResults, areCalledByTheFile) {
  EXPECT_EQ(resultsOf(document("2.0.7", "<__graphic/>"), "/a dir/b.c/Größe 1.tvr").label,
            QString("File: Größe 1.tvr"));
}

TEST(ImportedResults, theNameInTheParametersIsNotTheNameThatIsLookedFor) {
  EXPECT_EQ(
      resultsOf(document("2.0.7", "<__parameter_set><name>x</name></__parameter_set>"), "a.tvr")
          .label,
      "File: a.tvr");
}

TEST(ImportedResults, anElementWithTheSlashInItsNameNamesTheProject) {
  QDomDocument project = document("2.0.7", "<__graphic/>");
  QDomElement name = project.createElement("__parameter_set/name");
  name.appendChild(project.createTextNode("Old town"));
  project.documentElement().appendChild(name);
  EXPECT_EQ(resultsOf(project, "a.tvr").label, "Project: Old town");
}

} // namespace
} // namespace TVR
