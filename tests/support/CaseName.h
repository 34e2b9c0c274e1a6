#pragma once

#include <gtest/gtest.h>

#include <string>

namespace tessarin::testing {

/// Names a parameterized test after the `name` of its case.
struct CaseName {
  template <class Case>
  std::string operator()(const ::testing::TestParamInfo<Case>& parameter) const {
    return std::string(parameter.param.name);
  }
};

}  // namespace tessarin::testing
