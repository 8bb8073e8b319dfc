#pragma once

#include <QtGlobal>

namespace TVR {

struct Project;

/// The memory that a project takes [bytes], estimated, without what it shares with `other`: copies
/// of a project share each part until it is changed, and texts even then.
qint64 bytesBeside(const Project& project, const Project& other);

} // namespace TVR
