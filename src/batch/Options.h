#pragma once

#include "simulator/solvers/LinearSolver.h"
#include "terminal/Console.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace TVR::Batch {

/// Files that are made from the page of a finished run; an empty name is none that is wanted.
struct PageFiles {
  QStringList pages; ///< each ".pdf", ".png" or ".svg"
  QString shapefile; ///< without ending
  QString dxf;       ///< the drawing of release 12
  QString dxfText;   ///< the text in a form of its own
  QString project;   ///< ".tvr"

  QStringList names() const;
};

/// What the command line asks for.
struct Options {
  QStringList files;    ///< batch files and project files
  QString output;       ///< empty: the name in the batch file
  QString templateFile; ///< empty: none is to be written
  QString report;       ///< the JSON file of what the job was and found; empty: none
  PageFiles pageFiles;
  bool pictures = false; ///< also those that do not lie beside the file
  int jobs = 1;
  bool checkOnly = false;
  bool convergence = false; ///< runs also on a coarser and a finer mesh
  bool printParameters = false;
  bool asJson = false;
  QString language; ///< of the page and of names that the program gives: "de", "en" or "fr"
  LinearSolver solver = LinearSolver::Structured;
  Talk talk = Talk::Normal;
};

/// Reads the command line. A text to print (help, version) or a mistake ends the program: then the
/// options are empty and `exitCode` is what to end with.
std::optional<Options> parseOptions(const QStringList& arguments, int& exitCode);

} // namespace TVR::Batch
