#include "inspection/FileInspection.h"
#include "support/TestDirectory.h"

#include <gtest/gtest.h>

using TVR::Findings;
using TVR::inspectFile;

namespace {

class ProjectInspectionTest : public testing::Test, protected TestDirectory {
protected:
  Findings inspect(const QByteArray& content) const {
    QFile file(path("site.tvr"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    file.close();
    return inspectFile(file.fileName());
  }

  /// Inspects a project of two wells with these elements more.
  Findings inspectWith(const QByteArray& elements) const {
    return inspect("<TVR><__parameter_set>"
                   "<parameter><name>_kf</name><value>0.001</value></parameter>" +
                   elements + "</__parameter_set></TVR>");
  }

  static QByteArray wells(const QByteArray& cells, const QByteArray& rows = "2") {
    return "<parameter row=\"" + rows + "\" column=\"5\"><name>well_model</name>" + cells +
           "</parameter>";
  }
};

const QString noProject = "is no project file: it holds no parameter of a project";

} // namespace

TEST_F(ProjectInspectionTest, aProjectIsWithoutFault) {
  const Findings result = inspectWith(wells("<value row=\"0\" column=\"0\">P</value>"
                                            "<value row=\"1\" column=\"3\">0.001</value>"));
  EXPECT_EQ(result.errors, QStringList());
  EXPECT_EQ(result.warnings, QStringList());
}

TEST_F(ProjectInspectionTest, textThatIsNoXmlIsAnError) {
  EXPECT_EQ(inspect("[main]").errors,
            QStringList{"is no project file that can be read: expected well-formed XML"});
}

TEST_F(ProjectInspectionTest, xmlWithoutAnythingOfAProjectIsNone) {
  for (const char* const content :
       {"<a/>", "<html><body><p>kf?</p></body></html>", "<TVR><__parameter_set/></TVR>",
        "<TVR><__parameter_set><parameter><name>colour</name><value>1</value></parameter>"
        "</__parameter_set></TVR>",
        "<TVR><__parameter_set><parameter><name/><value>1</value></parameter>"
        "</__parameter_set></TVR>"})
    EXPECT_EQ(inspect(content).errors, QStringList{noProject}) << content;
}

TEST_F(ProjectInspectionTest, aFileOfThePreviousGenerationIsAProject) {
  EXPECT_EQ(inspect("<old><e><k>porosity</k><v>25</v></e></old>").errors, QStringList());
  EXPECT_EQ(inspect("<old><e><k>_aquifer_porosity</k><v>25</v></e></old>").errors,
            QStringList{noProject});
}

TEST_F(ProjectInspectionTest, aCellWithoutAPlaceInItsTableIsAnError) {
  for (const char* const place :
       {"row=\"2\" column=\"3\"", "row=\"-1\" column=\"3\"", "row=\"0\" column=\"5\"",
        "row=\"one\" column=\"3\"", "column=\"3\"", "row=\"0.5\" column=\"3\""}) {
    const Findings result = inspectWith(wells(QByteArray("<value ") + place + ">7</value>"));
    ASSERT_EQ(result.errors.size(), 1) << place;
    EXPECT_TRUE(result.errors[0].startsWith("well_model, row ")) << place;
    EXPECT_TRUE(result.errors[0].endsWith(
        "the table has no such cell; expected rows 0 to 1 and columns 0 to 4"))
        << result.errors[0].toStdString();
  }
}

TEST_F(ProjectInspectionTest, aCellThatIsNoNumberIsAnError) {
  EXPECT_EQ(inspectWith(wells("<value row=\"0\" column=\"3\">fast</value>")).errors,
            QStringList{"well_model, row \"0\", column \"3\": expected a number, found \"fast\""});
  EXPECT_EQ(inspectWith(wells("<value row=\"0\" column=\"3\">inf</value>")).errors.size(), 1);
}

TEST_F(ProjectInspectionTest, aTableWithMoreColumnsThanItHasIsAnError) {
  EXPECT_EQ(inspectWith("<parameter row=\"4\" column=\"3\"><name>well_demand_model</name>"
                        "</parameter>")
                .errors,
            QStringList{"well_demand_model: expected the numbers of rows and columns (at most 2), "
                        "found row=\"4\", column=\"3\""});
}

TEST_F(ProjectInspectionTest, aTableWithMoreRowsThanWellsAndPeriodsIsAnError) {
  const QByteArray rates = "<parameter row=\"3\" column=\"2\"><name>well_demand_model</name>"
                           "</parameter>";
  EXPECT_EQ(inspectWith(wells("") + rates).errors,
            QStringList{"well_demand_model: expected at most 2 rows, for 2 wells and 1 demand "
                        "periods, found 3"});
  EXPECT_EQ(inspectWith(wells("", "3") + rates).errors, QStringList());
}

TEST_F(ProjectInspectionTest, pairsOfWellAndPeriodBeyondTheLimitAreAnError) {
  EXPECT_EQ(inspectWith(wells("", "40") + "<parameter row=\"8760\" column=\"1\">"
                                          "<name>demand_model</name></parameter>")
                .errors,
            QStringList{"well_demand_model: expected at most 200000 pairs of well and demand "
                        "period, found 350400"});
}

TEST_F(ProjectInspectionTest, aParameterThatStandsTwiceIsAWarning) {
  const Findings result =
      inspectWith("<parameter><name>_kf</name><value>0.002</value></parameter>");
  EXPECT_EQ(result.errors, QStringList());
  EXPECT_EQ(result.warnings, QStringList{"_kf: stands twice; the last one counts"});
}
