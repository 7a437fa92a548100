#include "cli/convert_options.h"

#include <map>
#include <utility>

namespace ostraline::cli {
namespace {

const std::map<std::string, int>& ScaleCodes() {
  static const std::map<std::string, int> codes = {
      {"trinity", 1}, {"composite", 2}, {"efd", 4}, {"age", 8}};
  return codes;
}

std::optional<int> Digits(const std::string& text) {
  if (text.size() != 1 || text[0] < '0' || text[0] > '4') return std::nullopt;
  return text[0] - '0';
}

// "composite,efd,age": the sum of the codes named.
std::optional<int> ScaleList(const std::string& text) {
  int sum = 0;
  std::size_t start = 0;
  while (true) {
    const std::size_t comma = text.find(',', start);
    const auto code = ScaleCodes().find(text.substr(start, comma - start));
    if (code == ScaleCodes().end()) return std::nullopt;
    sum |= code->second;
    if (comma == std::string::npos) return sum;
    start = comma + 1;
  }
}

}  // namespace

ParsedCommandLine ParseCommandLine(const std::vector<std::string>& args) {
  ParsedCommandLine parsed;
  ConvertOptions& options = parsed.options;
  std::vector<std::string> files;
  for (std::size_t i = 0; i < args.size() && parsed.error.empty(); ++i) {
    std::string name = args[i];
    std::optional<std::string> inlineValue;
    if (name.rfind("--", 0) == 0 && name.find('=') != std::string::npos) {
      inlineValue = name.substr(name.find('=') + 1);
      name = name.substr(0, name.find('='));
    }
    auto value = [&]() -> std::optional<std::string> {
      if (inlineValue) return inlineValue;
      if (i + 1 < args.size()) return args[++i];
      parsed.error = name + " needs a value";
      return std::nullopt;
    };
    auto invalid = [&](const std::string& given) {
      parsed.error = "invalid value '" + given + "' for " + name;
    };

    if (name == "--help" || name == "-h") {
      parsed.help = true;
      return parsed;
    } else if (name == "--version" && !inlineValue) {
      parsed.version = true;
      return parsed;
    } else if (name == "--ignore-version-mismatch" && !inlineValue) {
      options.ignoreVersionMismatch = true;
    } else if (name == "--duo" && !inlineValue) {
      options.duo = true;
    } else if (name == "--force" && !inlineValue) {
      options.force = true;
    } else if (name == "--quiet" && !inlineValue) {
      options.quiet = true;
    } else if (std::string* const file = ProjectFileOption(options, name)) {
      const auto given = value();
      if (!given) break;
      if (given->empty()) invalid(*given);
      *file = *given;
    } else if (name == "--extrapolation") {
      const auto method = value();
      if (!method) break;
      if (*method != "proportional" && *method != "one-to-one") invalid(*method);
      options.oneToOne = *method == "one-to-one";
    } else if (name == "--depth-digits" || name == "--age-digits") {
      const auto text = value();
      if (!text) break;
      const auto digits = Digits(*text);
      if (!digits) {
        invalid(*text);
      } else {
        (name == "--depth-digits" ? options.depthDigits : options.ageDigits) = *digits;
      }
    } else if (name == "--from") {
      const auto text = value();
      if (!text) break;
      const auto code = ScaleCodes().find(*text);
      if (code == ScaleCodes().end()) {
        invalid(*text);
      } else {
        options.from = code->second;
      }
    } else if (name == "--to") {
      const auto text = value();
      if (!text) break;
      options.to = ScaleList(*text);
      if (!options.to) invalid(*text);
    } else if (name.size() > 1 && name[0] == '-') {
      parsed.error = "unknown option " + name;
    } else {
      files.push_back(name);
    }
  }
  if (!parsed.error.empty()) return parsed;

  if (files.size() != 2) {
    parsed.error =
        "expected INPUT and OUTPUT, got " + std::to_string(files.size()) + " file name(s)";
  } else if (options.model.empty()) {
    parsed.error = "--model is required";
  } else if (options.duo && options.duoModel.empty()) {
    parsed.error = "--duo needs --duo-model";
  } else if (const std::string order = ImportOrderError(options); !order.empty()) {
    parsed.error = order;
  } else {
    options.input = files[0];
    options.output = files[1];
  }
  return parsed;
}

const char* HelpText() {
  return R"(Usage: ostraline-convert --model FILE [--events FILE] [--ages FILE] [--varves FILE]
                         [--duo-model FILE [--duo-events FILE] [--duo-ages FILE]
                          [--duo-varves FILE] [--duo]]
                         [--extrapolation proportional|one-to-one]
                         [--depth-digits N] [--age-digits N]
                         [--from trinity|composite|efd|age] [--to composite,efd,age]
                         [--ignore-version-mismatch] [--force] [--quiet] INPUT OUTPUT

Converts the data file INPUT between the scales of a project and writes OUTPUT,
the same file that "Convert from data file" and "Convert and Save" of the
desktop program write for the same files and choices.

The project's files are imported in the order of the import chain:
  --model FILE       correlation model (required)
  --events FILE      list of event layers; needed for event free depths and
                     for a data file of values
  --ages FILE        age-depth model (needs --events)
  --varves FILE      varve counts (needs --ages)

The Duo, a parallel set of bore holes tied to the master's sections, opens
after the master's files, as "Open Ostraline Duo" does:
  --duo-model FILE   the Duo's correlation model (needs --events)
  --duo-events FILE  the Duo's list of event layers; without it the Duo's
                     question for its event list is answered No
  --duo-ages FILE    the Duo's own age-depth model; without it the Duo has
                     the master's ages once both event lists stand
  --duo-varves FILE  the Duo's varve counts
  --duo              convert INPUT through the Duo's form: its holes E to H
                     by its own tables, the master's through the map between
                     the two composite scales; each composite depth is
                     written with the master's beside it

Choices:
  --extrapolation proportional|one-to-one
                     how a PSP beyond the ties of its section is converted
                     ("Proportional" or "1:1"); default proportional
  --depth-digits N   decimals of depths, 0 to 4; default 2
  --age-digits N     decimals of ages, 0 to 4; default 0
  --from SCALE       the scale INPUT holds: trinity (bore hole, section, PSP),
                     composite, efd or age. Default: as told from the file
                     (four columns: trinity; two columns: by the header's
                     second word, "Com..." composite, "Age..." age, else efd)
  --to SCALES        comma-separated scales to write, from trinity,
                     composite, efd, age. The input scale is always written.
                     Default: every scale the files allow
  --ignore-version-mismatch
                     import an age-depth model made for another version of
                     the correlation model (the warning is answered Yes);
                     without it such a model is not imported
  --force            replace an OUTPUT that is read-only
  --quiet            no warnings about INPUT (a PSP or value that is no
                     number and reads as 0, a file of values read as one of
                     positions, rows of positions with more than four fields)
  -h, --help         show this text
  --version          show the program's version

Messages of the program go to standard error, each failure followed by what
went wrong: the file, the line and the field, or the system's reason. Exit status: 0 when OUTPUT was
written, 1 when an import or the conversion failed (OUTPUT, if it existed, is
left as it was), 2 for a wrong command line, an OUTPUT that is one of the input
files or is read-only (without --force), or a Duo import whose button is not
open at its turn. OUTPUT is replaced only when complete: a link is written
through to its file, the file keeps its permissions, and an interrupted run
leaves nothing behind.
)";
}

}  // namespace ostraline::cli
