#pragma once
// The converted file is written under a short temporary name in its target's
// folder and put in its place only when complete: a conversion that fails,
// or a signal that ends it, leaves whatever file stood there before
// untouched and no temporary file behind. A target that is a link is
// written through to the file the link names; a replaced file keeps its
// permissions, and its owner where the user may give it.
#include <cstdio>
#include <string>
#include <string_view>

namespace ostraline {

class ReplacementFile {
 public:
  // Creates the temporary file; a folder that cannot take it fails as a file
  // that cannot be opened, with the system's reason in the failure's detail.
  explicit ReplacementFile(std::string target);
  ReplacementFile(const ReplacementFile&) = delete;
  ReplacementFile& operator=(const ReplacementFile&) = delete;
  // Without Commit the temporary file is removed.
  ~ReplacementFile();

  void Write(std::string_view text);
  // Closes the temporary file and renames it onto the target.
  void Commit();

 private:
  std::string target_;
  std::string temporary_;
  std::FILE* file_ = nullptr;
  // Bytes written since the disk was last asked to take them.
  std::size_t unsynced_ = 0;
};

}  // namespace ostraline
