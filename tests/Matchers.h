#pragma once

#include <gmock/gmock.h>

/// The matchers that most tests use, by their short names.
namespace tessarin {

using ::testing::AllOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;
using ::testing::StartsWith;
using ::testing::ThrowsMessage;

}  // namespace tessarin
