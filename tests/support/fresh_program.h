#pragma once
// Every test starts from a fresh program: no form loaded, the state at its
// defaults, and a scripted platform that records message boxes.
#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "forms/scripted_platform.h"
#include "runtime/variant.h"
#include "support/model_files.h"

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

  // Queues the model file and presses the model's import button.
  void ImportModel(const std::vector<ModelRow>& rows,
                   const std::string& name = "model_20110305.csv");
  // Queues the event list and presses its import button.
  void ImportEventList(const std::string& text, const std::string& name = "events_20110401.csv");
  // The user types a composite depth into the main form's box and presses Enter.
  static void TypeCompositeDepth(const std::string& depth);
  // The one message box shown, as "title: text".
  std::string OnlyMessage() const;
  // The one message box is the readers' format error with its exclamation icon.
  bool FailedWithFormatError() const;

  ScriptedPlatform platform;
};

}  // namespace ostraline
