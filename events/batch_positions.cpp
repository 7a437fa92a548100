// Rows given as a position (label, bore hole, section, PSP) to composite depth
// and EFD, each row on its own.
#include <array>
#include <cmath>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/depth_conversions.h"
#include "core/hole_lookup.h"
#include "core/project_state.h"
#include "duo/depth_map.h"
#include "duo/duo_state.h"
#include "events/batch_conversion.h"
#include "events/batch_state.h"
#include "events/event_free_depth.h"
#include "events/event_state.h"
#include "forms/frm_main.h"
#include "runtime/failure.h"
#include "runtime/general_format.h"
#include "runtime/number_text.h"
#include "runtime/work_behind.h"

namespace ostraline {
namespace {

// A bore hole by its letter or by its long title; every hole is tested, so
// the last that matches wins. With the Duo open the other set's holes follow
// as 5 to 8.
int HoleNumber(const BoreHoleSet& set, const BoreHoleSet& other, const std::string& name) {
  // Most names differ in their length or their first letter.
  const auto same = [&name](const std::string& known) {
    return name.size() == known.size() && (name.empty() || (name[0] == known[0] && name == known));
  };
  int hole = 9999;
  for (int j = 1; j <= 4; ++j) {
    if (same(set.HoleName(j)) || same(set.HoleTitle(j))) hole = j;
  }
  if (hole != 9999 || !DuoOpen) return hole;
  for (int j = 1; j <= 4; ++j) {
    if (same(other.HoleName(j)) || same(other.HoleTitle(j))) hole = j + 4;
  }
  return hole;
}

// The composite depth of a PSP inside its section, the section's top and
// bottom PSP included; 9999 for an unknown hole or section, or a PSP outside.
Variant CompositeInSection(BoreHoleSet& set, int hole, int section, double psp) {
  if (hole < 1 || hole > 4 || section == 9999) return Integer(9999);
  const double top = ModelPspValue(set, hole, set.SectionTopRow(hole, section));
  const double bottom = ModelPspValue(set, hole, set.SectionBottomRow(hole, section));
  if (psp < top || psp > bottom) return Integer(9999);
  return CompositeFromTrinity(set, hole, section, CSng(psp));
}

// The ordinal of a row's section in its hole, 1 to 4 of this set and 5 to 8
// of the other. The names stand still during a batch, so a section given
// in one to three digits is looked up once per hole; "5", "05" and "005"
// find the same section.
class SectionOrdinals {
 public:
  SectionOrdinals(BoreHoleSet& set, BoreHoleSet& other) : set_(set), other_(other) {}

  int Of(int hole, const Variant& cell) {
    if (hole < 1 || hole > 8) return 9999;
    const std::string_view text = cell.TextView();
    const int number = FastLookups && cell.IsText() ? DigitsNumber(text) : kNoNumber;
    if (number == kNoNumber) return Look(hole, cell.ToText());
    std::vector<int>& known = byNumber_[static_cast<std::size_t>(hole)];
    if (known.empty()) known.assign(kNumbers, kUnknown);
    int& ordinal = known[static_cast<std::size_t>(number)];
    if (ordinal == kUnknown) ordinal = Look(hole, std::string(text));
    return ordinal;
  }

 private:
  static constexpr int kNumbers = 1000;
  static constexpr int kNoNumber = -1;
  static constexpr int kUnknown = -1;

  static int DigitsNumber(std::string_view text) {
    if (text.empty() || text.size() > 3) return kNoNumber;
    int number = 0;
    for (const char c : text) {
      if (c < '0' || c > '9') return kNoNumber;
      number = number * 10 + (c - '0');
    }
    return number;
  }

  int Look(int hole, const std::string& name) {
    return hole <= 4 ? SectionOrdinalByName(set_, hole, name)
                     : SectionOrdinalByName(other_, hole - 4, name);
  }

  BoreHoleSet& set_;
  BoreHoleSet& other_;
  std::array<std::vector<int>, 9> byNumber_;
};

// The hole of each name met in a batch; the names of the holes stand still
// meanwhile. The few names of a file are kept, in the order first met.
class HoleNumbers {
 public:
  HoleNumbers(const BoreHoleSet& set, const BoreHoleSet& other) : set_(set), other_(other) {}

  int Of(const Variant& cell) {
    const std::string_view text = cell.TextView();
    if (cell.IsText()) {
      for (const auto& [name, hole] : known_) {
        if (name == text) return hole;
      }
    }
    std::string name = cell.ToText();
    const int hole = HoleNumber(set_, other_, name);
    if (cell.IsText() && known_.size() < kKept) known_.emplace_back(std::move(name), hole);
    return hole;
  }

 private:
  static constexpr std::size_t kKept = 16;
  const BoreHoleSet& set_;
  const BoreHoleSet& other_;
  std::vector<std::pair<std::string, int>> known_;
};

// A hole of the other set is placed on its scale and mapped to this one's.
Variant CompositeOfPosition(BoreHoleSet& set, int hole, int section, double psp) {
  if (hole < 5 || hole > 8) return CompositeInSection(set, hole, section, psp);
  BoreHoleSet& other = set.IsDuo ? masterSet : duoSet;
  const Variant depth = CompositeInSection(other, hole - 4, section, psp);
  if (depth.ToDouble() == 9999) return depth;
  return set.IsDuo ? MasterToDuo(depth.ToSingle()) : DuoToMaster(depth.ToSingle());
}

// The EFDs of rows whose composite depth is a plain number are made by a
// second thread some rows behind. Any other row's depth is read in turn, and
// its EFD made once those of the rows before it are in the table, so that a
// failure happens where it would have.
class EfdsBehind {
 public:
  explicit EfdsBehind(BoreHoleSet& set)
      : work_([&set](Efds& efds) { MakeEfds(set, efds); }, kBatchesWaiting) {}

