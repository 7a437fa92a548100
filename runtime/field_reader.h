#pragma once
// Reading a data file field by field: the reader does not care where lines
// end, so a row's layout is only the number of fields asked for.
#include <cstddef>
#include <istream>
#include <memory>
#include <string>
#include <string_view>

#include "runtime/variant.h"

namespace ostraline {

class FieldReader {
 public:
  explicit FieldReader(std::string content) : content_(std::move(content)) {}
  // Fails with FileNotFound when the file cannot be opened for input. The
  // file is read a chunk at a time, so that a file of millions of rows
  // never lies in memory whole. Reading begins `from` bytes into the file.
  static FieldReader Open(const std::string& path, std::size_t chunk = 1 << 20,
                          std::size_t from = 0);

  std::string ReadText();
  // The same field's text where it lies in the reader, good until the next read.
  std::string_view ReadTextView();
  float ReadSingle();
  Variant ReadVariant();

  // True only when nothing at all is left: the test between rows.
  bool Eof() { return !Has(pos_); }
  // How many bytes into the file the next field's text, or the blanks
  // before it, begin.
  std::size_t Offset() const { return dropped_ + pos_; }

  // Where the reader stands, for messages beyond the program's own texts.
  long Line() const { return next_.line; }
  // Where the field read last began: its line and its place on that line,
  // both counted from 1.
  struct Place {
    long line = 0;
    int field = 0;
  };
  Place LastPlace() const { return last_; }

 private:
  // The text lies in content_ until the next field is read.
  struct Field {
    std::string_view text;
    bool quoted;
  };
  Field Next();
  void ConsumeLineEnd();
  // Whether the text holds position i, reading on in the file if it must.
  bool Has(std::size_t i) { return i < content_.size() || ReadOn(i); }
  bool ReadOn(std::size_t i);
  // Drops the text read before the field about to begin.
  void DropRead();

  std::string content_;
  std::size_t pos_ = 0;
  // The bytes of the file before content_.
  std::size_t dropped_ = 0;
  // The file behind content_ while it is read a chunk at a time.
  std::shared_ptr<std::istream> file_;
  std::size_t chunk_ = 0;
  Place next_{1, 0};
  Place last_;
};

// Writing a data file: fields separated by commas, text in double quotes,
// numbers bare, one row to a line.
// "line 37, field 14".
std::string PlaceText(const FieldReader::Place& place);

class FieldWriter {
 public:
  void Text(std::string_view text);
  void Number(double value);
  void Number(float value);
  void Value(const Variant& value);
  void EndRow();
  std::string_view Content() const { return {out_.data(), size_}; }
  // Forgets the rows written so far, keeping the room they took.
  void Clear() {
    size_ = 0;
    rowStarted_ = false;
  }

 private:
  // Where the next characters go, with room for n of them.
  char* Room(std::size_t n);
  // The next field's place, after its comma, with room for n characters.
  char* Start(std::size_t n);
  void End(const char* end) { size_ = static_cast<std::size_t>(end - out_.data()); }
  // The first size_ characters are written; the rest is room.
  std::string out_;
  std::size_t size_ = 0;
  bool rowStarted_ = false;
};

}  // namespace ostraline
