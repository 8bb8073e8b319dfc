#include "architecture/Includes.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <regex>

namespace fs = std::filesystem;

namespace TVR {

namespace {

Names includesIn(const std::string& text) {
  // What is generated from a form ("ui_") belongs to whoever includes it.
  static const std::regex include("#include\\s*\"(?!ui_)([^\"]+)\"");
  Names names;
  for (std::sregex_iterator it(text.begin(), text.end(), include), end; it != end; ++it)
    names.insert((*it)[1]);
  return names;
}

std::string unitOf(const std::string& file) {
  return file.substr(0, file.rfind('.'));
}

Names reachedFrom(const std::string& start, const Graph& graph) {
  Names reached;
  std::vector<std::string> open{start};
  while (!open.empty()) {
    const auto node = graph.find(open.back());
    open.pop_back();
    if (node == graph.end())
      continue;
    for (const std::string& next : node->second)
      if (reached.insert(next).second)
        open.push_back(next);
  }
  return reached;
}

} // namespace

const fs::path repository = TEVRANE_SOURCE_DIR;

std::string contentOf(const fs::path& file) {
  std::ifstream stream(file);
  return {std::istreambuf_iterator<char>(stream), {}};
}

std::vector<fs::path> filesBelow(const std::string& folder, const Names& endings) {
  std::vector<fs::path> files;
  for (const auto& entry : fs::recursive_directory_iterator(repository / folder)) {
    const std::string name = entry.path().filename();
    for (const std::string& ending : endings)
      if (name.size() >= ending.size() &&
          name.compare(name.size() - ending.size(), ending.size(), ending) == 0)
        files.push_back(entry.path());
  }
  EXPECT_FALSE(files.empty()) << "nothing to look at in " << folder;
  return files;
}

Graph includesOfSources() {
  Graph graph;
  for (const fs::path& file : filesBelow("src", {".h", ".cpp"}))
    graph[fs::relative(file, repository / "src")] = includesIn(contentOf(file));
  return graph;
}

std::string folderOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  return slash == std::string::npos ? std::string() : path.substr(0, slash);
}

bool isWithin(const std::string& folder, const std::string& outer) {
  return folder == outer || folder.rfind(outer + '/', 0) == 0;
}

Graph unitsOf(const Graph& includes) {
  Graph units;
  for (const auto& [file, names] : includes)
    for (const std::string& name : names)
      if (unitOf(name) != unitOf(file))
        units[unitOf(file)].insert(unitOf(name));
  return units;
}

Names circlesIn(const Graph& graph) {
  std::map<std::string, Names> reached;
  for (const auto& [node, names] : graph)
    reached[node] = reachedFrom(node, graph);
  Names circles;
  for (const auto& [node, others] : reached) {
    std::string circle;
    for (const std::string& other : others)
      if (const auto back = reached.find(other); back != reached.end() && back->second.count(node))
        circle += (circle.empty() ? "" : " ") + other;
    if (!circle.empty())
      circles.insert(circle);
  }
  return circles;
}

} // namespace TVR
