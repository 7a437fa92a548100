#pragma once
// Numbers read once from a set's text tables, kept beside them and read again
// only when the table's revision has moved on: the lookups that run for every
// row of a batch or at every move of the pointer read these instead of
// parsing the same cells again. Where a cell is no number the lookups read
// the text as before, so that the same failure happens at the same place.
#include <array>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "runtime/checked_int.h"

namespace ostraline {

// One column of a table of text cells, rows 0..last.
struct NumberColumn {
  unsigned long long revision = 0;
  // The whole table's revision when the column was last found standing: as
  // long as nothing at all is written, one comparison tells.
  unsigned long long tableRevision = 0;
  bool built = false;
  std::vector<Single> singles;
  std::vector<double> doubles;
  std::vector<char> isSingle;  // the cell reads as a Single
  std::vector<char> isDouble;  // the cell reads as a Double
  // Rows 1..risingCount are numbers that rise strictly; -1 before it is known.
  long risingFor = -1;
  bool rising = false;
};

// Whether the markers of the varve record, rows 1 on, never fall; and
// whether its counts are whole numbers so small that any sum of their
// intervals is exact in a Single, with the running sum of those intervals.
struct MarkerOrder {
  unsigned long long markerRevision = 0;
  unsigned long long countRevision = 0;
  unsigned long long tableSeen = 0;  // the whole record's, when last found standing
  bool built = false;
  bool rising = false;
  bool wholeCounts = false;
  std::vector<double> counted;  // the intervals of rows 1..i
  std::vector<Single> markers;  // rows 0 on, side by side for the searches
  // Where the searches for a depth end, kept for the depths asked again and
  // again (the control points of the age-depth model), by a hash of the
  // depth's bits; emptied whenever the markers are read anew.
  struct SearchedDepth {
    std::uint32_t bits = 0;
    bool known = false;
    // The first row from 1 on whose marker lies beyond it, and at or beyond
    // it; the row after the last where there is none.
    long beyond = 0;
    long atOrBeyond = 0;
  };
  mutable std::vector<SearchedDepth> searched;
};

// What the composite depth of a position reads of one row of the model for
// one bore hole: its PSP, as a Single too, the tie's composite depth, and
// whether the row ends a section; each number with whether its cell reads
// as one; and how far the rows that change nothing reach.
struct TrinityRow {
  double psp = 0;
  double cd = 0;
  // The next row, from this one on, that may be a tie, ends a section or
  // holds a cell that is no number; and the next with a composite depth.
  long nextStop = 0;
  long nextCd = 0;
  Single pspSingle = 0;
  bool pspKnown = false;
  bool pspFits = false;
  bool cdKnown = false;
  bool bottom = false;
};

// The ties of one section in the order in which the walk from its top row
// meets them, the top row first, up to its bottom row or the model's end;
// with the highest PSP (as a Single) met from the second tie on. The walk
// stops at the first tie from the second on whose PSP reaches the position,
// so the highest PSPs, which never fall, find it by a search. `clean` is
// false where a cell the walk reads is no number or the top is no tie: the
// walk runs there as before.
struct SectionTies {
  bool built = false;
  bool clean = false;
  bool bottomFound = false;
  std::vector<long> rows;
  std::vector<Single> highest;  // highest[k]: over the ties rows[1..k+1]
};

struct TrinityCells {
  unsigned long long modelRevision = 0;
  unsigned long long tieRevision = 0;
  // The two tables' whole revisions when the cells were last found standing.
  unsigned long long modelSeen = 0;
  unsigned long long tiesSeen = 0;
  long lastRow = -1;
  bool built = false;
  std::vector<TrinityRow> rows[5];
  // By top row, filled as sections are searched.
  mutable std::vector<SectionTies> sectionTies[5];
};

// Each bore hole's sections by name: the first with the name itself and the
// first whose last three characters match, as the lookup's scan finds them.
struct SectionNames {
  unsigned long long revisions[5] = {};
  bool holeBuilt[5] = {};
  long counts[5] = {};
  std::unordered_map<std::string, int> exact[5];
  std::unordered_map<std::string, int> lastThree[5];
  // The answers given to the names asked since, up to kAskedNames a hole:
  // a data file asks for the same few sections again and again.
  static constexpr std::size_t kAskedNames = 4096;
  std::unordered_map<std::string, int> asked[5];
};

// The running sums of the two conversions between composite depth and EFD,
// summed in the order and precision in which the conversions sum them. Row 0
// is the conversions' own scratch row and adds nothing.
struct LayerSums {
  unsigned long long topRevision = 0;
  unsigned long long bottomRevision = 0;
  // The two tables' whole revisions when the sums were last found standing.
  unsigned long long topSeen = 0;
  unsigned long long bottomSeen = 0;
  long count = -1;
  long merged = -1;
  bool built = false;
  // Composite to EFD: the thickness of rows 0..i; the bottoms rise.
  std::vector<Single> thickness;
  std::vector<Single> tops;
  std::vector<Single> bottoms;
  bool bottomsRise = false;
  // EFD to composite: the sediment above row i and the thickness of the
  // rows before it, as doubles; whether the first, as a Single, never falls.
  std::vector<double> freeAbove;
  std::vector<double> thicknessBefore;
  bool freeRises = false;
};

// What the core view reads of every row on one scale: each bore hole's depth
// cell, as the drawing and the pointer read it, and whether the row closes a
// section; each tie's depth and whether its kind marks a gap.
struct ScaleRows {
  unsigned long long modelScale = 0;
  unsigned long long modelLabels = 0;
  unsigned long long tieScale = 0;
  unsigned long long tieKinds = 0;
  long lastRow = -1;
  int scale = -1;
  bool built = false;
  std::vector<Single> holeDepth;  // row * 4 + hole - 1
  std::vector<double> holeDepthVal;
  std::vector<char> closes;
  std::vector<char> opens;
  std::vector<char> pins;
  std::vector<Single> tieDepth;
  std::vector<char> gap;
  std::vector<unsigned char> kindHoles;          // bit h: the row's splice cell names bore hole h
  std::array<std::vector<long>, 4> sectionEnds;  // rows 1 to last - 1 that close a section
  std::array<std::string, 4> holeNames;          // as they stood, for kindHoles
};

struct DerivedTables {
  // The age-depth model's columns 0..11.
  NumberColumn ageColumns[12];
  MarkerOrder varveMarkers;
  TrinityCells trinity;
  SectionNames sections;
  LayerSums layers;
  ScaleRows rows;
};

}  // namespace ostraline
