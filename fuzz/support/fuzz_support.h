#pragma once
// What every fuzz target needs: the input bytes as a file that an import can
// open, a fresh program for each input so that no run leans on the last, and
// a loud end for a broken promise.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "forms/scripted_platform.h"

namespace ostraline::fuzz {

// Writes the bytes to this process's input file, the same file on every call,
// and returns its full name.
const std::string& WriteInputFile(const std::uint8_t* data, std::size_t size);

// Starts from a fresh program: a new scripted platform installed (returned for
// queueing file names and answers), every form dropped, every subsystem's
// state at its defaults.
ScriptedPlatform& ResetProgram();

// A new scripted platform for the next input; the last one is dropped.
ScriptedPlatform& FreshPlatform();

// Prints what broke and aborts, so that the fuzzer keeps the input.
[[noreturn]] void Broken(const char* what);

inline void Require(bool condition, const char* what) {
  if (!condition) Broken(what);
}

// How many of the messages begin with this text.
int CountMessages(const ScriptedPlatform& platform, std::string_view start);

}  // namespace ostraline::fuzz
