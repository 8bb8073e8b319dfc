#pragma once

class QPrinter;

namespace TVR::Page {

class Canvas;

/// Prints the page in the middle between the margins that the printer is set to: at its size where
/// there is room for it, else shrunk. Returns by how much, 1 for not at all, and 0 if the printer
/// can't be drawn on.
double printPage(const Canvas& canvas, QPrinter& printer);

} // namespace TVR::Page
