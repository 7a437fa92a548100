#include "events/batch_output_file.h"

#include <filesystem>
#include <random>

#include "runtime/failure.h"

namespace ostraline {
namespace {

// A name beside the target that no other file has: created exclusively, so
// that two conversions into one folder never share it.
std::FILE* CreateBeside(const std::string& target, std::string& name) {
  std::random_device seed;
  std::mt19937 draw(seed());
  for (int attempt = 0; attempt < 16; ++attempt) {
    name = target + "." + std::to_string(draw() % 1000000) + ".tmp";
    if (std::FILE* file = std::fopen(name.c_str(), "wbx")) return file;
  }
  Fail(FailureKind::FileNotFound, "cannot write beside " + target);
}

}  // namespace

ReplacementFile::ReplacementFile(std::string target) : target_(std::move(target)) {
  file_ = CreateBeside(target_, temporary_);
}

ReplacementFile::~ReplacementFile() {
  if (file_ != nullptr) std::fclose(file_);
  if (!temporary_.empty()) std::remove(temporary_.c_str());
}

void ReplacementFile::Write(const std::string& text) {
  if (std::fwrite(text.data(), 1, text.size(), file_) != text.size()) {
    Fail(FailureKind::FileNotFound, "cannot write " + temporary_);
  }
}

void ReplacementFile::Commit() {
  const bool closed = std::fclose(file_) == 0;
  file_ = nullptr;
  if (!closed) Fail(FailureKind::FileNotFound, "cannot write " + temporary_);
  std::error_code error;
  std::filesystem::rename(temporary_, target_, error);
  if (error) Fail(FailureKind::FileNotFound, "cannot replace " + target_ + ": " + error.message());
  temporary_.clear();
}

}  // namespace ostraline
