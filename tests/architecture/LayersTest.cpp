#include "architecture/Includes.h"

#include <gtest/gtest.h>

#include <fstream>
#include <regex>
#include <sstream>

namespace TVR {
namespace {

using Sentences = std::vector<std::string>;

/// What cmake/layers.txt says.
Graph layersOfFile() {
  Graph layers;
  std::ifstream file(repository / "cmake/layers.txt");
  for (std::string line; std::getline(file, line);) {
    const std::size_t colon = line.find(':');
    if (line.empty() || line[0] == '#' || colon == std::string::npos)
      continue;
    std::istringstream names(line.substr(colon + 1));
    Names& allowed = layers[line.substr(0, colon)];
    for (std::string name; names >> name;)
      allowed.insert(name);
  }
  return layers;
}

/// The line that governs a folder: its own, else that of the nearest folder around it.
Graph::const_iterator lineFor(std::string folder, const Graph& layers) {
  while (!folder.empty() && !layers.count(folder))
    folder = folderOf(folder);
  return layers.find(folder);
}

bool isWithinAny(const std::string& folder, const Names& names) {
  for (const std::string& name : names)
    if (isWithin(folder, name))
      return true;
  return false;
}

/// What is wrong with the includes.
Sentences violations(const Graph& layers, const Graph& includes) {
  Sentences result;
  for (const auto& [file, names] : includes) {
    const auto line = lineFor(folderOf(file), layers);
    if (line == layers.end()) {
      result.push_back(folderOf(file) + " has no line in layers.txt");
      continue;
    }
    for (const std::string& name : names)
      if (!isWithin(folderOf(name), line->first) && !isWithinAny(folderOf(name), line->second))
        result.push_back(file + " includes " + name);
  }
  return result;
}

/// Which lines may include which other lines: a folder that is named stands for its rooms too.
Graph linesAllowed(const Graph& layers) {
  Graph lines;
  for (const auto& [folder, names] : layers)
    for (const std::string& name : names) {
      if (const auto governing = lineFor(name, layers);
          governing != layers.end() && governing->first != folder)
        lines[folder].insert(governing->first);
      for (const auto& [room, unused] : layers)
        if (isWithin(room, name) && room != folder)
          lines[folder].insert(room);
    }
  return lines;
}

TEST(LayersTest, everyIncludePointsDown) {
  const Graph includes = includesOfSources();
  ASSERT_GT(includes.size(), 200U);
  for (const std::string& violation : violations(layersOfFile(), includes))
    ADD_FAILURE() << violation;
}

TEST(LayersTest, everyIncludedFileExists) {
  const Graph includes = includesOfSources();
  for (const auto& [file, names] : includes)
    for (const std::string& name : names)
      EXPECT_TRUE(includes.count(name)) << file << " includes " << name;
}

TEST(LayersTest, everyNameInTheLayersIsAFolder) {
  const auto isFolder = [](const std::string& name) {
    return std::filesystem::is_directory(repository / "src" / name);
  };
  for (const auto& [folder, names] : layersOfFile()) {
    EXPECT_TRUE(isFolder(folder)) << folder;
    for (const std::string& name : names)
      EXPECT_TRUE(isFolder(name)) << folder << ": " << name;
  }
}

TEST(LayersTest, noTwoFoldersMayIncludeEachOther) {
  EXPECT_EQ(circlesIn(linesAllowed(layersOfFile())), Names{});
}

TEST(LayersTest, theGroundKnowsNoQt) {
  static const std::regex qt("#include\\s*<Q");
  for (const std::string folder : {"src/simulator", "src/design"})
    for (const auto& file : filesBelow(folder, {".h", ".cpp"}))
      EXPECT_FALSE(std::regex_search(contentOf(file), qt)) << file;
}

TEST(LayersTest, theProjectIsBuiltOnTheCoreLibraryAlone) {
  static const std::regex otherLibrary("Qt5::(?!Core\\b)");
  for (const std::string folder : {"project", "files", "messages", "contour"}) {
    const std::string lists = contentOf(repository / "src" / folder / "CMakeLists.txt");
    ASSERT_NE(lists.find("Qt5::Core"), std::string::npos) << folder;
    EXPECT_FALSE(std::regex_search(lists, otherLibrary)) << folder;
  }
}

TEST(LayersTest, anIncludeThatPointsUpIsFound) {
  const Graph layers{{"data", {"design"}}, {"design", {}}};
  EXPECT_EQ(violations(layers, {{"data/A.h", {"design/B.h"}}}), Sentences{});
  EXPECT_EQ(violations(layers, {{"design/B.h", {"data/A.h"}}}),
            Sentences{"design/B.h includes data/A.h"});
  EXPECT_EQ(violations(layers, {{"extra/C.h", {}}}), Sentences{"extra has no line in layers.txt"});
}

TEST(LayersTest, aRoomHasALineOfItsOwn) {
  const Graph layers{{"page/model", {}}, {"page/window", {"page/model"}}};
  EXPECT_EQ(violations(layers, {{"page/window/A.h", {"page/model/B.h"}}}), Sentences{});
  EXPECT_EQ(violations(layers, {{"page/model/B.h", {"page/window/A.h"}}}),
            Sentences{"page/model/B.h includes page/window/A.h"});
  EXPECT_EQ(violations(layers, {{"page/C.h", {}}}), Sentences{"page has no line in layers.txt"});
}

TEST(LayersTest, aRoomWithoutALineLivesByTheFolderAroundIt) {
  const Graph layers{{"page", {"xml"}}, {"page/model", {}}, {"xml", {}}};
  EXPECT_EQ(violations(layers, {{"page/window/A.h", {"xml/B.h", "page/model/C.h"}}}), Sentences{});
  EXPECT_EQ(violations(layers, {{"page/model/C.h", {"xml/B.h"}}}),
            Sentences{"page/model/C.h includes xml/B.h"});
  EXPECT_EQ(violations(layers, {{"pages/D.h", {}}}), Sentences{"pages has no line in layers.txt"});
}

TEST(LayersTest, aFolderThatIsNamedIsOpenWithItsRooms) {
  const Graph layers{{"batch", {"page"}}, {"plugin", {"page/model"}}};
  EXPECT_EQ(violations(layers, {{"batch/A.h", {"page/model/B.h", "page/C.h"}}}), Sentences{});
  EXPECT_EQ(violations(layers, {{"plugin/A.h", {"page/model/B.h", "page/C.h"}}}),
            Sentences{"plugin/A.h includes page/C.h"});
}

TEST(LayersTest, roomsThatMayIncludeTheirOwnReaderAreFound) {
  EXPECT_EQ(circlesIn(linesAllowed({{"page/model", {"xml"}}, {"xml", {"page"}}})),
            Names{"page/model xml"});
  EXPECT_EQ(circlesIn(linesAllowed({{"page", {"xml"}}, {"xml", {"page/model"}}})),
            Names{"page xml"});
  EXPECT_EQ(circlesIn(linesAllowed({{"page/model", {}}, {"xml", {"page"}}})), Names{});
}

} // namespace
} // namespace TVR
