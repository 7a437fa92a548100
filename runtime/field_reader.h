#pragma once
// Reading a data file field by field: the reader does not care where lines
// end, so a row's layout is only the number of fields asked for.
#include <cstddef>
#include <string>

#include "runtime/variant.h"

namespace ostraline {

class FieldReader {
 public:
  explicit FieldReader(std::string content) : content_(std::move(content)) {}
  // Fails with FileNotFound when the file cannot be opened for input.
  static FieldReader Open(const std::string& path);

  std::string ReadText();
  float ReadSingle();
  Variant ReadVariant();

  // True only when nothing at all is left: the test between rows.
  bool Eof() const { return pos_ >= content_.size(); }

  // Where the reader stands, for messages beyond the program's own texts.
  long Line() const;
  // Where the field read last began: its line and its place on that line,
  // both counted from 1.
  struct Place {
    long line = 0;
    int field = 0;
  };
  Place LastPlace() const { return last_; }

 private:
  struct Field {
    std::string text;
    bool quoted;
  };
  Field Next();
  void ConsumeLineEnd();

  std::string content_;
  std::size_t pos_ = 0;
  Place next_{1, 0};
  Place last_;
};

// Writing a data file: fields separated by commas, text in double quotes,
// numbers bare, one row to a line.
class FieldWriter {
 public:
  void Text(const std::string& text);
  void Number(double value);
  void Number(float value);
  void Value(const Variant& value);
  void EndRow();
  const std::string& Content() const { return out_; }

 private:
  void Separate();
  std::string out_;
  bool rowStarted_ = false;
};

}  // namespace ostraline
