#pragma once
// The promise of a batch conversion, for the master's form and the Duo's:
// any bytes read as a data file end in the program's own message or in the
// conversion form; pressing "Convert and Save" then writes one row for the
// header and one for each row read, or leaves the file that was there with
// its message.
#include <cstddef>
#include <cstdint>

#include "forms/form.h"
#include "forms/main_form.h"
#include "forms/scripted_platform.h"

namespace ostraline::fuzz {

// Reads the bytes through the main form's "Convert from data file" into the
// conversion form of its set (frmConversion or frm2Conversion), then
// converts; the input's last byte picks the scales.
void ConvertDataFile(ScriptedPlatform& platform, MainForm& main, FormSlot& conversion,
                     const std::uint8_t* data, std::size_t size);

}  // namespace ostraline::fuzz
