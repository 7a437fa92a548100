#include "service/import_diagnosis.h"

#include <cstdio>
#include <vector>

#include "events/batch_state.h"
#include "runtime/field_reader.h"
#include "runtime/number_text.h"

namespace ostraline {
namespace {

struct ScannedField {
  std::string text;
  FieldReader::Place place;
};

// Every field of the file with the place it began, read as the imports read.
std::vector<ScannedField> ScanFields(const std::string& path) {
  std::vector<ScannedField> fields;
  try {
    FieldReader file = FieldReader::Open(path);
    while (!file.Eof()) {
      std::string text = file.ReadText();
      fields.push_back({std::move(text), file.LastPlace()});
    }
  } catch (const RuntimeFailure&) {
    // Blanks at the end, or a file gone since: what was read is all there is.
  }
  return fields;
}

// Fields to a record, by the rules the imports decide the layout by.
std::size_t FieldsPerRecord(ImportedFile kind, const std::vector<ScannedField>& fields) {
  switch (kind) {
    case ImportedFile::CorrelationModel:
      return fields.size() > 14 && Len(fields[14].text) >= 3 ? 18 : 14;
    case ImportedFile::EventList:
      return 5;
    case ImportedFile::AgeModel:
      return 11;
    case ImportedFile::VarveCounts:
      return 2;
    case ImportedFile::DataFile:
      return fields.size() > 5 && IsValueFileCell(fields[5].text) ? 2 : 4;
  }
  return 1;
}


// A cell as the imports see it: trimmed, and with the model's prefix
// character dropped where it has one.
bool HoldsCell(const std::string& field, const std::string& cell) {
  return Trim(field) == cell || (!field.empty() && Trim(field.substr(1)) == cell);
}

const ScannedField* FindCell(const std::vector<ScannedField>& fields, const std::string& cell) {
  for (const ScannedField& field : fields) {
    if (HoldsCell(field.text, cell)) return &field;
  }
  return nullptr;
}

std::string EndInsideRecord(const std::vector<ScannedField>& fields, std::size_t perRecord) {
  if (fields.empty()) return "the file holds no record";
  const std::size_t left = fields.size() % perRecord;
  const std::string line = "line " + std::to_string(fields.back().place.line);
  if (left == 0) return line + ": the file ends where a further field was expected";
  return line + ": the file ends inside a record: " + std::to_string(left) + " of its " +
         std::to_string(perRecord) + " fields are there";
}

std::string UnknownHole(const std::vector<ScannedField>& fields, const std::string& name) {
  // The bore hole is the second field of an age-depth record.
  for (std::size_t i = 1; i < fields.size(); i += 11) {
    if (fields[i].text == name) {
      return PlaceText(fields[i].place) + ": '" + name +
             "' is no bore hole of the correlation models imported";
    }
  }
  return "bore hole '" + name + "' is no bore hole of the correlation models imported";
}

std::string Explain(ImportedFile kind, const std::vector<ScannedField>& fields,
                    const FailureRecord& failure) {
  const std::string& detail = failure.detail;
  // The reader tells the place itself where it failed on a field.
  if (detail.starts_with("line ") && detail.find(':') != std::string::npos) return detail;
  if (detail.starts_with("bore hole ") && kind == ImportedFile::AgeModel)
    return UnknownHole(fields, detail.substr(10));
  const std::size_t perRecord = FieldsPerRecord(kind, fields);
  switch (failure.kind) {
    case FailureKind::InputPastEnd:
      return EndInsideRecord(fields, perRecord);
    case FailureKind::TypeMismatch:
    case FailureKind::Overflow: {
      const char* expected = failure.kind == FailureKind::TypeMismatch
                                 ? "' is not a number"
                                 : "' is beyond the range of a number";
      if (const ScannedField* field = FindCell(fields, detail))
        return PlaceText(field->place) + ": '" + detail + expected;
      if (!detail.empty()) return "'" + detail + expected;
      break;
    }
    case FailureKind::SubscriptOutOfRange:
      if (kind == ImportedFile::CorrelationModel && fields.size() / perRecord > 5001) {
        return "line " + std::to_string(fields[5001 * perRecord].place.line) +
               ": a correlation model holds at most 5000 rows below its header";
      }
      break;
    default:
      break;
  }
  return std::string(FailureName(failure.kind)) + (detail.empty() ? "" : " (" + detail + ")");
}

// Warnings of one kind: the first few in full, then how many more.
class WarningList {
 public:
  WarningList(std::vector<std::string>& out, const char* what) : out_(out), what_(what) {}
  ~WarningList() {
    if (more_ > 0) out_.push_back("and " + std::to_string(more_) + " more " + what_);
  }
  void Add(const std::string& warning) {
    if (++count_ <= kShown) {
      out_.push_back(warning);
    } else {
      ++more_;
    }
  }