  // False for a row whose EFD is not taken: it may fail, or be no number.
  bool Takes(long row, const Variant& cd) {
    if (!cd.IsSingle() && !cd.IsDouble()) return false;
    const double depth = cd.ToDouble();
    // Within these bounds it is a Single once read back.
    if (!(std::abs(depth) < 1e38)) return false;
    gathered_.rows.push_back(row);
    if (gathered_.rows.size() >= kRowsSent) Send();
    return true;
  }

  // Every EFD taken so far is in the table.
  void CatchUp() {
    Send();
    work_.Wait();
    PutDone();
  }

 private:
  static constexpr std::size_t kRowsSent = 8192;
  static constexpr std::size_t kBatchesWaiting = 2;

  struct Efds {
    std::vector<long> rows;
    std::vector<Variant> efds;
  };

  static void MakeEfds(BoreHoleSet& set, Efds& efds) {
    efds.efds.clear();
    for (const long row : efds.rows) {
      const Variant cd = ConversionTable(4, row);
      const std::optional<Single> value = SingleOfCell(cd);
      efds.efds.push_back(value ? CDToEFD(set, *value) : cd);
    }
  }

  void Send() {
    if (gathered_.rows.empty()) return;
    Efds next;
    PutDone(&next);
    work_.Give(std::exchange(gathered_, std::move(next)));
  }

  // The EFDs made so far into the table; the room of the last batch is lent
  // to the next.
  void PutDone(Efds* room = nullptr) {
    Efds done;
    while (work_.TakeDone(done)) {
      for (std::size_t i = 0; i < done.rows.size(); ++i) {
        ConversionTable.Set(5, done.rows[i], done.efds[i]);
      }
      done.rows.clear();
      if (room != nullptr) *room = std::move(done);
    }
  }

  WorkBehind<Efds> work_;
  Efds gathered_;
};

bool IsNoValue(const Variant& cell) {
  if (cell.IsEmpty()) return false;
  if (cell.IsText() && !IsNumeric(cell.TextView())) return false;
  const double value = cell.ToDouble();
  return value == 9999 || value == -9999;
}

}  // namespace

std::optional<double> ValueOfCell(const Variant& cell) {
  // A text that is a number through and through is read once for both tests.
  if (double value = 0; cell.IsText() && IsPlainNumber(cell.TextView(), value)) {
    if (value == 9999 || value == -9999) return std::nullopt;
    return value;
  }
  if (IsNoValue(cell)) return std::nullopt;
  return cell.TextValue();
}

// A depth just converted is a Double, mostly far from 9999 and from every
// halfway point between two Singles: its printed text need not be made.
std::optional<Single> SingleOfCell(const Variant& cell) {
  if (cell.IsDouble() && std::abs(std::abs(cell.ToDouble()) - 9999) > 1) {
    if (const std::optional<float> single = PrintedSingle(cell.ToDouble())) return *single;
  }
  const std::optional<double> value = ValueOfCell(cell);
  if (!value) return std::nullopt;
  return CSng(*value);
}

void ConvertPositionRows(BoreHoleSet& set, MainForm& form) {
  BoreHoleSet& other = set.IsDuo ? masterSet : duoSet;
  form.ProgressBar1.Max = static_cast<float>(ConversionRows);
  form.ProgressBar1.Value = 0;
  form.ProgressBar1.Visible = true;
  HoleNumbers holes(set, other);
  SectionOrdinals sections(set, other);
  constexpr long kEfdsBehindFrom = 4096;
  std::optional<EfdsBehind> behind;
  // With the Duo open, a hole of the other set is mapped through both sets'
  // EFDs on this thread.
  if (FastLookups && !DuoOpen && set.EventListLoaded && ConversionRows >= kEfdsBehindFrom &&
      CDToEFDOnlyReads(set)) {
    behind.emplace(set);
  }
  for (long row = 1; row <= ConversionRows; ++row) {
    try {
      form.ProgressBar1.Value = static_cast<float>(row);
      Variant cd = ConversionTable(3, row);
      if (const std::optional<double> value = ValueOfCell(cd)) {
        const int hole = holes.Of(ConversionTable(1, row));
        cd = CompositeOfPosition(set, hole, sections.Of(hole, ConversionTable(2, row)), *value);
      }
      ConversionTable.Set(4, row, cd);
      if (!set.EventListLoaded) continue;
      if (behind && behind->Takes(row, cd)) continue;
      if (const std::optional<Single> value = SingleOfCell(cd)) {
        if (behind) behind->CatchUp();
        ConversionTable.Set(5, row, CDToEFD(set, *value));
      } else {
        ConversionTable.Set(5, row, cd);
      }
    } catch (const RuntimeFailure&) {
      // The rows before this one have their EFDs, as they would have had.
      if (behind) behind->CatchUp();
      throw;
    }
  }
  if (behind) behind->CatchUp();
}

}  // namespace ostraline
