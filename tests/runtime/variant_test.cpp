#include "runtime/variant.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <limits>
#include <optional>
#include <random>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "runtime/number_text.h"
#include "runtime/variant_table.h"
#include "support/failures.h"

namespace ostraline {
namespace {

// The variant as the standard library would keep it: what the compact one
// must behave as.
struct Reference {
  std::variant<std::monostate, std::int32_t, float, double, std::string> value;

  bool IsEmpty() const { return value.index() == 0; }
  bool IsWhole() const { return value.index() == 1; }
  bool IsSingle() const { return value.index() == 2; }
  bool IsDouble() const { return value.index() == 3; }
  bool IsText() const { return value.index() == 4; }
  bool IsNumber() const { return IsWhole() || IsSingle() || IsDouble(); }
  double ToDouble() const {
    if (IsWhole()) return std::get<std::int32_t>(value);
    if (IsSingle()) return std::get<float>(value);
    if (IsDouble()) return std::get<double>(value);
    return IsText() ? CDbl(std::get<std::string>(value)) : 0.0;
  }
  float ToSingle() const {
    if (IsSingle()) return std::get<float>(value);
    if (IsText()) return CSng(std::get<std::string>(value));
    return CSng(ToDouble());
  }
  std::string ToText() const {
    if (IsWhole()) return Str(static_cast<long long>(std::get<std::int32_t>(value)));
    if (IsSingle()) return Str(std::get<float>(value));
    if (IsDouble()) return Str(std::get<double>(value));
    return IsText() ? std::get<std::string>(value) : std::string();
  }
  double TextValue() const { return Val(ToText()); }
};

// Everything a reader can learn of a value; numbers by their bits, so that
// -0 and NaN count.
struct Seen {
  std::vector<bool> kinds;
  std::string text;
  std::optional<FailureKind> doubleFailure, singleFailure;
  std::uint64_t doubleBits = 0;
  std::uint32_t singleBits = 0;
  std::uint64_t textValueBits = 0;
  bool operator==(const Seen&) const = default;
};

template <class V>
Seen See(const V& v) {
  Seen seen;
  seen.kinds = {v.IsEmpty(), v.IsWhole(), v.IsSingle(), v.IsDouble(), v.IsText(), v.IsNumber()};
  seen.text = v.ToText();
  seen.textValueBits = std::bit_cast<std::uint64_t>(v.TextValue());
  seen.doubleFailure =
      FailureOf([&] { seen.doubleBits = std::bit_cast<std::uint64_t>(v.ToDouble()); });
  seen.singleFailure =
      FailureOf([&] { seen.singleBits = std::bit_cast<std::uint32_t>(v.ToSingle()); });
  return seen;
}

Variant Compact(const Reference& r) {
  return std::visit(
      [](const auto& x) {
        if constexpr (std::is_same_v<std::decay_t<decltype(x)>, std::monostate>)
          return Variant();
        else
          return Variant(x);
      },
      r.value);
}

std::vector<Reference> Samples() {
  using Limits = std::numeric_limits<double>;
  std::vector<Reference> all{{}};
  for (std::int32_t n : {0, 1, -1, 12, std::numeric_limits<std::int32_t>::min(),
                         std::numeric_limits<std::int32_t>::max()})
    all.emplace_back().value = n;
  for (double d : {0.0, -0.0, 0.1, -2.5, 1e300, 4e-320, Limits::infinity(), -Limits::infinity(),
                   Limits::quiet_NaN()}) {
    all.emplace_back().value = d;
    all.emplace_back().value = static_cast<float>(d);
  }
  // Texts that read as numbers, one that overflows a Single, and one that is none.
  for (const char* text : {"12.5", " -3 ", "1e300", "1E-05", "abc", "0"})
    all.emplace_back().value = text;
  std::mt19937 random(20250314);
  const std::string alphabet = std::string("aZ9 .-+e\0", 9) + "\xc3\xa9\xe2\x80\x94";
  for (std::size_t length = 0; length <= 40; ++length) {
    for (int copy = 0; copy < 2; ++copy) {
      std::string text;
      for (std::size_t i = 0; i < length; ++i) text += alphabet[random() % alphabet.size()];
      all.emplace_back().value = text;
    }
  }
  return all;
}

TEST(VariantTest, behavesAsTheStandardVariantItReplaces) {
  const std::vector<Reference> samples = Samples();
  for (const Reference& r : samples) {
    SCOPED_TRACE(r.ToText());
    const Variant v = Compact(r);
    EXPECT_EQ(See(v), See(r));
    if (r.IsText() && r.ToText().find('\0') == std::string::npos) {
      EXPECT_EQ(See(Variant(r.ToText().c_str())), See(r));
    }
    if (r.IsWhole()) {
      EXPECT_EQ(See(Variant(Long(std::get<std::int32_t>(r.value)))), See(r));
    }

    Variant copy(v);
    EXPECT_EQ(See(copy), See(r));
    const Variant& alias = copy;
    copy = alias;
    EXPECT_EQ(See(copy), See(r));

    // Moves, constructed and assigned over every kind, leave both sides as
    // the standard variant leaves them.
    for (const Reference& target : samples) {
      Variant source = v, assigned = Compact(target);
      Reference refSource = r, refAssigned = target;
      assigned = std::move(source);
      refAssigned = std::move(refSource);
      EXPECT_EQ(See(assigned), See(refAssigned));
      EXPECT_EQ(See(source), See(refSource));
      assigned = Compact(target);
      assigned = v;
      EXPECT_EQ(See(assigned), See(r));
      EXPECT_EQ(v == Compact(target), r.value == target.value);
    }
    Variant source = v;
    Reference refSource = r;
    const Variant moved(std::move(source));
    const Reference refMoved(std::move(refSource));
    EXPECT_EQ(See(moved), See(refMoved));
    EXPECT_EQ(See(source), See(refSource));
    // A text moved onto itself is left empty, as the standard library leaves it.
    source = v;
    refSource = r;
    Variant& self = source;
    Reference& refSelf = refSource;
    source = std::move(self);
    refSource = std::move(refSelf);
    EXPECT_EQ(See(source), See(refSource));
  }
}

// As a data file is read: six columns, one row at a time, past many blocks of
// cells, then cut back and grown again. Every kind of value reads back as the
// variant written, to the bit, and long texts fill several chunks of texts.
TEST(VariantTest, tableGrownRowByRowKeepsEveryCellAsWritten) {
  const std::vector<Reference> samples = Samples();
  const auto cell = [&](long column, long row) -> Variant {
    if (column == 0)
      return std::string("sample ") + std::to_string(row) + std::string(row % 300, '+');
    if (column == 1) return Compact(samples[static_cast<std::size_t>(row) % samples.size()]);
    return column == 2 ? Variant(row * 0.5) : Variant();
  };
  VariantTable table;
  EXPECT_EQ(FailureOf([&] { table(0, 0); }), FailureKind::SubscriptOutOfRange);
  table.Dim({{0, 5}, {0, 0}});
  constexpr long kRows = 12000;
  for (long row = 1; row <= kRows; ++row) {
    table.ReDimPreserve(row);
    for (long column = 0; column <= 2; ++column) table.Set(column, row, cell(column, row));
  }
  // A text longer than a chunk, and a short one after it.
  const std::string huge(3 << 20, 'x');
  table.SetText(5, 7, huge);
  table.SetText(5, 8, "after it");
  const auto expectKept = [&](const VariantTable& t, long rows) {
    for (long row = 1; row <= rows; ++row) {
      if (!(See(t(1, row)) ==
            See(Compact(samples[static_cast<std::size_t>(row) % samples.size()]))))
        FAIL() << row;
      for (long column : {0, 2, 3, 4}) {
        if (!(t(column, row) == cell(column, row))) FAIL() << column << ", " << row;
      }
    }
    EXPECT_EQ(t(5, 7), Variant(huge));
    EXPECT_EQ(t(5, 8), Variant("after it"));
  };
  expectKept(table, kRows);
  const VariantTable copy = table;
  table.ReDimPreserve(kRows / 3);
  expectKept(table, kRows / 3);
  EXPECT_EQ(FailureOf([&] { table(0, kRows / 3 + 1); }), FailureKind::SubscriptOutOfRange);
  EXPECT_EQ(FailureOf([&] { table.SetText(6, 1, "x"); }), FailureKind::SubscriptOutOfRange);
  // The rows given up come back empty.
  table.ReDimPreserve(kRows);
  EXPECT_TRUE(table(0, kRows / 3 + 1).IsEmpty());
  EXPECT_TRUE(table(2, kRows).IsEmpty());
  // A copy is a table of its own: dimensioning the first anew leaves it whole.
  table.Dim({{0, 5}, {0, 1}});
  EXPECT_TRUE(table(5, 1).IsEmpty());
  expectKept(copy, kRows);
}

}  // namespace
}  // namespace ostraline
