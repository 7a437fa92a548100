#pragma once
// Every test starts from a fresh program: no form loaded, the state at its
// defaults, and a scripted platform that records message boxes.
#include <gtest/gtest.h>

#include <ostream>

#include "forms/scripted_platform.h"
#include "runtime/variant.h"

namespace ostraline {

// Variants print as their text in failure messages.
inline void PrintTo(const Variant& value, std::ostream* out) {
  *out << (value.IsEmpty()  ? "<empty>"
           : value.IsText() ? "\"" + value.ToText() + "\""
                            : value.ToText());
}

// Drops every form and brings every subsystem's state to its defaults.
void ResetProgram();

class FreshProgram : public ::testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  ScriptedPlatform platform;
};

}  // namespace ostraline
