#pragma once

#include <QString>

#include <shapefil.h>

namespace TVR {

namespace Data {
class Manager;
}

class ProjectDocument;
class ResultGraphic;

/// What the user brings out of the result page into files, and into it from another project.
class ResultCommands {
public:
  /// Everything that is given outlives this object.
  ResultCommands(Data::Manager& store, ResultGraphic& graphic, ProjectDocument& document)
      : store_(store), graphic_(graphic), document_(document) {}

  // Each asks for a file; see the class of its name.
  void exportShapefile();
  void exportDxf();
  void exportDrawing();
  void importResults();

  /// See ShapefileExport.
  void writeShapefile(const QString& file, bool isohypsen, bool isotherms);
  void writeIsoline(int id, int& ishape, SHPHandle hSHP, DBFHandle hDBF, const QString& parameter,
                    const QString& unit);

private:
  Data::Manager& store_;
  ResultGraphic& graphic_;
  ProjectDocument& document_;
};

} // namespace TVR
