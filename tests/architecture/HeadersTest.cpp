#include "architecture/Includes.h"

#include <gtest/gtest.h>

namespace TVR {
namespace {

/// What a source includes first, with its brackets or quotes; empty if nothing.
std::string firstInclude(const std::string& text) {
  const std::size_t directive = text.find("#include ");
  if (directive == std::string::npos)
    return {};
  const std::size_t start = directive + std::string("#include ").size();
  return text.substr(start, text.find('\n', start) - start);
}

/// The compiler thereby sees that the header compiles alone. Those without a source get one from
/// the build (tevrane_lone_headers).
TEST(HeadersTest, everySourceIncludesItsOwnHeaderFirst) {
  int headers = 0;
  for (const auto& source : filesBelow("src", {".cpp"})) {
    std::filesystem::path header = source;
    header.replace_extension(".h");
    if (!std::filesystem::exists(header))
      continue;
    ++headers;
    EXPECT_EQ(firstInclude(contentOf(source)),
              '"' + std::filesystem::relative(header, repository / "src").string() + '"')
        << source;
  }
  EXPECT_GT(headers, 100);
}

/// A precompiled header comes before whatever a source includes, and would hide what is missing.
TEST(HeadersTest, noLibraryPrecompilesHeaders) {
  for (const auto& file : filesBelow("src", {"CMakeLists.txt"}))
    EXPECT_EQ(contentOf(file).find("precompile"), std::string::npos) << file;
}

} // namespace
} // namespace TVR
