#pragma once
// The converted file is written beside its target and put in its place only
// when complete: a conversion that fails or is cut short leaves whatever file
// stood there before untouched.
#include <cstdio>
#include <string>

namespace ostraline {

class ReplacementFile {
 public:
  // Creates the temporary file beside target; a folder that cannot take it
  // fails as a file that cannot be opened.
  explicit ReplacementFile(std::string target);
  ReplacementFile(const ReplacementFile&) = delete;
  ReplacementFile& operator=(const ReplacementFile&) = delete;
  // Without Commit the temporary file is removed.
  ~ReplacementFile();

  void Write(const std::string& text);
  // Closes the temporary file and renames it onto the target.
  void Commit();

 private:
  std::string target_;
  std::string temporary_;
  std::FILE* file_ = nullptr;
};

}  // namespace ostraline
