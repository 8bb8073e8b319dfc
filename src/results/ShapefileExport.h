#pragma once

#include "results/IsolineWalk.h"

#include <QCoreApplication>

#include <shapefil.h>

namespace BrenvikApp {
class ApplicationInterface;
}

namespace TVR {

class ShapefileSet;

/// Writes the isolines of the result page to an ESRI shapefile: one polyline record for each piece
/// of a line, drawdown before temperatures. A table beside it names the project, the parameter and
/// the level of each record; its texts are UTF-8, which a `.cpg` file says. A project without a
/// name goes by that of its file. Failures are told to the user and end the export; an older
/// shapefile then stays as it was.
class ShapefileExport {
  Q_DECLARE_TR_FUNCTIONS(TVR::ShapefileExport)

public:
  explicit ShapefileExport(const PageAccess& page) : page_(page) {}

  /// Asks for the file and for what goes into it, and writes it. Nothing happens without a page
  /// with results. `host` may be null.
  void ask(BrenvikApp::ApplicationInterface* host) const;

  /// Writes `fileName`, with or without one of the endings, as .shp, .shx and .dbf beside each
  /// other. With neither kind of lines the files are there and empty. A data set that can't be
  /// selected in time leaves the lines of the one that is. False if it failed, or without a page.
  bool write(const QString& fileName, bool isohypses = true, bool isotherms = true) const;

  /// Writes the isolines after a step at `time` [s] to the file of that month in `directory`, which
  /// `stepFile` names. False as `write`.
  bool writeStep(double time, const QString& directory) const;
  static QString stepFile(double time, const QString& directory);

  /// Appends one isoline as one record for each of its pieces, and advances `shape` by each;
  /// nothing for at most two points. False, after telling the user, if there is no memory for it.
  bool writeIsoline(int id, int& shape, SHPHandle shapes, DBFHandle table, const QString& parameter,
                    const QString& unit) const;

private:
  bool writeFiles(const ShapefileSet& files, const QString& fileName, bool isohypses,
                  bool isotherms) const;
  bool writeLines(Sketra_lib::Property::DataSet set, int& shape, SHPHandle shapes, DBFHandle table,
                  const QString& parameter, const QString& unit) const;
  QString projectName() const;
  /// Tells the user why; always false.
  static bool fails(const QString& text);

  PageAccess page_;
};

/// The name without an ending of three letters; as it is if it has at most four characters. The
/// directory before the name does not count.
QString withoutShapefileEnding(const QString& fileName);

} // namespace TVR
