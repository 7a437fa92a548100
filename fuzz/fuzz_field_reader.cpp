// Any bytes read field by field end in a failure of the program's own kinds,
// never in a crash or a hang.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "runtime/failure.h"
#include "runtime/field_reader.h"

namespace {

using ostraline::FailureKind;

// The fields a reader may be asked for; the targets take turns.
void ReadOne(ostraline::FieldReader& reader, std::size_t turn) {
  switch (turn % 3) {
    case 0:
      reader.ReadText();
      break;
    case 1:
      reader.ReadSingle();
      break;
    default:
      reader.ReadVariant();
      break;
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  ostraline::FieldReader reader(std::string(reinterpret_cast<const char*>(data), size));
  // Every field read takes at least one byte, so the input ends within size + 1 reads.
  for (std::size_t turn = 0; turn <= size + 1; ++turn) {
    try {
      ReadOne(reader, turn);
    } catch (const ostraline::RuntimeFailure& failure) {
      if (failure.Kind() == FailureKind::InputPastEnd) {
        // The reader fails past the end only when nothing is left.
        if (!reader.Eof()) std::abort();
        return 0;
      }
      // A number too large for its target overflows: the import's failure path.
      if (failure.Kind() != FailureKind::Overflow) std::abort();
    }
  }
  std::abort();  // a read that took nothing
}
