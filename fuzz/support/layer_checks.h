#pragma once
// What an event list import promises, for the master's set and the Duo's: one
// message and no layers on failure; else layers sorted and fused.
#include "core/bore_hole_set.h"
#include "forms/main_form.h"
#include "forms/scripted_platform.h"

namespace ostraline::fuzz {

// After the import through the main form of the set.
void CheckEventImport(const ScriptedPlatform& platform, MainForm& form, const BoreHoleSet& set);

}  // namespace ostraline::fuzz
