#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <cstddef>

namespace TVR::Study {

/// Which share of the parts of a study a process computes: those whose place, divided by the number
/// of shards, leaves `index`.
struct Shard {
  std::size_t index = 0; ///< from 0
  std::size_t count = 1;

  bool has(std::size_t part) const { return part % count == index; }
  /// "1-of-4" for the first one of four.
  QString name() const;
};

/// The directory in which a study keeps what it has computed. All files are named by what stands in
/// them, so that several processes may work in one, and what another one holds may be copied in:
///   base.tbat or base.tvr   the base of the study as it was when the study began
///   parts/NAME.part         finished parts, see Plan and PartFile.h
///   journals/ID-SHARD.journal  records of runs whose part is not finished, one file for each shard
///                           and one for what was collected
///   runs.csv                the table of all runs
///   answers.csv, results.sqlite, summary.json  what it answers, see AnswerTables.h
///   mesh.json               how good the mesh of the base is
class StudyFolder {
public:
  explicit StudyFolder(const QString& path) : path_(path) {}
  /// The folder of a study that names none: "NAME.study" beside "NAME.tstudy".
  static QString usualPath(const QString& studyFile);

  const QString& path() const { return path_; }
  /// Whether it has been made.
  bool isThere() const;
  /// Makes the directories. Ends with an empty text, or with the reason why that can't be.
  QString make() const;
  /// Where the base of a study is kept, which has the ending of `base`.
  QString base(const QString& base) const;
  QString part(const QByteArray& name) const;
  /// `owner`: the name of a shard, or "collected".
  QString journal(const QByteArray& layoutId, const QString& owner) const;
  QString table() const;
  /// What a study answers: the long table, the data base and the summary.
  QStringList answers() const;
  /// Everything that is written anew from all runs.
  QStringList tables() const { return QStringList{table()} + answers(); }
  QString mesh() const;
  /// All journals of a layout that are there.
  QStringList journals(const QByteArray& layoutId) const;
  /// All parts that are there.
  QStringList parts() const;

private:
  QString path_;
};

} // namespace TVR::Study
