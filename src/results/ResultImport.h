#pragma once

#include "results/PageAccess.h"

#include <QCoreApplication>
#include <QDomElement>
#include <QList>
#include <QString>

class QDomDocument;

namespace BrenvikApp {
class ApplicationInterface;
}

namespace TVR {

/// What a project file holds for an import.
struct ImportedResults {
  QString label;            ///< what the new items are called
  bool hasResults = false;  ///< whether the file is new enough and holds a page
  double pageVersion = 0;   ///< of the form of the page; 0 if it is not said
  QList<QDomElement> grids; ///< the grid items of the page, in document order
};

/// Looks for the results in the document of a project file; `fileName` is for the label only.
ImportedResults resultsOf(const QDomDocument& project, const QString& fileName);

/// Lays the result grid of another project over the map of the current result page. The store and
/// the project's own results stay as they are. What goes wrong is told to the user.
class ResultImport {
  Q_DECLARE_TR_FUNCTIONS(TVR::ResultImport)

public:
  /// `host` may be null.
  ResultImport(const PageAccess& page, BrenvikApp::ApplicationInterface* host)
      : page_(page), host_(host) {}

  /// Asks for a project file and imports its results, if there is a map to lay them on. Whether
  /// there are any.
  bool ask() const;
  /// Imports the results of this file, if it is within the XmlLimits. Whether there are any.
  bool read(const QString& fileName) const;

private:
  /// Says why nothing is imported; always false.
  bool refuse(const QString& reason) const;

  PageAccess page_;
  BrenvikApp::ApplicationInterface* host_;
};

} // namespace TVR
