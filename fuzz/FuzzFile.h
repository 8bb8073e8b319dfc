#pragma once

#include <QString>

#include <cstddef>
#include <cstdint>

namespace TVR::Fuzz {

/// Starts an application without a window system, without the user's settings and without a log.
/// Has an effect once; the application lives to the end.
void startApplication(int* argc, char*** argv);

/// What the store makes of these bytes in a file with this ending (".tbat", say): it reads them,
/// writes what it has understood and reads that. Aborts if it can't read its own file.
void readAndWrite(const std::uint8_t* bytes, std::size_t size, const QString& ending);

} // namespace TVR::Fuzz
