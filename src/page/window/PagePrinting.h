#pragma once

class QPrinter;

namespace TVR::Page {

class Canvas;

/// Prints the page at its size.
void printPage(const Canvas& canvas, QPrinter& printer);

} // namespace TVR::Page
