// Any bytes read as a data file to convert, after a good correlation model,
// event list and age-depth model, end in the program's own message or in the
// conversion form; pressing "Convert and Save" then writes one row for the
// header and one for each row read, or leaves the file that was there with
// its message. Never a crash or a hang.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>

#include "events/batch_state.h"
#include "forms/frm_conversion.h"
#include "forms/frm_main.h"
#include "fuzz/support/age_chain.h"
#include "runtime/number_text.h"

namespace {

using namespace ostraline;

// Beside the input file, removed when the process ends.
struct OutputFile {
  OutputFile() : name(fuzz::WriteInputFile(nullptr, 0) + ".converted.csv") {}
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
    const Variant& efd = ValueTable(FromKind == kScaleEfd ? 2 : 3, r);
    const float value = static_cast<float>(Val(efd.ToText()));
    if (r > 0 && ages && (value == 9999 || value == -9999)) count += LineEnds(efd.ToText());
  }
  return count + ValueRows + 1;
}

// The input's last byte picks one of the scales the form offers as the input
// scale, and which of the other boxes to untick.
void Choose(FrmConversion& form, std::uint8_t pick) {
  int offered[4];
  int count = 0;
  for (int scale : {kScaleTrinity, kScaleComposite, kScaleEfd, kScaleAge}) {
    if (form.Option1(scale).Enabled) offered[count++] = scale;
  }
  fuzz::Require(count > 0, "no input scale offered");
  form.Option1(offered[pick % count]).Value = true;
  for (int scale : {kScaleComposite, kScaleEfd, kScaleAge}) {
    if (form.Check1(scale).Enabled && (pick >> 2 & scale) != 0) form.Check1(scale).Value = 0;
  }
}

void ConvertAndSave(ScriptedPlatform& platform, const OutputFile& output, std::uint8_t pick) {
  std::ofstream(output.name, std::ios::binary) << "kept\r\n";
  Choose(*frmConversion, pick);
  platform.QueueFile(output.name);
  frmConversion->Command1_Click();

  const std::string written = Contents(output.name);
  if (!frmConversion.IsLoaded()) {
    fuzz::Require(platform.messages.empty(), "a conversion that ended with a message");
    fuzz::Require(LineEnds(written) == ExpectedLineEnds(),
                  "not one line for each row and the header");
    return;
  }
  fuzz::Require(platform.messages.size() == 1 &&
                    fuzz::CountMessages(platform, "The file might be being used") == 1,
                "the form stayed without its message");
  fuzz::Require(written == "kept\r\n", "a failed conversion touched the file that was there");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static fuzz::AgeChain chain(true);
  static const OutputFile output;
  if (frmConversion.IsLoaded()) frmConversion.Unload();
  FormSlot::CollectUnloaded();
  ScriptedPlatform& platform = chain.Restore();
  batchState = BatchState{};

  platform.QueueFile(fuzz::WriteInputFile(data, size));
  frmMain->Command2.Click();
  if (!frmConversion.IsLoaded()) {
    fuzz::Require(
        fuzz::CountMessages(platform, "File format error.") == 1 && platform.messages.size() == 1,
        "a data file refused without its message");
    return 0;
  }
  fuzz::Require(platform.messages.empty(), "the form opened after a message");
  ConvertAndSave(platform, output, size == 0 ? 0 : data[size - 1]);
  return 0;
}
