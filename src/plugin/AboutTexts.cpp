#include "plugin/AboutTexts.h"

#include "messages/PluginText.h"
#include "plugin/BuildData.h"

#include <QStringList>
#include <QTextStream>

namespace TVR {

namespace {

constexpr char qtVersion[] = "5.9.1"; // Required oddity: not the one that it is built with
constexpr char indent[] = "&nbsp;&nbsp;&nbsp;&nbsp;";

/// A part of the program with the lines of its publisher.
struct Notice {
  QString title;
  QStringList lines;
};

QList<Notice> notices() {
  return {
      {"<b>Tevrane Version 1</b>", {"Copyright &copy; Norvalt. All rights reserved."}},
      {"<b>Qt Toolkit</b>",
       {PluginText::tr("Version %1").arg(qtVersion),
        "Copyright &copy; The Qt Company Ltd. and other contributors.",
        "<a href=\"https://www.qt.io\">www.qt.io</a>"}},
      {"<b>CVODE part of SUNDIALS</b>",
       {"Copyright &copy; Lawrence Livermore National Security and Southern Methodist University.",
        "<a href=\"https://computing.llnl.gov/projects/sundials\">computing.llnl.gov</a>"}},
      {"<b>Shapefile C Library</b>",
       {"Copyright &copy; Frank Warmerdam and Even Rouault.",
        "<a href=\"http://shapelib.maptools.org\">shapelib.maptools.org</a>"}},
  };
}

} // namespace

QString copyrightNotices() {
  QString html;
  QTextStream stream(&html);
  stream << "<h3>" << PluginText::tr("Copyright information") << "</h3><p>"
         << PluginText::tr("This program based on:") << "</p><center>";
  for (const Notice& notice : notices())
    stream << "<p>" << notice.title << "<br>" << notice.lines.join("<br>") << "</p>";
  stream << "</center><p>"
         << PluginText::tr("More information you will find on the program installation directory.")
         << "</p>";
  return html;
}

QString buildRows(int depth) {
  QString rows;
  for (const BuiltPart& part : builtParts()) {
    const int steps = rows.isEmpty() ? depth : depth + 1;
    rows += "<tr><td>" + QString(indent).repeated(steps) +
            QStringLiteral("<b>%4</b></td><td>%1</td><td> SVN Rev.%2 (%3)</td></tr>")
                .arg(part.version, part.revision, part.date, PluginText::tr(part.label));
  }
  return rows;
}

} // namespace TVR
