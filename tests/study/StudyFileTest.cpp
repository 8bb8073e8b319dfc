#include "study/plan/StudyFile.h"

#include "study/plan/ValueTable.h"
#include "support/TestDirectory.h"

#include <gtest/gtest.h>

using namespace TVR;
using namespace TVR::Study;

namespace {

class StudyFileTest : public testing::Test, protected TestDirectory {
protected:
  StudyFileTest() { write("base.tbat", "[main]\n"); }

  QString write(const QString& name, const QByteArray& content) const {
    QFile file(path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    return file.fileName();
  }

  StudyFile read(const QByteArray& content) {
    findings = {};
    return readStudyFile(write("a.tstudy", content), findings);
  }

  /// The one error of a study with these lines, or all of them.
  std::string error(const QByteArray& vary, const QByteArray& study = {},
                    const QByteArray& rest = {}) {
    read("[study]\nbase=base.tbat\n" + study + "[vary]\n" + vary + rest);
    return findings.errors.join('|').toStdString();
  }

  /// So many varied keys.
  static QByteArray places(int count) {
    QByteArray lines;
    for (int well = 1; well <= count; ++well)
      lines += "well_model\\" + QByteArray::number(well) + "\\1=uniform(0, 1)\n";
    return lines;
  }

  ValueTable readTable(const QByteArray& content) {
    findings = {};
    return readValueTable(write("t.csv", content), 4, findings);
  }

  Findings findings;
};

} // namespace

TEST_F(StudyFileTest, everyKeyIsRead) {
  const StudyFile study =
      read("; a comment\n[study]\nbase=base.tbat\nsampler=sobol\nruns=64\nseed=9\n"
           "time_limit=2.5\nruns_per_part=8\n"
           "[vary]\nkf=uniform(0.001, 0.002)\nwell_model\\2\\4=list(-3, -4)\n"
           "[correlations]\nkf, well_model\\2\\4=0.3\n"
           "[answers]\nquantities=temperature plume_area\ntimes=30, 10\n"
           "levels=1 -1\nraster=1, 2, 300, 400\nraster_cell=5\nmesh_bands=true\n");
  EXPECT_EQ(findings.errors, QStringList());
  EXPECT_EQ(study.base, path("base.tbat"));
  EXPECT_EQ(study.sampler, Sampler::Sobol);
  EXPECT_EQ(study.runs, 64U);
  EXPECT_EQ(study.seed, 9U);
  EXPECT_EQ(study.timeLimit, 2.5);
  EXPECT_EQ(study.runsPerPart, 8U);
  ASSERT_EQ(study.varied.size(), 2U);
  EXPECT_EQ(study.varied[0].key.section, "hydraulic");
  EXPECT_EQ(study.varied[1].key.cell->row, 1);
  ASSERT_EQ(study.correlations.size(), 1U);
  EXPECT_EQ(study.correlations[0].correlation, 0.3);
  EXPECT_EQ(study.quantities, (QStringList{"temperature", "plume_area"}));
  EXPECT_EQ(study.times, (std::vector<double>{10, 30}));
  EXPECT_EQ(study.levels, (std::vector<double>{-1, 1}));
  EXPECT_EQ(study.raster->height, 400);
  EXPECT_EQ(*study.rasterCell, 5);
  EXPECT_TRUE(study.meshBands);
}

TEST_F(StudyFileTest, aMistakeIsToldWithLineKeyAndWhatWasExpected) {
  EXPECT_EQ(error("kf=uniform(2, 1)\n"),
            "line 4, [vary] kf: expected uniform(LEAST, GREATEST), the first below the second, "
            "found \"uniform(2, 1)\"");
  EXPECT_EQ(
      error("kg=uniform(1, 2)\n"),
      "line 4, [vary] kg: expected the key of a number in a batch file, such as kf, or a cell "
      "of its tables, such as well_model\\1\\3");
  EXPECT_EQ(error("kf=uniform(1, 20)\n"),
            "line 4, [vary] kf: expected values within 1e-08 to 10 m/s, found \"uniform(1, 20)\"");
  EXPECT_EQ(error("kf=uniform(1, 2)\n", "runs=0\n"),
            "line 3, [study] runs: expected a whole number from 1 to 10000000, found \"0\"");
  EXPECT_EQ(error("kf=uniform(1, 2)\n", "sampler=random\n"),
            "line 3, [study] sampler: expected latin-hypercube, sobol, grid or table, found "
            "\"random\"");
  EXPECT_EQ(error("kf=uniform(1, 2)\n", "colour=red\n").substr(0, 48),
            "line 3, [study] colour: expected one of the keys");
  EXPECT_EQ(
      error("kf=uniform(1, 2)\n", {}, "[answers]\nlevels=0\n"),
      "line 6, [answers] levels: expected temperature changes in K other than 0, up to 100 of "
      "them, found \"0\"");
  EXPECT_EQ(error("kf=uniform(1, 2)\nkf=uniform(1, 3)\n"),
            "line 5, [vary] kf: expected one line with this key, but line 4 has it too");
  EXPECT_EQ(error("kf=uniform(1, 2)\n", "nonsense\n"),
            "line 3: expected a section in brackets or key=value, found \"nonsense\"");
}

TEST_F(StudyFileTest, bandsOfTheMeshAreForWhoAsksForThem) {
  EXPECT_FALSE(read("[study]\nbase=base.tbat\n[vary]\nkf=uniform(1, 2)\n").meshBands);
  EXPECT_EQ(error("kf=uniform(1, 2)\n", {}, "[answers]\nmesh_bands=false\n"), "");
  EXPECT_EQ(error("kf=uniform(1, 2)\n", {}, "[answers]\nmesh_bands=yes\n"),
            "line 6, [answers] mesh_bands: expected true or false, found \"yes\"");
}

TEST_F(StudyFileTest, whatIsMissingOrDoesNotGoTogetherIsTold) {
  EXPECT_EQ(error(""), "[vary]: expected a key that is varied, as in kf=log-uniform(0.001, 0.01)");
  read("[study]\nbase=none.tbat\n[vary]\nkf=uniform(1, 2)\n");
  EXPECT_EQ(findings.errors.join('|').toStdString(),
            "line 2, [study] base: expected the name of a batch file or project file beside the "
            "study, found \"none.tbat\"");
  const QByteArray pair = "kf=uniform(1, 2)\naquifer_h=uniform(5, 9)\n";
  EXPECT_EQ(error(pair, "sampler=grid\n", "[correlations]\nkf, aquifer_h=0.5\n"),
            "[correlations]: expected sampler=latin-hypercube or sampler=sobol beside them");
  EXPECT_EQ(error(pair, {}, "[correlations]\nkf, aquifer_h=1.5\n"),
            "line 7, [correlations] kf, aquifer_h: expected -0.99 to 0.99, found \"1.5\"");
  EXPECT_EQ(error("kf=uniform(1, 2)\n", "sampler=table\n"),
            "[study] table: expected the name of a CSV table for sampler=table|[vary]: expected no "
            "keys beside sampler=table, whose columns name them");
}

TEST_F(StudyFileTest, keysThatDecideHowManyWellsThereAreAreNotVaried) {
  for (const char* key : {"number_of_wells", "number_of_demands_per_year", "output_file",
                          "write_tecplot_output", "heat_conductivity_stone", "well_model\\1\\0"})
    EXPECT_FALSE(studyKey(key)) << key;
  for (const char* key : {"kf", "simulation_time", "exchange_caprock", "well_model\\1\\1",
                          "demand_model\\2\\0", "well_demand_model\\1\\2"})
    EXPECT_TRUE(studyKey(key)) << key;
}

TEST_F(StudyFileTest, flagsAndCountsTakeAListOfWholeNumbersOnly) {
  EXPECT_EQ(error("exchange_caprock=list(0, 1)\n"), "");
  EXPECT_EQ(error("exchange_caprock=uniform(0, 1)\n"),
            "line 4, [vary] exchange_caprock: expected list(VALUE, ...) of whole numbers, found "
            "\"uniform(0, 1)\"");
}

TEST_F(StudyFileTest, aTableHasOneRunARow) {
  const ValueTable table =
      readValueTable(write("t.csv", "kf,well_model\\2\\4\n0.001,-3\n\n0.002,-4\n"), 2, findings);
  EXPECT_EQ(findings.errors, QStringList());
  ASSERT_EQ(table.rows(), 2U);
  EXPECT_EQ(table.columns[0], (std::vector<double>{0.001, 0.002}));
  EXPECT_EQ(table.columns[1], (std::vector<double>{-3, -4}));
}

TEST_F(StudyFileTest, aMistakeInATableIsToldWithLineAndKey) {
  EXPECT_EQ(readTable("kf;aquifer_h\n0.001;10\n99;x\n").rows(), 0U);
  EXPECT_EQ(findings.errors,
            (QStringList{"t.csv, line 3: kf: expected 1e-08 to 10 m/s, found \"99\"",
                         "t.csv, line 3: aquifer_h: expected 0.01 to 2000 m, found \"x\""}));
  readTable("kf,kf\n");
  EXPECT_EQ(findings.errors,
            QStringList{"t.csv, line 1: expected each key once, found \"kf\" again"});
}

TEST_F(StudyFileTest, flagsAndCountsOfATableAreWholeNumbers) {
  readTable("exchange_caprock,max_number_of_fv_elements\n0.5,200.7\n");
  EXPECT_EQ(findings.errors.value(0),
            "t.csv, line 2: exchange_caprock: expected a whole number, 0 to 1, found \"0.5\"");
  EXPECT_TRUE(findings.errors.value(1).startsWith(
      "t.csv, line 2: max_number_of_fv_elements: expected a whole number, "));
  EXPECT_EQ(readTable("exchange_caprock,max_number_of_fv_elements\n1,200\n").rows(), 1U);
}

TEST_F(StudyFileTest, aTableHasNoMoreRowsThanAStudyMayHaveRuns) {
  EXPECT_EQ(readTable("kf\n1\n2\n3\n4\n").rows(), 4U);
  EXPECT_EQ(readTable("kf\n1\n2\n3\n4\n5\n").rows(), 0U);
  EXPECT_EQ(findings.errors, QStringList("t.csv, line 6: expected at most 4 rows of values"));
}

TEST_F(StudyFileTest, keysOfATableMayStandInQuotes) {
  const ValueTable table = readTable("\"kf\",\"well_model\\2\\4\"\n\"0.001\",-3\n");
  EXPECT_EQ(findings.errors, QStringList());
  ASSERT_EQ(table.keys.size(), 2U);
  EXPECT_EQ(table.keys[1].name, "well_model\\2\\4");
  EXPECT_EQ(table.columns[0], std::vector<double>{0.001});
}

TEST_F(StudyFileTest, aPairOfKeysIsCorrelatedOnce) {
  const QByteArray pair = "kf=uniform(1, 2)\naquifer_h=uniform(5, 9)\n";
  for (const char* again : {"kf aquifer_h", "aquifer_h, kf"})
    EXPECT_EQ(error(pair, {}, QByteArray("[correlations]\nkf, aquifer_h=0.5\n") + again + "=0.4\n"),
              "line 8, [correlations] " + std::string(again) +
                  ": expected one line for each pair of keys, but another one has it too");
}

TEST_F(StudyFileTest, aKeyThatTheSamplerHasNoUseForIsTold) {
  const auto isRefused = [this](const char* sampler, const QByteArray& line) {
    const QByteArray key = line.left(line.indexOf('='));
    return error("kf=uniform(1, 2)\n", QByteArray("sampler=") + sampler + '\n' + line + '\n')
               .find(("line 4, [study] " + key + ": expected no such key beside sampler=" + sampler)
                         .toStdString()) != std::string::npos;
  };
  write("t.csv", "kf\n1\n");
  for (const char* sampler : {"latin-hypercube", "sobol", "grid", "table"}) {
    const bool isGrid = sampler == QString("grid");
    const bool isTable = sampler == QString("table");
    EXPECT_EQ(isRefused(sampler, "runs=5"), isGrid || isTable) << sampler;
    EXPECT_EQ(isRefused(sampler, "seed=5"), isGrid || isTable) << sampler;
    EXPECT_EQ(isRefused(sampler, "grid_points=3"), !isGrid) << sampler;
    EXPECT_EQ(isRefused(sampler, "table=t.csv"), !isTable) << sampler;
    EXPECT_FALSE(isRefused(sampler, "time_limit=5")) << sampler;
  }
}

TEST_F(StudyFileTest, aGridHasNoMoreRunsThanAnyStudy) {
  const QByteArray grid = "sampler=grid\ngrid_points=1000\n";
  const QByteArray keys = "kf=uniform(1, 2)\naquifer_h=uniform(5, 9)\n";
  const QByteArray ten = "aquifer_porosity=list(0.1, 0.1, 0.1, 0.1, 0.1, 0.1, 0.1, 0.1, 0.1, 0.1";
  EXPECT_EQ(error(keys + ten + ")\n", grid), "");
  EXPECT_EQ(error(keys + ten + ", 0.2)\n", grid),
            "[study] grid_points: expected at most 10000000 runs of 3 keys, found 11000000");
  // a product of more digits than a whole number has
  EXPECT_NE(error(places(8), "sampler=grid\ngrid_points=256\n"), "");
}

TEST_F(StudyFileTest, aSampleHasAsManyValuesAsMemoryHolds) {
  EXPECT_EQ(error(places(20), "runs=5000000\n"), "");
  EXPECT_EQ(error(places(20), "runs=5000001\n"),
            "[study] runs: expected at most 5000000 runs of 20 keys, found 5000001");
}

TEST_F(StudyFileTest, theSequenceHasSoManyKeys) {
  EXPECT_EQ(error(places(3667), "sampler=sobol\n"), "");
  EXPECT_EQ(error(places(3668), "sampler=sobol\n"),
            "[vary]: expected at most 3667 keys for sampler=sobol, found 3668");
}

TEST_F(StudyFileTest, aDistributionThatLiesElsewhereIsRefused) {
  EXPECT_EQ(error("aquifer_porosity=normal(20, 5)\n"),
            "line 4, [vary] aquifer_porosity: expected a distribution of which 1 % or more lies "
            "within 0.001 to 1, found \"normal(20, 5)\"");
  EXPECT_EQ(
      error("kf=log-normal(0.0025, 1.05) within 0.1 to 0.2\n"),
      "line 4, [vary] kf: expected a distribution of which 1 % or more lies within 0.1 to 0.2 "
      "m/s, found \"log-normal(0.0025, 1.05) within 0.1 to 0.2\"");
  EXPECT_EQ(error("aquifer_porosity=normal(0.3, 0.1)\n"), "");
  EXPECT_EQ(findings.warnings, QStringList());
  EXPECT_EQ(error("aquifer_porosity=normal(1.1, 0.1)\n"), "");
  EXPECT_EQ(
      findings.warnings,
      QStringList("line 4, [vary] aquifer_porosity: 16 % of the distribution lie within 0.001 "
                  "to 1, the rest is cut off"));
}
