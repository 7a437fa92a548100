#pragma once
// The sample project's files imported once per process, through the dialogs
// with their own names (so that their versions agree), and the program then
// taken back to that state before each input: the fuzzed file meets real
// bore holes, sections, layers and ages.
#include <initializer_list>
#include <memory>

#include "forms/scripted_platform.h"
#include "fuzz/support/program_snapshot.h"

namespace ostraline::fuzz {

// The files of the chain, in the order of the buttons; the Duo opens once the
// master's event list is in.
enum class SampleFile { Model, Events, Ages, Varves, DuoModel, DuoEvents };

class SampleChain {
 public:
  explicit SampleChain(std::initializer_list<SampleFile> files);

  // The program as the imports left it, with a new platform for the input.
  ScriptedPlatform& Restore() const;

 private:
  std::unique_ptr<ProgramSnapshot> snapshot_;
};

}  // namespace ostraline::fuzz
