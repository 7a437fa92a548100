#include "fuzz/support/fuzz_support.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>

#include "core/fresh_program.h"
#include "forms/form.h"
#include "forms/platform.h"
#include "fuzz/support/program_snapshot.h"

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

// Written over in place and then cut to length: a file emptied and written
// again is flushed to the disk when it is closed (ext4 does so for files
// replaced by truncation), which would make the fuzzer wait on the disk.
const std::string& WriteInputFile(const std::uint8_t* data, std::size_t size) {
  static const InputFile file;
  const int fd = open(file.name.c_str(), O_WRONLY);
  bool written = fd >= 0;
  for (std::size_t at = 0; written && at < size;) {
    const ssize_t n = pwrite(fd, data + at, size - at, static_cast<off_t>(at));
    written = n > 0;
    at += written ? static_cast<std::size_t>(n) : 0;
  }
  written = written && ftruncate(fd, static_cast<off_t>(size)) == 0;
  if (fd >= 0) close(fd);
  if (!written) {
    std::perror("ostraline fuzz input file");
    std::abort();
  }
  return file.name;
}

ScriptedPlatform& FreshPlatform() {
  static std::unique_ptr<ScriptedPlatform> platform;
  auto fresh = std::make_unique<ScriptedPlatform>();
  SetPlatform(fresh.get());
  platform = std::move(fresh);
  return *platform;
}

// The defaults are made once; going back to them keeps the storage of the
// tables that every model import dimensions anew.
ScriptedPlatform& ResetProgram() {
  FormSlot::ResetAll();
  static const ProgramSnapshot defaults = [] {
    ResetProgramState();
    return ProgramSnapshot();
  }();
  defaults.Restore();
  return FreshPlatform();
}

void Broken(const char* what) {
  std::fputs(what, stderr);
  std::fputc('\n', stderr);
  std::abort();
}

int CountMessages(const ScriptedPlatform& platform, std::string_view start) {
  int count = 0;
  for (const MessageRecord& message : platform.messages) {
    count += message.text.rfind(start, 0) == 0 ? 1 : 0;
  }
  return count;
}

}  // namespace ostraline::fuzz
