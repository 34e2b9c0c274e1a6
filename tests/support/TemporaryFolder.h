#pragma once

#include <stdlib.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

namespace tessarin::testing {

/// A folder of its own, removed with all that is in it.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "tessarin-test-XXXXXX").string();
    if (!::mkdtemp(name.data())) throw std::runtime_error("no temporary folder");
    path_ = name;
  }
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::filesystem::path& path() const { return path_; }
  std::filesystem::path operator/(const std::string& name) const { return path_ / name; }

  void write(const std::string& name, const std::string& content) const {
    std::ofstream(path_ / name, std::ios::binary) << content;
  }
  std::string read(const std::string& name) const {
    std::ifstream file(path_ / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  /// Names of everything in it, sorted.
  std::vector<std::string> names() const {
    std::vector<std::string> found;
    for (const auto& entry : std::filesystem::directory_iterator(path_))
      found.push_back(entry.path().filename());
    std::sort(found.begin(), found.end());
    return found;
  }

 private:
  std::filesystem::path path_;
};

}  // namespace tessarin::testing
