#include "files/EntityEncoding.h"
#include "files/ProjectFiles.h"
#include "project/ParameterTable.h"
#include "tables/DemandModel.h"
#include "tables/WellDemandModel.h"
#include "tables/WellModel.h"

#include <QProcess>

#include <cmath>
#include <random>

namespace TVR::Data {
namespace {

using namespace Parameter;

using Table = QList<QStringList>;

Table textsOf(const QAbstractItemModel& model) {
  Table rows;
  for (int row = 0; row < model.rowCount(); ++row) {
    QStringList cells;
    for (int column = 0; column < model.columnCount(); ++column)
      cells << model.index(row, column).data(Qt::EditRole).toString();
    rows << cells;
  }
  return rows;
}

/// Saves and loads projects that nobody has thought of; the seed of a test gives always the same.
class ProjectFileRoundTripTest : public ProjectFileTest {
protected:
  int upTo(int most) { return std::uniform_int_distribution<int>(0, most)(random_); }

  double randomNumber() {
    const double mantissa = std::uniform_real_distribution<double>(-10, 10)(random_);
    return upTo(9) == 0 ? 0.0 : mantissa * std::pow(10.0, upTo(40) - 20);
  }

  /// Letters that survive, among them all that XML treats in a special way.
  QString randomText() {
    static const QString letters = QStringLiteral("ab Z09<>&\"'/\\;=[]{}%#\t\näöüÄÖÜßàÀÁáâÃÇçÈèÉé"
                                                  "ÊêÅå");
    QString text = "x"; // a text of blanks alone does not survive
    for (int i = upTo(20); i > 0; --i)
      text += letters[upTo(letters.size() - 1)];
    return text;
  }

  QVariant randomValue(const ParameterRow& row) {
    switch (row.kind) {
    case ParameterKind::Flag:
    case ParameterKind::Heading:
      return upTo(1) == 1;
    case ParameterKind::Count:
      return upTo(1000);
    case ParameterKind::Number:
      return randomNumber();
    default:
      return randomText();
    }
  }

  void makeRandomProject() {
    store.reset();
    store.setStored(SuperposeDrawdown, false);
    store.setValue(NumberOfDemandsPerYear, 1 + upTo(3));
    store.setValue(NumberOfWells, 2 * (1 + upTo(3)));
    for (const ParameterRow& row : parameterTable())
      if (!isSized(row.id) && upTo(5) > 0)
        store.setStored(row.id, randomValue(row));
    WellModel& wells = *store.wellModel();
    for (int row = 0; row < wells.rowCount(); ++row) {
      wells.setData(wells.index(row, WellModel::Name), randomText());
      for (int column = WellModel::X; column < WellModel::ColumnCount; ++column)
        wells.setData(wells.index(row, column), randomNumber());
    }
    WellDemandModel& rates = *store.wellDemandModel();
    for (int row = 0; row < rates.rowCount(); ++row)
      for (int column = WellDemandModel::Duration; column < WellDemandModel::ColumnCount; ++column)
        rates.setData(rates.index(row, column), randomNumber());
  }

  /// What the tables or the number of wells determine, and the language, which stays.
  static bool isSized(int id) {
    return id == NumberOfWells || id == NumberOfDemandsPerYear || id == GuiLanguage;
  }
  /// What the table of wells writes when it is read, since the number of its rows runs the rules.
  static bool isDerivedOnReading(int id) {
    return id == NumberOfWellsProvided || id == DMinUsed || id == ProvidedWellConfigurationOk;
  }

  QMap<int, QString> texts() const {
    QMap<int, QString> result;
    for (auto value = store.values().begin(); value != store.values().end(); ++value)
      if (!isDerivedOnReading(value.key()))
        result[value.key()] = value->toString();
    return result;
  }

