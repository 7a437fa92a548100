#include "runtime/field_reader.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>

#include "runtime/number_text.h"

namespace ostraline {

FieldReader FieldReader::Open(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) Fail(FailureKind::FileNotFound, path);
  std::ostringstream buffer;
  buffer << in.rdbuf();
  return FieldReader(buffer.str());
}

void FieldReader::ConsumeLineEnd() {
  if (pos_ < content_.size() && content_[pos_] == '\r') {
    ++pos_;
    if (pos_ < content_.size() && content_[pos_] == '\n') ++pos_;
  } else if (pos_ < content_.size() && content_[pos_] == '\n') {
    ++pos_;
  } else {
    return;
  }
  next_ = {next_.line + 1, 0};
}

FieldReader::Field FieldReader::Next() {
  const std::size_t n = content_.size();
  while (pos_ < n && (content_[pos_] == ' ' || content_[pos_] == '\t' || content_[pos_] == '\r' ||
                      content_[pos_] == '\n')) {
    const bool lineEnd = content_[pos_] == '\n' ||
                         (content_[pos_] == '\r' && (pos_ + 1 >= n || content_[pos_ + 1] != '\n'));
    if (lineEnd) next_ = {next_.line + 1, 0};
    ++pos_;
  }
  if (pos_ >= n) Fail(FailureKind::InputPastEnd, "line " + std::to_string(Line()));
  ++next_.field;
  last_ = next_;

  Field field{{}, false};
  if (content_[pos_] == '"') {
    field.quoted = true;
    const std::size_t close = content_.find('"', pos_ + 1);
    if (close == std::string::npos) {
      field.text = content_.substr(pos_ + 1);
      pos_ = n;
      return field;
    }
    field.text = content_.substr(pos_ + 1, close - pos_ - 1);
    // A quoted field may hold line ends of its own.
    next_.line += static_cast<long>(std::count(field.text.begin(), field.text.end(), '\n'));
    pos_ = close + 1;
    while (pos_ < n && content_[pos_] != ',' && content_[pos_] != '\r' && content_[pos_] != '\n') {
      ++pos_;
    }
  } else {
    const std::size_t start = pos_;
    while (pos_ < n && content_[pos_] != ',' && content_[pos_] != '\r' && content_[pos_] != '\n') {
      ++pos_;
    }
    field.text = content_.substr(start, pos_ - start);
  }
  if (pos_ < n && content_[pos_] == ',') {
    ++pos_;
  } else {
    ConsumeLineEnd();
  }
  return field;
}

std::string FieldReader::ReadText() {
  return Next().text;
}

float FieldReader::ReadSingle() {
  const Field field = Next();
  try {
    return CSng(Val(field.text));
  } catch (const RuntimeFailure& failure) {
    Fail(failure.Kind(), "line " + std::to_string(last_.line) + ", field " +
                             std::to_string(last_.field) + ": '" + field.text +
                             "' is beyond the range of a Single");
  }
}

Variant FieldReader::ReadVariant() {
  Field field = Next();
  if (field.quoted) return Variant(std::move(field.text));
  if (field.text.empty()) return Variant();
  if (IsNumeric(field.text)) return Variant(CDbl(field.text));
  return Variant(std::move(field.text));
}

long FieldReader::Line() const {
  long line = 1;
  for (std::size_t i = 0; i < pos_ && i < content_.size(); ++i) {
    const bool crAlone =
        content_[i] == '\r' && (i + 1 >= content_.size() || content_[i + 1] != '\n');
    if (content_[i] == '\n' || crAlone) ++line;
  }
  return line;
}

void FieldWriter::Separate() {
  if (rowStarted_) out_ += ',';
  rowStarted_ = true;
}

void FieldWriter::Text(const std::string& text) {
  Separate();
  out_ += '"';
  out_ += text;
  out_ += '"';
}

void FieldWriter::Number(double value) {
  Separate();
  out_ += Str(value);
}

void FieldWriter::Number(float value) {
  Separate();
  out_ += Str(value);
}

void FieldWriter::Value(const Variant& value) {
  if (value.IsText()) {
    Text(value.ToText());
  } else {
    Separate();
    out_ += value.ToText();
  }
}

void FieldWriter::EndRow() {
  out_ += "\r\n";
  rowStarted_ = false;
}

}  // namespace ostraline
