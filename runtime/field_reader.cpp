#include "runtime/field_reader.h"

#include <algorithm>
#include <cstring>
#include <fstream>

#include "runtime/general_format.h"
#include "runtime/number_text.h"

namespace ostraline {

FieldReader FieldReader::Open(const std::string& path, std::size_t chunk, std::size_t from) {
  auto in = std::make_shared<std::ifstream>(path, std::ios::binary);
  if (!*in) Fail(FailureKind::FileNotFound, path);
  if (from > 0 && !in->seekg(static_cast<std::streamoff>(from))) {
    Fail(FailureKind::FileNotFound, path);
  }
  FieldReader reader{std::string()};
  reader.dropped_ = from;
  reader.file_ = std::move(in);
  reader.chunk_ = std::max<std::size_t>(chunk, 1);
  return reader;
}

bool FieldReader::ReadOn(std::size_t i) {
  while (file_ && i >= content_.size()) {
    const std::size_t had = content_.size();
    content_.resize(had + chunk_);
    file_->read(content_.data() + had, static_cast<std::streamsize>(chunk_));
    content_.resize(had + static_cast<std::size_t>(file_->gcount()));
    if (content_.size() == had) file_.reset();
  }
  return i < content_.size();
}

void FieldReader::DropRead() {
  if (!file_ || pos_ < chunk_) return;
  content_.erase(0, pos_);
  dropped_ += pos_;
  pos_ = 0;
}

namespace {

bool IsBlank(char c) {
  return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

bool EndsField(char c) {
  return c == ',' || c == '\r' || c == '\n';
}

}  // namespace

void FieldReader::ConsumeLineEnd() {
  if (Has(pos_) && content_[pos_] == '\r') {
    ++pos_;
    if (Has(pos_) && content_[pos_] == '\n') ++pos_;
  } else if (Has(pos_) && content_[pos_] == '\n') {
    ++pos_;
  } else {
    return;
  }
  next_ = {next_.line + 1, 0};
}

FieldReader::Field FieldReader::Next() {
  DropRead();
  while (Has(pos_) && IsBlank(content_[pos_])) {
    const bool lineEnd = content_[pos_] == '\n' ||
                         (content_[pos_] == '\r' && !(Has(pos_ + 1) && content_[pos_ + 1] == '\n'));
    if (lineEnd) next_ = {next_.line + 1, 0};
    ++pos_;
  }
  if (!Has(pos_)) Fail(FailureKind::InputPastEnd, "line " + std::to_string(next_.line));
  ++next_.field;
  last_ = next_;

  // The text is kept by its place: reading on may move content_.
  bool quoted = false;
  std::size_t start = pos_;
  std::size_t size = 0;
  if (content_[pos_] == '"') {
    quoted = true;
    start = pos_ + 1;
    std::size_t close = content_.find('"', start);
    while (close == std::string::npos) {
      const std::size_t searched = content_.size();
      if (!ReadOn(searched)) break;
      close = content_.find('"', searched);
    }
    if (close == std::string::npos) {
      pos_ = content_.size();
      return {std::string_view(content_).substr(start), true};
    }
    size = close - start;
    // A quoted field may hold line ends of its own.
    next_.line += static_cast<long>(std::count(content_.begin() + static_cast<long>(start),
                                               content_.begin() + static_cast<long>(close), '\n'));
    pos_ = close + 1;
    while (Has(pos_) && !EndsField(content_[pos_])) ++pos_;
  } else {
    // Through the text at hand, then on into what the file gives next.
    do {
      const char* text = content_.data();
      const std::size_t end = content_.size();
      while (pos_ < end && !EndsField(text[pos_])) ++pos_;
    } while (pos_ == content_.size() && ReadOn(pos_));
    size = pos_ - start;
  }
  if (Has(pos_) && content_[pos_] == ',') {
    ++pos_;
  } else {
    ConsumeLineEnd();
  }
  return {std::string_view(content_).substr(start, size), quoted};
}

std::string PlaceText(const FieldReader::Place& place) {
  return "line " + std::to_string(place.line) + ", field " + std::to_string(place.field);
}

std::string FieldReader::ReadText() {
  return std::string(Next().text);
}

std::string_view FieldReader::ReadTextView() {
  return Next().text;
}

float FieldReader::ReadSingle() {
  const Field field = Next();
  try {
    return CSng(Val(field.text));
  } catch (const RuntimeFailure& failure) {
    Fail(failure.Kind(),
         PlaceText(last_) + ": '" + std::string(field.text) + "' is beyond the range of a Single");
  }
}

Variant FieldReader::ReadVariant() {
  const Field field = Next();
  if (field.quoted) return Variant(field.text);
  if (field.text.empty()) return Variant();
  if (IsNumeric(field.text)) return Variant(CDbl(field.text));
  return Variant(field.text);
}

char* FieldWriter::Room(std::size_t n) {
  // The room grows as a vector would.
  if (size_ + n > out_.size()) out_.resize(std::max(2 * out_.size(), size_ + n + 256));
  return out_.data() + size_;
}

char* FieldWriter::Start(std::size_t n) {
  char* at = Room(n + 1);
  if (rowStarted_) *at++ = ',';
  rowStarted_ = true;
  return at;
}

void FieldWriter::Text(std::string_view text) {
  char* at = Start(text.size() + 2);
  *at++ = '"';
  std::memcpy(at, text.data(), text.size());
  at += text.size();
  *at++ = '"';
  End(at);
}

void FieldWriter::Number(double value) {
  End(WriteGeneral(Start(kGeneralLength), value));
}

void FieldWriter::Number(float value) {
  End(WriteGeneral(Start(kGeneralLength), value));
}

void FieldWriter::Value(const Variant& value) {
  // A number as its text would have it, written where it goes.
  if (value.IsSingle()) {
    Number(value.ToSingle());
  } else if (value.IsDouble()) {
    Number(value.ToDouble());
  } else if (value.IsText()) {
    Text(value.TextView());
  } else {
    const std::string text = value.ToText();
    char* at = Start(text.size());
    std::memcpy(at, text.data(), text.size());
    End(at + text.size());
  }
}

void FieldWriter::EndRow() {
  char* at = Room(2);
  *at++ = '\r';
  *at++ = '\n';
  End(at);
  rowStarted_ = false;
}

}  // namespace ostraline
