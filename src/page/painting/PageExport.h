#pragma once

#include <QString>

class QPrinter;

namespace TVR::Page {

class Canvas;

/// Writes the page to a file of the kind that the ending names: ".pdf" (vectors, at the size of the
/// sheet), ".svg" (vectors) or ".png" (150 dots per inch). False for another ending or if the file
/// can't be written; an older file of that name then stays. Needs a QGuiApplication.
bool exportPage(const Canvas& canvas, const QString& fileName);

/// Prints the page at its size.
void printPage(const Canvas& canvas, QPrinter& printer);

} // namespace TVR::Page
