#pragma once

#include <gtest/gtest.h>
#include <string>

#include "base/runtime_error.h"

namespace ng {

/// The text of the runtime error that `statement` ends with, empty when it ends well.
template <typename Statement>
std::string ErrorTextOf(Statement statement) {
  try {
    statement();
  } catch (const RuntimeError& error) {
    return error.what();
  }
  return {};
}

}  // namespace ng

#define EXPECT_RUNTIME_ERROR(statement, text) \
  EXPECT_EQ(::ng::ErrorTextOf([&] { static_cast<void>(statement); }), text)
