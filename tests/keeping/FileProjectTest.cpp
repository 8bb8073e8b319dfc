#include "keeping/FileProject.h"

#include "project/UserWork.h"
#include "support/ProjectTest.h"

namespace TVR {
namespace {

using namespace Parameter;

class FileProjectTest : public ProjectTest {
protected:
  /// A file of the project in the store.
  QString saved() {
    EXPECT_TRUE(store.write(path("p.tvr"), nullptr, {}));
    return path("p.tvr");
  }
  /// The project as the store reads it.
  Project readByTheStore(const QString& file) {
    QMap<QString, int> fieldIds;
    EXPECT_TRUE(store.read(file, fieldIds));
    return store.project();
  }
};

TEST_F(FileProjectTest, isWhatTheStoreWouldRead) {
  read(BatchProject::doublet());
  store.setValue(ProjectName, "Riverside");
  const QString file = saved();
  const auto project = projectOf(file);
  ASSERT_TRUE(project);
  EXPECT_TRUE(isSameWork(*project, readByTheStore(file)));
  EXPECT_EQ(project->values[ProjectName], "Riverside");
  EXPECT_EQ(project->wells.names, (QMap<int, QString>{{0, "Pump"}, {1, "Return"}}));
  EXPECT_EQ(project->wells.positions[1], QPointF(40, 0));
}

TEST_F(FileProjectTest, hasTheRatesOfEachPeriod) {
  read(BatchProject::seasons());
  const QString file = saved();
  const auto project = projectOf(file);
  ASSERT_TRUE(project);
  EXPECT_TRUE(isSameWork(*project, readByTheStore(file)));
  EXPECT_EQ(project->wells.periodRates[1][1], 0.002);
  EXPECT_EQ(project->durations.size(), 2);
}

TEST_F(FileProjectTest, leavesTheStoreAlone) {
  read(BatchProject::doublet());
  const QString file = saved();
  store.setValue(ProjectName, "Hill");
  const Project before = store.project();
  projectOf(file);
  EXPECT_TRUE(store.project() == before);
}

TEST_F(FileProjectTest, ofADamagedFileThereIsNone) {
  read(BatchProject::doublet());
  const QByteArray whole = contentOf(saved());
  QFile file(path("half.tvr"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(whole.left(whole.size() / 2));
  file.close();
  EXPECT_FALSE(projectOf(path("half.tvr")));
  EXPECT_FALSE(projectOf(path("missing.tvr")));
}

} // namespace
} // namespace TVR
