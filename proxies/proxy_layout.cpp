// The layout of a proxy record is not declared anywhere in the file: it is
// inferred from where the first plain number stands and from what the field
// 2n - 4 holds.
#include "proxies/proxy_layout.h"

#include <algorithm>

#include "core/depth_conversions.h"
#include "core/hole_lookup.h"
#include "runtime/number_text.h"

namespace ostraline {
namespace {

bool Either(const std::string& text, const std::string& a, const std::string& b) {
  return text == a || text == b;
}

// The header word test: the names of a position given by hole, section and PSP.
bool HeaderNamesTrinity(const Table<std::string>& field) {
  const std::string& second = field(1);
  const std::string& third = field(2);
  const std::string& fourth = field(3);
  return Left(second, 4) == "Bore" || Left(fourth, 8) == "Distance" ||
         Left(fourth, 8) == "Position" || Left(fourth, 7) == "Defined" ||
         Left(fourth, 3) == "PSP" || Right(fourth, 5) == "(PSP)" || Left(third, 4) == "Core" ||
         Right(third, 7) == "Section";
}

// The composite depth of a row given by bore hole, section and PSP.
Single TrinityDepth(BoreHoleSet& set, const std::string& hole, const std::string& section,
                    Single psp) {
  const Integer h = BHNo(set, hole);
  const Integer s = SectionOrdinalByName(set, h.Get(), section);
  return CompositeFromTrinity(set, h.Get(), s.Get(), psp).ToSingle();
}

Single TextDepth(BoreHoleSet& set, const Table<std::string>& field, long at) {
  return TrinityDepth(set, field(at), field(at + 1), CSng(Val(field(at + 2))));
}

void ReadValues(FieldReader& file, ProxyWork& work, long row) {
  for (long j = 1; j <= work.columns; ++j) work.ValueWork(j, row) = file.ReadSingle();
}

// Values of a row that already lie in the fields, from field `at` on.
void ValuesOfFields(ProxyWork& work, long row, long at, long count) {
  for (long j = 1; j <= count; ++j) work.ValueWork(j, row) = CSng(work.Field(at + j));
}

}  // namespace

ProxyWork::ProxyWork() {
  Field.DimUpper(99999);
  HeaderWork.DimUpper(135);
  LabelWork.DimUpper(2);
  DepthWork.DimUpper(2);
  ValueWork.Dim({{0, 255}, {0, 2}});
}

void ProxyWork::ReachRow(long r) {
  constexpr long kLastRow = 65535;
  if (r > kLastRow) Fail(FailureKind::SubscriptOutOfRange, "more than 65,535 rows");
  if (r <= LabelWork.UBound()) return;
  const long room = std::min(std::max(r, 2 * LabelWork.UBound()), kLastRow);
  LabelWork.ReDimPreserve(room);
  DepthWork.ReDimPreserve(room);
  ValueWork.ReDimPreserve(room);
}

bool IsPlainNumber(const std::string& field) {
  return Str(Val(field)) == field;
}

void RecogniseLayout(const BoreHoleSet& set, FieldReader& file, ProxyWork& work) {
  Table<std::string>& field = work.Field;
  long n = 0;
  do {
    field(n) = file.ReadText();
    ++n;
  } while (!IsPlainNumber(field(n - 1)));
  const long m = 2 * n - 4;
  for (long i = n; i <= m; ++i) field(i) = file.ReadText();

  const bool w = HeaderNamesTrinity(field);
  const auto& name = set.HoleName;
  // The first field is tested against bore holes 2 and 4, the field m
  // against 1 and 3: a header whose first name is hole 2's letter counts as
  // a hole column.
  const bool firstNamesNoHole = !Either(field(0), name(2), name(4));
  if (IsPlainNumber(field(m))) {
    const std::string& before = field(m - 1);
    const bool c = !Either(field(m), name(1), name(3)) && firstNamesNoHole &&
                   !Either(before, name(1), name(2)) && !Either(before, name(3), name(4));
    if (c && !w) {
      work.layout = ProxyLayout::L1;
      work.columns = n - 2;
    } else {
      work.layout = ProxyLayout::L4;
      work.columns = n - 7;
    }
  } else {
    const std::string& at = field(m);
    const bool c = !Either(at, name(1), name(3)) && !Either(at, "A", "B") &&
                   !Either(at, "C", "D") && firstNamesNoHole;
    if (c && !w) {
      work.layout = ProxyLayout::L2;
      work.columns = n - 4;
    } else {
      work.layout = ProxyLayout::L3;
      work.columns = n - 5;
    }
  }
}

void ReadProxyRows(BoreHoleSet& set, FieldReader& file, ProxyWork& work) {
  Table<std::string>& field = work.Field;
  // N data columns.
  const long N = work.columns;
  switch (work.layout) {
    case ProxyLayout::L1:
      for (long j = 1; j <= N; ++j) work.HeaderWork(j) = field(j);
      work.DepthWork(1) = CSng(field(N + 1));
      work.LabelWork(1) = field(N + 1);
      ValuesOfFields(work, 1, N + 1, N - 1);
      work.ValueWork(N, 1) = file.ReadSingle();
      work.rows = 1;
      break;
    case ProxyLayout::L2:
      for (long j = 1; j <= N; ++j) work.HeaderWork(j) = field(j + 1);
      work.LabelWork(1) = field(N + 2);
      work.DepthWork(1) = CSng(field(N + 3));
      ValuesOfFields(work, 1, N + 3, N);
      work.LabelWork(2) = field(2 * N + 4);
      work.DepthWork(2) = file.ReadSingle();
      ReadValues(file, work, 2);
      work.rows = 2;
      break;
    case ProxyLayout::L3: {
      for (long j = 1; j <= N; ++j) work.HeaderWork(j) = field(j + 2);
      work.DepthWork(1) = TextDepth(set, field, N + 3);
      work.LabelWork(1) = Str(work.DepthWork(1));
      ValuesOfFields(work, 1, N + 5, N);
      const long hole = 2 * N + 6;
      field(hole + 1) = file.ReadText();
      field(hole + 2) = file.ReadText();
      work.DepthWork(2) = TextDepth(set, field, hole);
      work.LabelWork(2) = Str(work.DepthWork(2));
      ReadValues(file, work, 2);
      work.rows = 2;
      break;
    }
    case ProxyLayout::L4: {
      for (long j = 1; j <= N; ++j) work.HeaderWork(j) = field(j + 3);
      work.LabelWork(1) = field(N + 4);
      work.DepthWork(1) = TextDepth(set, field, N + 5);
      ValuesOfFields(work, 1, N + 7, N);
      const long label = 2 * N + 8;
      work.LabelWork(2) = field(label);
      field(label + 3) = file.ReadText();
      work.DepthWork(2) = TextDepth(set, field, label + 1);
      ReadValues(file, work, 2);
      work.rows = 2;
      break;
    }
  }

  while (!file.Eof()) {
    const long r = ++work.rows;
    work.ReachRow(r);
    switch (work.layout) {
      case ProxyLayout::L1:
        work.DepthWork(r) = file.ReadSingle();
        work.LabelWork(r) = Str(work.DepthWork(r));
        break;
      case ProxyLayout::L2:
        work.LabelWork(r) = file.ReadText();
        work.DepthWork(r) = file.ReadSingle();
        break;
      case ProxyLayout::L3: {
        const std::string hole = file.ReadText();
        const std::string section = file.ReadText();
        const Single psp = file.ReadSingle();
        work.DepthWork(r) = TrinityDepth(set, hole, section, psp);
        work.LabelWork(r) = Str(work.DepthWork(r));
        break;
      }
      case ProxyLayout::L4: {
        work.LabelWork(r) = file.ReadText();
        const std::string hole = file.ReadText();
        const std::string section = file.ReadText();
        const Single psp = file.ReadSingle();
        work.DepthWork(r) = TrinityDepth(set, hole, section, psp);
        break;
      }
    }
    ReadValues(file, work, r);
  }
}

}  // namespace ostraline
