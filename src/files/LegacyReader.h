#pragma once

class QDomElement;
class QSettings;

namespace TVR {
class ProjectTarget;
}

namespace TVR::Data {

/// Data of the previous program generation, which had other keys and other units.
namespace LegacyReader {

/// Reads the entries of a file without parameters by key: the children of its root, each with the
/// key in its first child and the value in the next. A key that is not known lands on parameter 0,
/// one that several parameters share on the lowest of them. False, and nothing read, if the number
/// of wells stands there more often than `maxSizings`.
bool read(const QDomElement& root, double fileVersion, ProjectTarget& project);

/// Reads the group "current" of the settings of that generation.
void readCurrentGroup(QSettings& settings, ProjectTarget& project);

/// Brings the value of a parameter that has just been stored from the units and conventions of that
/// generation into those of this one. Nothing for a parameter that is the same in both.
void migrateValue(int id, ProjectTarget& project);

} // namespace LegacyReader
} // namespace TVR::Data
