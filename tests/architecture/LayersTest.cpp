#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace fs = std::filesystem;

namespace {

using Names = std::set<std::string>;
/// Who includes whom.
using Graph = std::map<std::string, Names>;

const fs::path root = TEVRANE_SOURCE_DIR;

Graph allowedLayers() {
  Graph layers;
  std::ifstream file(root / "cmake/layers.txt");
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

std::vector<std::string> includesOf(const std::string& text) {
  static const std::regex include("#include\\s*\"([^\"]+)\"");
  std::vector<std::string> result;
  for (std::sregex_iterator it(text.begin(), text.end(), include), end; it != end; ++it)
    result.push_back((*it)[1]);
  return result;
}

std::string contentOf(const fs::path& file) {
  std::ifstream stream(file);
  return {std::istreambuf_iterator<char>(stream), {}};
}

/// Includes of the project's own files by every source below src/, all paths relative to it.
Graph includesOfSources() {
  Graph graph;
  for (const auto& entry : fs::recursive_directory_iterator(root / "src")) {
    const std::string extension = entry.path().extension();
    if (extension != ".h" && extension != ".cpp")
      continue;
    Names& includes = graph[fs::relative(entry.path(), root / "src")];
    for (const std::string& name : includesOf(contentOf(entry.path())))
      includes.insert(name);
  }
  return graph;
}

std::string folderOf(const std::string& file) {
  return file.substr(0, file.find('/'));
}

/// Sentences about includes that the layers do not allow.
std::vector<std::string> violations(const Graph& layers, const Graph& includes) {
  std::vector<std::string> result;
  for (const auto& [file, names] : includes) {
    const std::string folder = folderOf(file);
    const auto layer = layers.find(folder);
    if (layer == layers.end()) {
      result.push_back(folder + " has no line in layers.txt");
      continue;
    }
    for (const std::string& name : names)
      if (folderOf(name) != folder && !layer->second.count(folderOf(name)))
        result.push_back(file + " includes " + name);
  }
  return result;
}

/// A file that includes itself by way of others; empty if there is none.
std::string findCycle(const Graph& graph) {
  Names done;
  Names open;
  std::string found;
  const std::function<void(const std::string&)> visit = [&](const std::string& node) {
    if (done.count(node) || !found.empty())
      return;
    if (!open.insert(node).second) {
      found = node;
      return;
    }
    const auto it = graph.find(node);
    if (it != graph.end())
      for (const std::string& next : it->second)
        visit(next);
    open.erase(node);
    done.insert(node);
  };
  for (const auto& [node, names] : graph)
    visit(node);
  return found;
}

} // namespace

TEST(LayersTest, everyIncludePointsDown) {
  const Graph includes = includesOfSources();
  ASSERT_GT(includes.size(), 50U);
  for (const std::string& violation : violations(allowedLayers(), includes))
    ADD_FAILURE() << violation;
}

TEST(LayersTest, everyIncludedFileExists) {
  const Graph includes = includesOfSources();
  for (const auto& [file, names] : includes)
    for (const std::string& name : names)
      EXPECT_TRUE(includes.count(name)) << file << " includes " << name;
}

TEST(LayersTest, noTwoFilesIncludeEachOther) {
  EXPECT_EQ(findCycle(includesOfSources()), "");
}

TEST(LayersTest, noTwoFoldersMayIncludeEachOther) {
  EXPECT_EQ(findCycle(allowedLayers()), "");
}

TEST(LayersTest, theGroundKnowsNoQt) {
  static const std::regex qt("#include\\s*<Q");
  for (const std::string folder : {"simulator", "design"})
    for (const auto& entry : fs::recursive_directory_iterator(root / "src" / folder))
      EXPECT_FALSE(entry.is_regular_file() && std::regex_search(contentOf(entry.path()), qt))
          << entry.path();
}

TEST(LayersTest, anIncludeThatPointsUpIsFound) {
  const Graph layers{{"data", {"design"}}, {"design", {}}};
  EXPECT_TRUE(violations(layers, {{"data/A.h", {"design/B.h"}}}).empty());
  EXPECT_EQ(violations(layers, {{"design/B.h", {"data/A.h"}}}),
            std::vector<std::string>{"design/B.h includes data/A.h"});
  EXPECT_EQ(violations(layers, {{"extra/C.h", {}}}),
            std::vector<std::string>{"extra has no line in layers.txt"});
}

TEST(LayersTest, aCycleIsFound) {
  EXPECT_EQ(findCycle({{"a", {"b"}}, {"b", {"c"}}, {"c", {"b"}}}), "b");
  EXPECT_EQ(findCycle({{"a", {"b", "c"}}, {"b", {"c"}}, {"c", {}}}), "");
}
