#include "fuzz/support/conversion_checks.h"

#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>

#include "events/batch_state.h"
#include "forms/frm_conversion.h"
#include "fuzz/support/fuzz_support.h"
#include "runtime/number_text.h"

namespace ostraline::fuzz {
namespace {

// Beside the input file, removed when the process ends.
struct OutputFile {
  OutputFile() : name(WriteInputFile(nullptr, 0) + ".converted.csv") {}
  ~OutputFile() { std::remove(name.c_str()); }
  std::string name;
};

std::string Contents(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

long LineEnds(const std::string& text) {
  long count = 0;
  for (std::size_t at = text.find("\r\n"); at != std::string::npos;
       at = text.find("\r\n", at + 2)) {
    ++count;
  }
  return count;
}

// One line end for each row and the header, and those that quoted cells of
// the file brought along, wherever they are copied to.
long ExpectedLineEnds() {
  long count = 0;
  if (FromKind == kScaleTrinity) {
    for (long r = 0; r <= ConversionRows; ++r) {
      for (int column = 0; column <= 3; ++column)
        count += LineEnds(ConversionTable(column, r).ToText());
    }
    return count + ConversionRows + 1;
  }
  const bool ages = FromKind == kScaleAge || (ToMask & kScaleAge) != 0;
  for (long r = 0; r <= ValueRows; ++r) {
    for (int column = 1; column <= 2; ++column) count += LineEnds(ValueTable(column, r).ToText());
    // A missing EFD's cell is copied as it stands into the unit column.
    const Variant efd = ValueTable(FromKind == kScaleEfd ? 2 : 3, r);
    const float value = static_cast<float>(efd.TextValue());
    if (r > 0 && ages && (value == 9999 || value == -9999)) count += LineEnds(efd.ToText());
  }
  return count + ValueRows + 1;
}

// One of the scales the form offers as the input scale, and which of the
// other boxes to untick.
void Choose(FrmConversion& form, std::uint8_t pick) {
  int offered[4];
  int count = 0;
  for (int scale : {kScaleTrinity, kScaleComposite, kScaleEfd, kScaleAge}) {
    if (form.Option1(scale).Enabled) offered[count++] = scale;
  }
  Require(count > 0, "no input scale offered");
  form.Option1(offered[pick % count]).Value = true;
  for (int scale : {kScaleComposite, kScaleEfd, kScaleAge}) {
    if (form.Check1(scale).Enabled && (pick >> 2 & scale) != 0) form.Check1(scale).Value = 0;
  }
}

void ConvertAndSave(ScriptedPlatform& platform, FormSlot& conversion, std::uint8_t pick) {
  static const OutputFile output;
  std::ofstream(output.name, std::ios::binary) << "kept\r\n";
  auto& form = static_cast<FrmConversion&>(conversion.GetForm());
  Choose(form, pick);
  platform.QueueFile(output.name);
  form.Command1_Click();

  const std::string written = Contents(output.name);
  if (!conversion.IsLoaded()) {
    Require(platform.messages.empty(), "a conversion that ended with a message");
    Require(LineEnds(written) == ExpectedLineEnds(), "not one line for each row and the header");
    return;
  }
  Require(
      platform.messages.size() == 1 && CountMessages(platform, "The file might be being used") == 1,
      "the form stayed without its message");
  Require(written == "kept\r\n", "a failed conversion touched the file that was there");
}

}  // namespace

void ConvertDataFile(ScriptedPlatform& platform, MainForm& main, FormSlot& conversion,
                     const std::uint8_t* data, std::size_t size) {
  platform.QueueFile(WriteInputFile(data, size));
  main.Command2.Click();
  if (!conversion.IsLoaded()) {
    Require(CountMessages(platform, "File format error.") == 1 && platform.messages.size() == 1,
            "a data file refused without its message");
    return;
  }
  Require(platform.messages.empty(), "the form opened after a message");
  ConvertAndSave(platform, conversion, size == 0 ? 0 : data[size - 1]);
}

}  // namespace ostraline::fuzz
