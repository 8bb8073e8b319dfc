#pragma once

#include "study/pest/Observations.h"
#include "study/plan/StudyFile.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <vector>

namespace TVR::Study {

/// A parameter that is to be calibrated.
struct CalibratedKey {
  QString name; ///< that the calibration calls it by: of at most 12 characters
  VariedKey varied;
  double start; ///< where the calibration begins
};

/// What of a study can't be calibrated, a line each with what was expected: it needs keys that vary
/// in a range each, and a base (`content`) that lacks one of the characters that mark a number.
QStringList calibrationFaults(const StudyFile& study, const QByteArray& content);

/// The varied keys of a study with short names of their own. The calibration begins at the numbers
/// of the base, `baseNumbers` one for each, or at the median where the base lies outside of the
/// distribution.
std::vector<CalibratedKey> calibratedKeys(const std::vector<VariedKey>& varied,
                                          const std::vector<double>& baseNumbers);

/// The files by which a program of the PEST family calibrates a base (Doherty, PEST
/// model-independent parameter estimation, user manual): the batch file with marks in the place of
/// the numbers, how to read what a run answers, and what is to be estimated from what by which
/// command. Parameters run over the range that holds 99.8 % of their distribution, as logarithms
/// where that is one of them. Of a study without calibrationFaults.
QByteArray calibrationTemplate(const QByteArray& base, const std::vector<CalibratedKey>& keys);
QByteArray calibrationInstructions(const std::vector<Observation>& observations);
QByteArray calibrationControl(const std::vector<CalibratedKey>& keys,
                              const std::vector<Observation>& observations);

/// The names of these files and of those that a run reads and writes, in the folder of a
/// calibration.
namespace CalibrationFile {
inline constexpr char base[] = "site.tbat";
inline constexpr char markedBase[] = "site.tpl";
inline constexpr char instructions[] = "site.ins";
inline constexpr char control[] = "site.pst";
inline constexpr char observations[] = "observations.csv";
inline constexpr char simulated[] = "site.obs";
} // namespace CalibrationFile

} // namespace TVR::Study
