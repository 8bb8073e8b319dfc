#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv);
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size);

/// Hands each file that is named, or lies in a directory that is named, to the fuzz target. Fails
/// if there is none, or if one takes more than ten seconds.
int main(int argc, char** argv) {
  LLVMFuzzerInitialize(&argc, &argv);
  std::vector<std::filesystem::path> files;
  for (int i = 1; i < argc; ++i) {
    if (!std::filesystem::is_directory(argv[i])) {
      files.push_back(argv[i]);
      continue;
    }
    for (const auto& entry : std::filesystem::directory_iterator(argv[i]))
      if (entry.is_regular_file())
        files.push_back(entry.path());
  }
  std::sort(files.begin(), files.end());

  bool isSlow = false;
  for (const auto& name : files) {
    std::fprintf(stderr, "%s\n", name.c_str()); // the last one is at fault if the program crashes
    std::ifstream file(name, std::ios::binary);
    const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
    const auto before = std::chrono::steady_clock::now();
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - before;
    if (time.count() > 10) {
      isSlow = true;
      std::fprintf(stderr, "%s took %.1f s\n", name.c_str(), time.count());
    }
  }
  std::printf("%zu files\n", files.size());
  return files.empty() || isSlow ? 1 : 0;
}
