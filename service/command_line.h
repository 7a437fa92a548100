#pragma once
// What the command lines of ostraline and ostraline-convert share: options
// given as "--name value" or "--name=value", and the project's files, which
// are imported in the order of the import chain.
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ostraline {

// The project's files, each imported by its button; the Duo's follow the
// master's, as "Open Ostraline Duo" does.
struct ProjectFiles {
  std::string model;
  std::string events;
  std::string ages;
  std::string varves;
  std::string duoModel;
  std::string duoEvents;
  std::string duoAges;
  std::string duoVarves;
};

// The file of `files` that an option such as "--ages" names; null for any
// other option.
std::string* ProjectFileOption(ProjectFiles& files, std::string_view option);

// Why the files cannot be imported in the order of the chain: the first one
// named without the import it follows. Empty when the order holds.
std::string ImportOrderError(const ProjectFiles& files);

// A command line read one argument at a time.
class OptionReader {
 public:
  explicit OptionReader(const std::vector<std::string>& args) : args_(args) {}

  // Moves to the next argument; false after the last.
  bool Next();
  // The argument, without the "=value" of a "--name=value".
  const std::string& Name() const { return name_; }
  // The option `flag`, given without a value.
  bool IsFlag(std::string_view flag) const { return name_ == flag && !inlineValue_; }
  // The option's value: after its '=', else the next argument. Null when
  // there is none, and `error` says so.
  std::optional<std::string> Value(std::string& error);

 private:
  const std::vector<std::string>& args_;
  std::size_t next_ = 0;
  std::string name_;
  std::optional<std::string> inlineValue_;
};

}  // namespace ostraline
