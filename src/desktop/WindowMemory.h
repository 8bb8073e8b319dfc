#pragma once

class QMainWindow;

namespace TVR::Page {
class PageWindow;
}

/// What the program remembers of its windows in the user's settings, from one start to the next.
namespace TVR::Desktop::WindowMemory {

/// Place, size, tool bars and docks of the main window. Without a memory it gets a size that fits
/// the screen.
void restore(QMainWindow& window);
void keep(const QMainWindow& window);

/// How large pages are shown.
void restoreZoom(Page::PageWindow& page);
void keepZoom(const Page::PageWindow& page);

/// True once for a user.
bool isFirstStart();

} // namespace TVR::Desktop::WindowMemory
