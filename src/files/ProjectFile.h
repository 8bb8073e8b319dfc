#pragma once

#include "files/FileTables.h"
#include "project/RunFrame.h"

#include <QByteArray>
#include <QMap>
#include <QString>

#include <optional>

class QDomElement;

namespace TVR {
class ParameterKeys;
class ProjectTarget;
struct Project;
} // namespace TVR

namespace TVR::Data {

/// The project file ".tvr": an XML text with all parameters by key, the tables of wells and demand,
/// the ids of the page items and the page itself. It is a snapshot: values that follow from others
/// stand in it and are not derived again.
namespace ProjectFile {

/// The page that is kept with a project.
struct Page {
  std::optional<QByteArray> document; ///< none where the window shows no page
  QMap<QString, int> fieldIds;        ///< of the page's items, by name
  std::optional<RunFrame> frame;      ///< of the results that it shows
};

/// Reads a file into a project that holds the defaults: parameters as texts, without rules; tables;
/// the page; ids of page items into `fieldIds`. A file without parameters by key is read as one of
/// the previous program generation. False if the file can't be read, is not well-formed, is beyond
/// XmlLimits or ProjectLimits or sizes the tables too often; nothing has been read then.
bool read(const QString& fileName, ProjectTarget& project, QMap<QString, int>& fieldIds);

/// What the root element of a file asks for beyond ProjectLimits; empty if nothing.
QString excess(const QDomElement& root);

/// Writes a project with its wells and those of the other tables that have been made, and with a
/// page if there is one. The older file is replaced by a complete one, or stays as it is. False if
/// it can't be written.
bool write(const QString& fileName, const Project& project, const ParameterKeys& keys,
           const MadeTables& tables, const std::optional<Page>& page);

} // namespace ProjectFile
} // namespace TVR::Data
