#pragma once

#include "results/IsolineWalk.h"

#include <QCoreApplication>

namespace BrenvikApp {
class ApplicationInterface;
}

namespace TVR {

class DxfDrawing;

/// Writes the isolines of the result page and the wells of the project as a drawing for CAD
/// programs (see DxfDrawing): a layer for each level of drawdown ("ISOHYPSE_...") and of
/// temperature changes ("ISOTHERM_...") in the colour that the lines have on the page, and one for
/// the wells of each WellUse.
class DrawingExport {
  Q_DECLARE_TR_FUNCTIONS(TVR::DrawingExport)

public:
  explicit DrawingExport(const PageAccess& page) : page_(page) {}

  /// Asks for the file and for what goes into it, and writes it; tells the user if that fails.
  /// Nothing happens without a page with results. `host` may be null.
  void ask(BrenvikApp::ApplicationInterface* host) const;

  /// Writes the file, without a message. False, and an older file stays, if it can't be written, a
  /// data set can't be selected in time or there is no page.
  bool write(const QString& fileName, bool isohypses = true, bool isotherms = true) const;

private:
  bool addLines(DxfDrawing& drawing, Sketra_lib::Property::DataSet set) const;
  void addWells(DxfDrawing& drawing) const;

  PageAccess page_;
};

} // namespace TVR
