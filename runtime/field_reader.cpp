#include "runtime/field_reader.h"

#include <algorithm>
#include <fstream>

#include "runtime/general_format.h"
#include "runtime/number_text.h"

namespace ostraline {

FieldReader FieldReader::Open(const std::string& path, std::size_t chunk) {
  auto in = std::make_shared<std::ifstream>(path, std::ios::binary);
  if (!*in) Fail(FailureKind::FileNotFound, path);
  FieldReader reader{std::string()};
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

  Field field{{}, false};
  if (content_[pos_] == '"') {
    field.quoted = true;
    std::size_t close = content_.find('"', pos_ + 1);
    while (close == std::string::npos) {
      const std::size_t searched = content_.size();
      if (!ReadOn(searched)) break;
      close = content_.find('"', searched);
    }
    if (close == std::string::npos) {
      field.text = content_.substr(pos_ + 1);
      pos_ = content_.size();
      return field;
    }
    field.text = content_.substr(pos_ + 1, close - pos_ - 1);
    // A quoted field may hold line ends of its own.
    next_.line += static_cast<long>(std::count(field.text.begin(), field.text.end(), '\n'));
    pos_ = close + 1;
    while (Has(pos_) && !EndsField(content_[pos_])) ++pos_;
  } else {
    const std::size_t start = pos_;
    // Through the text at hand, then on into what the file gives next.
    do {
      const char* text = content_.data();
      const std::size_t size = content_.size();
      while (pos_ < size && !EndsField(text[pos_])) ++pos_;
    } while (pos_ == content_.size() && ReadOn(pos_));
    field.text.assign(content_, start, pos_ - start);
  }
  if (Has(pos_) && content_[pos_] == ',') {
    ++pos_;
  } else {
    ConsumeLineEnd();
  }
  return field;
}

std::string PlaceText(const FieldReader::Place& place) {
  return "line " + std::to_string(place.line) + ", field " + std::to_string(place.field);
}

std::string FieldReader::ReadText() {
  return Next().text;
}

float FieldReader::ReadSingle() {
  const Field field = Next();
  try {
    return CSng(Val(field.text));
  } catch (const RuntimeFailure& failure) {
    Fail(failure.Kind(),
         PlaceText(last_) + ": '" + field.text + "' is beyond the range of a Single");
  }
}

Variant FieldReader::ReadVariant() {
  Field field = Next();
  if (field.quoted) return Variant(std::move(field.text));
  if (field.text.empty()) return Variant();
  if (IsNumeric(field.text)) return Variant(CDbl(field.text));
  return Variant(std::move(field.text));
}

void FieldWriter::Separate() {
  if (rowStarted_) out_ += ',';
  rowStarted_ = true;
}

void FieldWriter::Text(std::string_view text) {
  Separate();
  out_ += '"';
  out_ += text;
  out_ += '"';
}

void FieldWriter::Number(double value) {
  Separate();
  AppendGeneral(out_, value);
}

void FieldWriter::Number(float value) {
  Separate();
  AppendGeneral(out_, value);
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
    Separate();
    out_ += value.ToText();
  }
}

void FieldWriter::EndRow() {
  out_ += "\r\n";
  rowStarted_ = false;
}

}  // namespace ostraline
