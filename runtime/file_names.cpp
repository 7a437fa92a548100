#include "runtime/file_names.h"

#include <array>

#include "runtime/number_text.h"

namespace ostraline {
namespace {

// Folders are separated by a backslash in the names the project's files were
// made with; names from this system's own dialogs use a slash.
bool IsFolderSeparator(char c) {
  return c == '\\' || c == '/';
}

constexpr std::array<const char*, 12> kMonths = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                 "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
constexpr std::array<const char*, 12> kMonthTexts = {" Jan. ", " Feb. ", " Mar. ", " Apr. ",
                                                     " May ",  " Jun. ", " Jul. ", " Aug. ",
                                                     " Sep. ", " Oct. ", " Nov. ", " Dec. "};

// A run of a name that reads as a number equal to its Val. One too large for
// any number ("1E999999") does not read as one, so it does not count either.
bool ReadsAsItsVal(const std::string& run) {
  if (!IsNumeric(run)) return false;
  try {
    return CDbl(run) == Val(run);
  } catch (const RuntimeFailure&) {
    return false;
  }
}

bool EightDigits(const std::string& name, std::string& result) {
  for (long p = 1; p + 7 <= Len(name); ++p) {
    const std::string run = Mid(name, p, 8);
    if (!ReadsAsItsVal(run) || Len(Trim(run)) != 8) continue;
    const std::string month = Mid(run, 5, 2);
    for (std::size_t m = 0; m < kMonthTexts.size(); ++m) {
      const std::string digits = (m < 9 ? "0" : "") + std::to_string(m + 1);
      if (month == digits) {
        result = Right(run, 2) + kMonthTexts[m] + Left(run, 4);
        return true;
      }
    }
    result = run;
    return true;
  }
  return false;
}

bool MonthName(const std::string& name, std::string& result) {
  for (long p = 5; p + 7 <= Len(name); ++p) {
    const std::string word = Mid(name, p, 3);
    for (const char* month : kMonths) {
      if (word != month) continue;
      if (word == "May") {
        const std::string t = Trim(Mid(name, p - 3, 11));
        result = Left(t, 2) + " " + word + " " + Right(t, 4);
      } else {
        const std::string t = Trim(Mid(name, p - 3, 12));
        result = Left(t, 2) + " " + word + ". " + Right(t, 4);
      }
      return true;
    }
  }
  return false;
}

bool Stem(const std::string& name, std::string& result) {
  std::string n = name;
  if (Right(n, 4) == ".csv") n = Left(n, Len(n) - 4);
  for (long p = Len(n) - 3; p >= 2; --p) {
    if (IsFolderSeparator(n[static_cast<std::size_t>(p - 1)])) {
      result = Mid(n, p + 1);
      return true;
    }
  }
  return false;
}

}  // namespace

std::string VersionDate(const std::string& name) {
  std::string result;
  if (EightDigits(name, result) || MonthName(name, result) || Stem(name, result)) return result;
  return name;
}

std::string FileStem(const std::string& name) {
  long start = 1;
  for (long p = Len(name) - 1; p >= 1; --p) {
    if (IsFolderSeparator(name[static_cast<std::size_t>(p - 1)])) {
      start = p + 1;
      break;
    }
  }
  const std::string behind = Mid(name, start);
  return Left(behind, Len(behind) >= 4 ? Len(behind) - 4 : 0);
}

std::string SectionFromLabel(const std::string& label) {
  long a = 0;
  long b = 0;
  for (long p = 1; p <= Len(label); ++p) {
    const char c = label[static_cast<std::size_t>(p - 1)];
    if (c != '-' && c != ' ') continue;
    if (a == 0) {
      a = p;
    } else {
      b = p;
      break;
    }
  }
  if (a == 0) return label;
  if (b == 0) b = Len(label) + 1;
  if (a == Len(label)) return Left(label, Len(label) - 1);
  return Mid(label, a + 1, b - a - 1);
}

}  // namespace ostraline
