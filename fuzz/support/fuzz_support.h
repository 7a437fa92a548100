#pragma once
// What every fuzz target needs: the input bytes as a file that an import can
// open, and a fresh program for each input so that no run leans on the last.
#include <cstddef>
#include <cstdint>
#include <string>

#include "forms/scripted_platform.h"

namespace ostraline::fuzz {

// Writes the bytes to this process's input file, the same file on every call,
// and returns its full name.
const std::string& WriteInputFile(const std::uint8_t* data, std::size_t size);

// Starts from a fresh program: a new scripted platform installed (returned for
// queueing file names and answers), every form dropped, every subsystem's state at its defaults.
ScriptedPlatform& ResetProgram();

}  // namespace ostraline::fuzz
