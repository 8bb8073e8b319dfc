#pragma once

#include "results/IsolineWalk.h"

#include <QCoreApplication>

class QTextStream;

namespace BrenvikApp {
class ApplicationInterface;
}

namespace TVR {

/// Lines of a DXF text with a section of entities only. Its entities borrow the group codes of that
/// format in a form of their own: each ends with an "ENDSEC" and a "0". Numbers have six
/// significant digits.
namespace DxfText {

enum class LineKind { Drawdown, Temperature };

/// What stands before the first entity, and behind the last one.
void writeBegin(QTextStream& text);
void writeEnd(QTextStream& text);

/// An isoline, one entity for each of its pieces; nothing for at most two points. Points behind its
/// last break are left out.
void writeIsoline(QTextStream& text, const Isoline& line, LineKind kind);

} // namespace DxfText

/// Writes the isolines of the result page to a DXF file.
class DxfExport {
  Q_DECLARE_TR_FUNCTIONS(TVR::DxfExport)

public:
  explicit DxfExport(const PageAccess& page) : page_(page) {}

  /// Asks for the file and for what goes into it, and writes it. Nothing happens without a page
  /// with results. `host` may be null.
  void ask(BrenvikApp::ApplicationInterface* host) const;

  /// Writes the file. Lines of a data set that can't be selected in time are missing in it. False,
  /// without a message, for a file that can't be written; an older one stays then.
  bool write(const QString& fileName, bool isohypses, bool isotherms) const;

private:
  void writeLines(QTextStream& text, Sketra_lib::Property::DataSet set,
                  DxfText::LineKind kind) const;

  PageAccess page_;
};

} // namespace TVR
