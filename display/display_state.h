#pragma once
// Display settings and the state of the pointer, owned by the display subsystem.
#include <string>

#include "runtime/checked_int.h"
#include "runtime/table.h"

namespace ostraline {

struct DisplayState {
  DisplayState();

  Integer ViewSpan = 500;
  Integer LabelFontSize = 7;
  Integer DesignFormHeight = 0;
  Table<BooleanFlag> HoleAbsent;  // 1..4
  Integer AgeDepthColumn = 5;
  std::string SavedDepthText;
  std::string SavedEFDText;
  std::string SavedAgeText;
  Integer CentreLineY = 0;
  // The font sizes of the column texts.
  Integer ColumnFontSmall = 5;
  Integer ColumnFontLarge = 6;
  Integer EventColumnTop = 6;
  Integer EventColumnBottom = 7;

  BooleanFlag DividerOpen = false;
  BooleanFlag SuppressPopup = false;
  std::string ClickedHole;
  Single ClickedPSP = 0;
  Single TieAbovePSP = 0;
  Single TieBelowPSP = 0;
  std::string TieAboveLabel;
  std::string TieBelowLabel;
  Integer CopyHole = 0;
  Integer BaseFormWidth = 0;
  Single RestoreWidth = 0;
  BooleanFlag FormNarrowed = false;
  Table<Single> FormEdge;  // 0..2

  // The panels skip the rows whose lines and markers the canvas would drop
  // and read the record once into plain arrays; the scale strip computes
  // only the age ticks that can show. Off, every row and every tick is
  // computed through the checked reads (the tests compare the two).
  bool DrawOnlyWhatShows = true;
};

inline DisplayState displayState;

inline auto& ViewSpan = displayState.ViewSpan;
inline auto& LabelFontSize = displayState.LabelFontSize;
inline auto& DesignFormHeight = displayState.DesignFormHeight;
inline auto& HoleAbsent = displayState.HoleAbsent;
inline auto& AgeDepthColumn = displayState.AgeDepthColumn;
inline auto& SavedDepthText = displayState.SavedDepthText;
inline auto& SavedEFDText = displayState.SavedEFDText;
inline auto& SavedAgeText = displayState.SavedAgeText;
inline auto& CentreLineY = displayState.CentreLineY;
inline auto& EventColumnTop = displayState.EventColumnTop;
inline auto& EventColumnBottom = displayState.EventColumnBottom;
inline auto& DividerOpen = displayState.DividerOpen;
inline auto& SuppressPopup = displayState.SuppressPopup;
inline auto& ClickedHole = displayState.ClickedHole;
inline auto& ClickedPSP = displayState.ClickedPSP;
inline auto& TieAbovePSP = displayState.TieAbovePSP;
inline auto& TieBelowPSP = displayState.TieBelowPSP;
inline auto& TieAboveLabel = displayState.TieAboveLabel;
inline auto& TieBelowLabel = displayState.TieBelowLabel;
inline auto& CopyHole = displayState.CopyHole;
inline auto& BaseFormWidth = displayState.BaseFormWidth;
inline auto& RestoreWidth = displayState.RestoreWidth;
inline auto& FormNarrowed = displayState.FormNarrowed;
inline auto& FormEdge = displayState.FormEdge;
inline auto& DrawOnlyWhatShows = displayState.DrawOnlyWhatShows;

}  // namespace ostraline
