#include "events/batch_output_file.h"

#include <fcntl.h>
#include <pthread.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <filesystem>
#include <string>

#include "runtime/failure.h"

namespace ostraline {
namespace {

namespace fs = std::filesystem;

// The temporary file of the conversion under way, removed if a signal ends
// the program before it is put in its place.
char pendingTemporary[4096] = "";
struct sigaction previousActions[3];
constexpr int kEndingSignals[3] = {SIGINT, SIGTERM, SIGHUP};

extern "C" void RemovePendingAndEnd(int signal) {
  if (pendingTemporary[0] != '\0') unlink(pendingTemporary);
  std::signal(signal, SIG_DFL);
  std::raise(signal);
}

void WatchSignals(const std::string& temporary) {
  if (temporary.size() >= sizeof pendingTemporary) return;
  std::memcpy(pendingTemporary, temporary.c_str(), temporary.size() + 1);
  struct sigaction action {};
  action.sa_handler = RemovePendingAndEnd;
  sigemptyset(&action.sa_mask);
  for (int i = 0; i < 3; ++i) sigaction(kEndingSignals[i], &action, &previousActions[i]);
}

void StopWatching() {
  for (int i = 0; i < 3; ++i) sigaction(kEndingSignals[i], &previousActions[i], nullptr);
  pendingTemporary[0] = '\0';
}

[[noreturn]] void FailWith(const std::string& what) {
  Fail(FailureKind::FileNotFound, what + ": " + std::strerror(errno));
}

// A link is written through to the file it names, which keeps the link.
std::string ResolvedTarget(const std::string& target) {
  std::error_code error;
  if (!fs::is_symlink(fs::symlink_status(target, error))) return target;
  const fs::path resolved = fs::weakly_canonical(target, error);
  return error ? target : resolved.string();
}

// The folder of the target, where the temporary file must lie to be renamed
// onto it.
std::string FolderOf(const std::string& target) {
  const fs::path folder = fs::path(target).parent_path();
  return folder.empty() ? std::string(".") : folder.string();
}

}  // namespace

ReplacementFile::ReplacementFile(std::string target) : target_(ResolvedTarget(target)) {
  // A short name in the target's folder, whatever the length of the target's.
  std::string name = FolderOf(target_) + "/.ostraline-XXXXXX";
  // An ending signal that comes between the making of the file and the
  // watch waits for the watch, which then removes the file.
  sigset_t ending;
  sigset_t before;
  sigemptyset(&ending);
  for (const int signal : kEndingSignals) sigaddset(&ending, signal);
  pthread_sigmask(SIG_BLOCK, &ending, &before);
  const int descriptor = mkstemp(name.data());
  const int error = errno;
  if (descriptor >= 0) WatchSignals(name);
  pthread_sigmask(SIG_SETMASK, &before, nullptr);
  if (descriptor < 0) {
    errno = error;
    FailWith("cannot write in the folder of " + target_);
  }
  temporary_ = name;
  file_ = fdopen(descriptor, "wb");
  if (file_ == nullptr) {
    close(descriptor);
    FailWith("cannot write " + temporary_);
  }
}

ReplacementFile::~ReplacementFile() {
  if (file_ != nullptr) std::fclose(file_);
  if (!temporary_.empty()) std::remove(temporary_.c_str());
  StopWatching();
}

void ReplacementFile::Write(std::string_view text) {
  if (std::fwrite(text.data(), 1, text.size(), file_) != text.size()) {
    FailWith("cannot write " + target_);
  }
  // The disk takes what is written from the start, so that putting the file
  // in its place need not wait for all of it at the end.
  constexpr std::size_t kStartWritingEvery = 1 << 20;
  unsynced_ += text.size();
  if (unsynced_ >= kStartWritingEvery) {
    sync_file_range(fileno(file_), 0, 0, SYNC_FILE_RANGE_WRITE);
    unsynced_ = 0;
  }
}

void ReplacementFile::Commit() {
  // The replaced file's permissions, and its owner where the user may give
  // it; a new file takes what the user's file mask allows.
  struct stat existing {};
  if (stat(target_.c_str(), &existing) == 0) {
    fchmod(fileno(file_), existing.st_mode & 07777);
    if (fchown(fileno(file_), existing.st_uid, existing.st_gid) != 0) errno = 0;
  } else {
    const mode_t mask = umask(0);
    umask(mask);
    fchmod(fileno(file_), 0666 & ~mask);
  }
  const bool written = std::fflush(file_) == 0 && fsync(fileno(file_)) == 0;
  const bool closed = std::fclose(file_) == 0;
  file_ = nullptr;
  if (!written || !closed) FailWith("cannot write " + target_);
  if (std::rename(temporary_.c_str(), target_.c_str()) != 0) FailWith("cannot replace " + target_);
  temporary_.clear();
}

}  // namespace ostraline
