#pragma once
// The variant of the program's language: empty, a whole number, a float, a
// double or text. Empty reads as 0 and as "".
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <type_traits>

#include "runtime/checked_int.h"

namespace ostraline {

// Tables hold many thousands of these, so a value takes 16 bytes: the
// number or a short text inline, a longer text on the heap.
class Variant {
 public:
  Variant() noexcept = default;
  Variant(int value) noexcept : kind_(Kind::Whole) { Put(static_cast<std::int32_t>(value)); }
  Variant(Integer value) noexcept : Variant(static_cast<int>(value.Get())) {}
  Variant(Long value) noexcept : Variant(static_cast<int>(value.Get())) {}
  Variant(float value) noexcept : kind_(Kind::Single) { Put(value); }
  Variant(double value) noexcept : kind_(Kind::Double) { Put(value); }
  Variant(const std::string& value) { SetText(value); }
  explicit Variant(std::string_view value) { SetText(value); }
  Variant(const char* value) { SetText(value); }

  Variant(const Variant& other) {
    if (other.kind_ == Kind::LongText) {
      SetText(other.Text());
    } else {
      TakeBytes(other);
    }
  }
  // A text moved from is left as empty text, a number as it was.
  Variant(Variant&& other) noexcept {
    TakeBytes(other);
    other.LeaveMovedFrom();
  }
  Variant& operator=(const Variant& other);
  Variant& operator=(Variant&& other) noexcept {
    Release();
    if (this != &other) TakeBytes(other);
    // Moved onto itself, a text is left empty as any moved-from text is.
    other.LeaveMovedFrom();
    return *this;
  }
  ~Variant() { Release(); }

  bool IsEmpty() const { return kind_ == Kind::Empty; }
  bool IsText() const { return kind_ == Kind::ShortText || kind_ == Kind::LongText; }
  bool IsWhole() const { return kind_ == Kind::Whole; }
  bool IsSingle() const { return kind_ == Kind::Single; }
  bool IsDouble() const { return kind_ == Kind::Double; }
  bool IsNumber() const { return IsWhole() || IsSingle() || IsDouble(); }

  // As a number: text must read as one (else a type mismatch), empty is 0.
  double ToDouble() const;
  // As a Single, the way the language narrows: CSng.
  float ToSingle() const;
  // As text: numbers by Str at their own precision, empty as "".
  std::string ToText() const;
  // What Val reads from that text, found without writing it.
  double TextValue() const;
  // A text's characters where they lie, without a copy; nothing for a number.
  std::string_view TextView() const { return IsText() ? Text() : std::string_view(); }

  // Equal only in the same kind: a whole 1 is not a double 1, and a NaN is
  // equal to nothing.
  friend bool operator==(const Variant& a, const Variant& b);
  // Packs a variant's kind and bytes into its own cells.
  friend class VariantTable;

 private:
  enum class Kind : unsigned char { Empty, Whole, Single, Double, ShortText, LongText };
  static constexpr std::size_t kShortText = 14;

  // The payload is read and written through memcpy: the same bytes hold a
  // number, a short text or the address of a long one.
  template <class T>
  T Get() const {
    T value;
    std::memcpy(&value, bytes_, sizeof value);
    return value;
  }
  template <class T>
  void Put(T value) {
    std::memcpy(bytes_, &value, sizeof value);
  }

  void SetText(std::string_view text);
  std::string_view Text() const;
  // Frees a long text; the bytes are left for the caller to overwrite.
  void Release() noexcept {
    if (kind_ == Kind::LongText) delete[] Get<char*>();
  }
  void TakeBytes(const Variant& other) noexcept {
    std::memcpy(bytes_, other.bytes_, sizeof bytes_);
    shortSize_ = other.shortSize_;
    kind_ = other.kind_;
  }
  // The long text's block has gone to another variant: this one forgets it.
  void LeaveMovedFrom() noexcept {
    if (!IsText()) return;
    kind_ = Kind::ShortText;
    shortSize_ = 0;
  }

  alignas(8) char bytes_[kShortText] = {};
  unsigned char shortSize_ = 0;
  Kind kind_ = Kind::Empty;
};

static_assert(sizeof(Variant) == 16);
// A table's block grows by moving its cells, which a throwing move would turn
// into copies.
static_assert(std::is_nothrow_move_constructible_v<Variant>);

}  // namespace ostraline
