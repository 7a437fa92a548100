#include "service/command_line.h"

#include <utility>

namespace ostraline {

std::string* ProjectFileOption(ProjectFiles& files, std::string_view option) {
  const std::pair<std::string_view, std::string*> named[] = {
      {"--model", &files.model},        {"--events", &files.events},
      {"--ages", &files.ages},          {"--varves", &files.varves},
      {"--duo-model", &files.duoModel}, {"--duo-events", &files.duoEvents},
      {"--duo-ages", &files.duoAges},   {"--duo-varves", &files.duoVarves}};
  for (const auto& [name, file] : named) {
    if (option == name) return file;
  }
  return nullptr;
}

std::string ImportOrderError(const ProjectFiles& files) {
  if (!files.events.empty() && files.model.empty()) {
    return "--events needs --model: the event list is imported after the correlation model";
  }
  if (!files.ages.empty() && files.events.empty()) {
    return "--ages needs --events: the age-depth model is imported after the event list";
  }
  if (!files.varves.empty() && files.ages.empty()) {
    return "--varves needs --ages: the varve counts are imported after the age-depth model";
  }
  if (!files.duoModel.empty() && files.events.empty()) {
    return "--duo-model needs --events: the Duo opens once the master's event list stands";
  }
  if (files.duoModel.empty() &&
      (!files.duoEvents.empty() || !files.duoAges.empty() || !files.duoVarves.empty())) {
    return "--duo-events, --duo-ages and --duo-varves need --duo-model";
  }
  return {};
}

bool OptionReader::Next() {
  if (next_ >= args_.size()) return false;
  name_ = args_[next_++];
  inlineValue_.reset();
  const std::size_t equals = name_.find('=');
  if (name_.starts_with("--") && equals != std::string::npos) {
    inlineValue_ = name_.substr(equals + 1);
    name_.resize(equals);
  }
  return true;
}

std::optional<std::string> OptionReader::Value(std::string& error) {
  if (inlineValue_) return inlineValue_;
  if (next_ < args_.size()) return args_[next_++];
  error = name_ + " needs a value";
  return std::nullopt;
}

}  // namespace ostraline
