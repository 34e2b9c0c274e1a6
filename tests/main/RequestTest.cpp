#include <gtest/gtest.h>

#include "main/Request.h"

namespace tessarin::testing {
namespace {

using Kind = Request::Kind;

TEST(Request, TravelsInOneLineWhateverThePath) {
  const Request requests[] = {
      {Kind::settings, {}},
      {Kind::importFile, "/home/ä 😀/a%41.json"},
      {Kind::exportFile, "/a\nb\r\t\x01\x7f\xff%"},
      {Kind::importFile, "/" + std::string(4095, '\n')},
  };
  for (const Request& request : requests) {
    const std::string line = request.encoded();
    EXPECT_EQ(line.find('\n'), std::string::npos);
    EXPECT_EQ(Request::decode(line), request) << line;
  }
}

TEST(Request, AnythingElseIsNone) {
  for (const char* line :
       {"", "toggl", "toggle now", " quit", "import", "import a.json", "import /a%", "import /a%4x"}) {
    EXPECT_EQ(Request::decode(line), std::nullopt) << line;
  }
}

TEST(Answer, TravelsInOneLine) {
  for (const Answer& answer :
       {Answer{true, "Imported 3 snippets"}, Answer{true, ""}, Answer{false, "cannot read /a\nb%: done "}}) {
    EXPECT_EQ(answer.encoded().find('\n'), std::string::npos);
    EXPECT_EQ(Answer::decode(answer.encoded()), answer);
  }
  EXPECT_EQ(Answer::decode("unknown request"), (Answer{false, "unknown request"}));
  EXPECT_EQ(Answer::decode("done %"), (Answer{false, "done %"}));
}

}  // namespace
}  // namespace tessarin::testing
