#pragma once

#include <QCommandLineOption>
#include <QList>
#include <QString>

#include <cstddef>

class QCommandLineParser;

namespace TVR::Study {

/// What the command line says of machines that compute shards.
struct SubmitSettings {
  bool toSlurm = false;   ///< else with GNU parallel
  std::size_t shards = 0; ///< 0: as many as suit the study
  QString hosts;          ///< see parallelArguments
  QString program;        ///< how they call tevrane-study; empty: as this program is called
};

/// The options of the command line about engines.
struct SubmitOptions {
  QList<QCommandLineOption> all() const;
  /// Fills the settings in; returns what is wrong, or nothing.
  QString read(const QCommandLineParser& parser, const QString& command,
               SubmitSettings& settings) const;

  const QCommandLineOption slurm{"slurm", "submit: hand the shards to Slurm, as a job array."};
  const QCommandLineOption parallel{
      "parallel", "submit: compute the shards with GNU parallel, on this machine or on --hosts."};
  const QCommandLineOption hosts{
      "hosts",
      "submit --parallel: compute on <HOSTS>, which are reached by ssh: names with commas between "
      "them (user@host, 8/host for eight shards at a time, : for this machine), or @FILE with one "
      "a line.",
      "HOSTS"};
  const QCommandLineOption program{
      "program", "submit: <PATH> of tevrane-study there (default: as on this machine).", "PATH"};
  const QCommandLineOption shards{
      "shards",
      "submit, status: <N> shares of the runs (default of submit: 20 to 100, by the size of the "
      "study).",
      "N"};
};

} // namespace TVR::Study
