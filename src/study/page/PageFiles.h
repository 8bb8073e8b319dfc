#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace TVR::Study {

class Results;
class StudyFolder;
struct StudySetup;

/// The files that show what a study has found.
struct PageFiles {
  QStringList pages; ///< .pdf, .png or .svg
  QString shapefile; ///< of plume bands; empty: none
  QString language;  ///< of the pages: "de", "en" or "fr"
};

/// All files that are written for them: each page, and those that make the shapefile.
QList<QStringList> namesOf(const PageFiles& files);

/// Writes them from what is there of a study, of which one run at least has results. Returns what
/// went wrong, one text each. Pages need a QGuiApplication.
QStringList writePages(const StudySetup& study, const StudyFolder& folder, const Results& results,
                       const PageFiles& files);

} // namespace TVR::Study