 private:
  static constexpr int kShown = 5;
  std::vector<std::string>& out_;
  const char* what_;
  int count_ = 0;
  int more_ = 0;
};

}  // namespace

std::vector<std::string> DataFileWarnings(const std::string& path) {
  std::vector<std::string> out;
  // Read field by field, as the file may hold millions of rows beside the
  // table that was made of it.
  try {
    FieldReader file = FieldReader::Open(path);
    std::vector<ScannedField> first;
    while (first.size() < 6 && !file.Eof()) {
      std::string text = file.ReadText();
      first.push_back({std::move(text), file.LastPlace()});
    }
    if (first.size() < 6) return out;
    const std::size_t perRecord = FieldsPerRecord(ImportedFile::DataFile, first);
    const bool positions = perRecord == 4;
    if (positions && IsNumeric(first[5].text)) {
      out.push_back(PlaceText(first[5].place) + ": '" + first[5].text +
                    "' is not written as a plain number, so the file was read as a file of "
                    "positions, not of values");
    }
    WarningList longRows(out, "rows of more than four fields");
    WarningList noNumbers(out, positions ? "PSPs that are no number" : "values that are no number");
    ScannedField last;
    auto visit = [&](std::size_t index, const ScannedField& field) {
      if (positions && index > 0 && field.place.line != last.place.line && last.place.field > 4) {
        longRows.Add("line " + std::to_string(last.place.line) + " has " +
                     std::to_string(last.place.field) +
                     " fields: a file of positions has four to a row, and the fields beyond run "
                     "on into the rows that follow");
      }
      // The PSP is the fourth field of a position, the value the second of a value.
      if (index >= perRecord && index % perRecord == perRecord - 1 && !IsNumeric(field.text)) {
        noNumbers.Add(PlaceText(field.place) + ": " + (positions ? "PSP '" : "value '") + field.text +
                      "' is no number and reads as " + Trim(Str(Val(field.text))));
      }
      last = field;
    };
    std::size_t index = 0;
    for (const ScannedField& field : first) visit(index++, field);
    while (!file.Eof()) {
      ScannedField field;
      field.text = file.ReadText();
      field.place = file.LastPlace();
      visit(index++, field);
    }
    if (positions && last.place.field > 4) visit(index, {{}, {last.place.line + 1, 1}});
  } catch (const RuntimeFailure&) {
    // The end of a file of blanks: what was read has been looked at.
  }
  for (std::string& warning : out) warning = Printable(path + ": " + warning);
  return out;
}

std::string DiagnoseImport(ImportedFile kind, const std::string& path,
                           const FailureRecord& failure) {
  return Printable(path + ": " + Explain(kind, ScanFields(path), failure));
}

std::string Printable(std::string_view text) {
  std::string printable;
  printable.reserve(text.size());
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x20 || byte == 0x7f) {
      char escaped[5];
      std::snprintf(escaped, sizeof escaped, "\\x%02x", byte);
      printable += escaped;
    } else {
      printable += c;
    }
  }
  return printable;
}

}  // namespace ostraline
