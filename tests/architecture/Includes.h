#pragma once

#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace TVR {

using Names = std::set<std::string>;
/// Who includes whom, or who may.
using Graph = std::map<std::string, Names>;

/// The root of the repository.
extern const std::filesystem::path repository;

std::string contentOf(const std::filesystem::path& file);

/// The files below a folder of the repository whose names end in one of these; rooms included. It
/// is a failure of the test if there are none.
std::vector<std::filesystem::path> filesBelow(const std::string& folder, const Names& endings);

/// What each source below src/ includes of the project's own, all by their paths below src/.
Graph includesOfSources();

/// The folder of a file, or the folder around a folder; empty if there is none.
std::string folderOf(const std::string& path);

/// Whether a folder is this one or lies below it.
bool isWithin(const std::string& folder, const std::string& outer);

/// The header and the source of a class as one, without ending: who includes whom among them.
Graph unitsOf(const Graph& includes);

/// The sets of nodes that reach each other, each as one line of names with blanks between.
Names circlesIn(const Graph& graph);

} // namespace TVR
