#pragma once

#include "project/Project.h"

namespace TVR {

/// What `present` becomes if it takes the change that leads from `from` to `to`: each value, each
/// kind of entries of the wells, their places and the periods are those of `to` where `from` and
/// `to` differ, and stay where they do not. Wells that nobody gave their place stand on the default
/// position that results. With `present` exactly `from` the result is exactly `to`.
Project withChange(const Project& present, const Project& from, const Project& to);

} // namespace TVR
