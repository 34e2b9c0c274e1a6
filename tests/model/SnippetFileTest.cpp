#include <sys/stat.h>

#include <stdexcept>

#include "Matchers.h"
#include "model/SnippetFile.h"
#include "support/TemporaryFolder.h"

namespace tessarin::testing {
namespace {

namespace fs = std::filesystem;

TEST(SnippetFileTest, WhatHoldsNoSnippetsFailsWithOneSentence) {
  const TemporaryFolder folder;
  const auto write = [&](const std::string& content) {
    return [&folder, content] { folder.write("file", content); };
  };
  const struct {
    const char* name;
    std::function<void()> make;
    const char* problem;
  } cases[] = {
      {"missing", [] {}, "No such file"},
      {"half written", write(R"([{"id":"1","na)"), "ends too early"},
      {"an object", write("{}"), "not an array"},
      {"one bad entry", write(R"([{"id":"1"}])"), "entry 1 lacks \"name\""},
      {"deep", write(R"([{"x":)" + std::string(10'000'000, '[')), "nested too deeply"},
      {"a folder", [&] { fs::create_directory(folder / "file"); }, "directory"},
      {"a pipe", [&] { ::mkfifo((folder / "file").c_str(), S_IRUSR | S_IWUSR); }, "not an ordinary file"},
      {"a device", [&] { fs::create_symlink("/dev/zero", folder / "file"); }, "not an ordinary file"},
      {"huge",
       [&] {
         folder.write("file", "[");
         fs::resize_file(folder / "file", largestSnippetFile + 1);
       },
       "larger than 64 MB"},
  };
  for (const auto& c : cases) {
    c.make();
    EXPECT_THAT([&] { readSnippetFile(folder / "file"); },
                ThrowsMessage<std::runtime_error>(HasSubstr(c.problem)))
        << c.name;
    fs::remove_all(folder / "file");
  }
}

}  // namespace
}  // namespace tessarin::testing
