#pragma once

#include <QMap>
#include <QString>

class QDomElement;

namespace BrenvikApp {
class WorkspaceWindow;
}

namespace TVR::Data {

class Manager;

/// The project file ".tvr": an XML text with all parameters by key, the tables of wells and demand,
/// the ids of the page items and the page itself. It is a snapshot: values that follow from others
/// stand in it and are not derived again.
namespace ProjectFile {

/// Reads a file into a store that holds the defaults: parameters as texts, without rules or
/// signals; tables; ids of page items into `fieldIds`; the page by the store's signal
/// `graphicsWindowContents`. A file without parameters by key is read as one of the previous
/// program generation. False if the file can't be read, is not well-formed, is beyond XmlLimits or
/// FileLimits or sizes the tables too often; the store then holds the defaults.
bool read(const QString& fileName, Manager& store, QMap<QString, int>& fieldIds);

/// What the root element of a file asks for beyond FileLimits; empty if nothing.
QString excess(const QDomElement& root, Manager& store);

/// Writes the store; with a window also `fieldIds`, and its page if it has one. The older file is
/// replaced by a complete one, or stays as it is. False if it can't be written.
bool write(const QString& fileName, Manager& store, BrenvikApp::WorkspaceWindow* window,
           const QMap<QString, int>& fieldIds);

} // namespace ProjectFile
} // namespace TVR::Data