  std::mt19937 random_{20250622};
};

TEST_F(ProjectFileRoundTripTest, aRandomProjectComesBackAsItWas) {
  const QString name = path("random.tvr");
  for (int i = 0; i < 300; ++i) {
    makeRandomProject();
    const QMap<int, QString> values = texts();
    const Table wells = textsOf(*store.wellModel());
    const Table demand = textsOf(*store.demandModel());
    const Table rates = textsOf(*store.wellDemandModel());
    ASSERT_TRUE(store.write(name, nullptr, {}));
    store.reset();
    ASSERT_TRUE(store.read(name, ids));

    const QMap<int, QString> found = texts();
    // Parameters without key share the lowest of their ids.
    for (auto value = values.begin(); value != values.end(); ++value)
      if (!store.key(value.key()).isEmpty()) {
        ASSERT_EQ(found.value(value.key()), *value) << "case " << i << " id " << value.key();
      }
    ASSERT_EQ(textsOf(*store.wellModel()), wells) << i;
    ASSERT_EQ(textsOf(*store.demandModel()), demand) << i;
    ASSERT_EQ(textsOf(*store.wellDemandModel()), rates) << i;
  }
}

TEST_F(ProjectFileRoundTripTest, aProjectThatWasReadIsWrittenTheSameAgain) {
  for (int i = 0; i < 30; ++i) {
    makeRandomProject();
    QByteArray texts[2];
    for (QByteArray& text : texts) {
      ASSERT_TRUE(store.write(path("first.tvr"), nullptr, {}));
      ASSERT_TRUE(store.read(path("first.tvr"), ids));
      const QDomDocument& document = written();
      for (QDomElement child = parameterSet(document).firstChildElement(); !child.isNull();
           child = child.nextSiblingElement())
        text += child.text().toUtf8() + '\n';
    }
    ASSERT_EQ(texts[0], texts[1]) << i;
  }
}

TEST_F(ProjectFileRoundTripTest, anotherReaderAcceptsRandomProjects) {
  QStringList names{"--noout"};
  for (int i = 0; i < 50; ++i) {
    makeRandomProject();
    names << path(QString("random%1.tvr").arg(i));
    ASSERT_TRUE(store.write(names.last(), nullptr, {}));
  }
  QProcess reader;
  reader.start("xmllint", names);
  ASSERT_TRUE(reader.waitForFinished());
  EXPECT_EQ(reader.exitCode(), 0) << reader.readAllStandardError().toStdString();
}

TEST_F(ProjectFileRoundTripTest, everyCharacterLeavesAFileThatCanBeRead) {
  for (int first = 0; first < 0x10000; first += 0x100) {
    QString text = "x";
    for (int c = std::max(first, 1); c < first + 0x100; ++c)
      text += QChar(c);
    store.setStored(ProjectDescription, text);
    ASSERT_TRUE(store.write(path("characters.tvr"), nullptr, {}));
    ASSERT_TRUE(store.read(path("characters.tvr"), ids)) << std::hex << first;
    EXPECT_EQ(stored(ProjectDescription).toString().left(1), "x") << std::hex << first;
  }
}

TEST_F(ProjectFileRoundTripTest, lettersOutsideTheTableGrow) {
  store.setStored(ProjectName, QStringLiteral("España Â"));
  ASSERT_TRUE(store.write(path("letters.tvr"), nullptr, {}));
  ASSERT_TRUE(store.read(path("letters.tvr"), ids));
  EXPECT_EQ(stored(ProjectName), QVariant(QStringLiteral("EspaÃ\u00b1a â")));
}

TEST_F(ProjectFileRoundTripTest, aPointComesBackAsNothing) {
  store.setValue(DefaultWellPosition, QPointF(3, 4));
  ASSERT_TRUE(store.write(path("point.tvr"), nullptr, {}));
  ASSERT_TRUE(store.read(path("point.tvr"), ids));
  EXPECT_EQ(store.value(DefaultWellPosition).toPointF(), QPointF());
}

} // namespace
} // namespace TVR::Data
