#include "fuzz/support/fuzz_support.h"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>

#include "core/fresh_program.h"
#include "forms/platform.h"

namespace ostraline::fuzz {
namespace {

// One file per process, removed when the process ends: parallel fuzzing jobs
// must not share it. The ".csv" ending is what the file dialogs ask for.
struct InputFile {
  InputFile()
      : name((std::filesystem::temp_directory_path() / "ostraline-fuzz-XXXXXX.csv").string()) {
    const int fd = mkstemps(name.data(), 4);
    if (fd < 0) {
      std::perror("ostraline fuzz input file");
      std::abort();
    }
    close(fd);
  }
  ~InputFile() { std::remove(name.c_str()); }
  std::string name;
};

}  // namespace

const std::string& WriteInputFile(const std::uint8_t* data, std::size_t size) {
  static const InputFile file;
  const std::string& name = file.name;
  std::ofstream out(name, std::ios::binary | std::ios::trunc);
  out.write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
  out.close();
  if (!out) {
    std::perror("ostraline fuzz input file");
    std::abort();
  }
  return name;
}

ScriptedPlatform& ResetProgram() {
  static std::unique_ptr<ScriptedPlatform> platform;
  auto fresh = std::make_unique<ScriptedPlatform>();
  SetPlatform(fresh.get());
  platform = std::move(fresh);
  ResetProgramState();
  return *platform;
}

}  // namespace ostraline::fuzz
