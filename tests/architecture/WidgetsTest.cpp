#include "architecture/Includes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <regex>

namespace fs = std::filesystem;

namespace TVR {
namespace {

/// Where windows are: folders of src/ that may include headers of widgets and link them.
const Names foldersOfWindows = {"boxes", "propertybrowser", "page/window", "results",
                                "gui",   "plugin",          "desktop",     "batch"};

/// Folders that do so and are to be rid of it; whoever does that takes them out here.
const Names knownIncludes = {};
const Names knownLinks = {};

bool isWidgetHeader(const std::string& header) {
  const std::string name = header.substr(header.rfind('/') + 1);
  return header.rfind("QtWidgets", 0) == 0 || fs::exists(fs::path(TEVRANE_WIDGET_HEADERS) / name);
}

bool includesWidgets(const std::string& text) {
  static const std::regex include("#include\\s*<([^>]+)>");
  for (std::sregex_iterator it(text.begin(), text.end(), include), end; it != end; ++it)
    if (isWidgetHeader((*it)[1]))
      return true;
  return false;
}

/// Printing brings the widgets of its dialogs along.
bool linksWidgets(const std::string& text) {
  static const std::regex link("Qt5::(Widgets|PrintSupport)");
  return std::regex_search(text, link);
}

/// The folders of src/ without windows, of which a file matches.
template <typename Predicate>
Names windowlessFolders(const Names& endings, Predicate matches) {
  Names folders;
  for (const fs::path& file : filesBelow("src", endings)) {
    const std::string folder = folderOf(fs::relative(file, repository / "src"));
    const bool hasWindows =
        std::any_of(foldersOfWindows.begin(), foldersOfWindows.end(),
                    [&](const std::string& name) { return isWithin(folder, name); });
    if (!hasWindows && matches(contentOf(file)))
      folders.insert(folder);
  }
  return folders;
}

TEST(WidgetsTest, areIncludedOnlyWhereWindowsAre) {
  EXPECT_EQ(windowlessFolders({".h", ".cpp"}, includesWidgets), knownIncludes);
}

TEST(WidgetsTest, areLinkedOnlyWhereWindowsAre) {
  EXPECT_EQ(windowlessFolders({"CMakeLists.txt"}, linksWidgets), knownLinks);
}

TEST(WidgetsTest, aHeaderOfWidgetsIsKnownByAnyOfItsNames) {
  for (const char* const header : {"QLabel", "qlabel.h", "QtWidgets", "QtWidgets/QLabel"})
    EXPECT_TRUE(includesWidgets("#include <" + std::string(header) + ">\n")) << header;
  for (const char* const header : {"QString", "QtGui", "QAbstractItemModel", "vector"})
    EXPECT_FALSE(includesWidgets("#include <" + std::string(header) + ">\n")) << header;
}

} // namespace
} // namespace TVR
