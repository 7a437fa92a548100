#include "support/xml_elements.h"

#include <cctype>

namespace ostraline {
namespace {

class Reader {
 public:
  explicit Reader(const std::string& xml) : xml_(xml) {}

  std::optional<std::vector<XmlElement>> Read() {
    if (xml_.compare(0, 5, "<?xml") == 0) {
      pos_ = xml_.find("?>");
      if (pos_ == std::string::npos) return Failed("unclosed declaration");
      pos_ += 2;
    }
    while (pos_ < xml_.size()) {
      const size_t tag = xml_.find('<', pos_);
      const std::string between = xml_.substr(pos_, tag - pos_);
      if (!Characters(between)) return std::nullopt;
      if (tag == std::string::npos) break;
      pos_ = tag + 1;
      if (!(At('/') ? Close() : Open())) return std::nullopt;
    }
    if (!open_.empty()) return Failed("unclosed <" + elements_[open_.back()].name + ">");
    if (roots_ != 1) return Failed("not one root element");
    return elements_;
  }

  std::string error;

 private:
  bool Fail(const std::string& why) {
    error = why + " at " + std::to_string(pos_);
    return false;
  }
  std::nullopt_t Failed(const std::string& why) {
    Fail(why);
    return std::nullopt;
  }

  bool At(char c) const { return pos_ < xml_.size() && xml_[pos_] == c; }
  void SkipSpace() {
    while (pos_ < xml_.size() && std::isspace(static_cast<unsigned char>(xml_[pos_]))) ++pos_;
  }
  std::string Name() {
    const size_t start = pos_;
    while (pos_ < xml_.size() && (std::isalnum(static_cast<unsigned char>(xml_[pos_])) ||
                                  xml_[pos_] == ':' || xml_[pos_] == '-' || xml_[pos_] == '_'))
      ++pos_;
    return xml_.substr(start, pos_ - start);
  }

  std::optional<std::string> Decoded(const std::string& raw) {
    std::string out;
    for (size_t i = 0; i < raw.size(); ++i) {
      if (raw[i] == '<') return Failed("'<' in character data");
      if (raw[i] != '&') {
        out += raw[i];
        continue;
      }
      const size_t end = raw.find(';', i);
      if (end == std::string::npos) return Failed("unterminated entity");
      const std::string entity = raw.substr(i + 1, end - i - 1);
      static const std::map<std::string, char> kEntities = {
          {"amp", '&'}, {"lt", '<'}, {"gt", '>'}, {"quot", '"'}, {"apos", '\''}};
      const auto found = kEntities.find(entity);
      if (found == kEntities.end()) return Failed("unknown entity &" + entity + ";");
      out += found->second;
      i = end;
    }
    return out;
  }

  bool Characters(const std::string& raw) {
    const std::optional<std::string> text = Decoded(raw);
    if (!text) return false;
    if (!open_.empty()) {
      elements_[open_.back()].text += *text;
    } else if (text->find_first_not_of(" \t\r\n") != std::string::npos) {
      return Fail("text outside the root");
    }
    return true;
  }

  bool Open() {
    XmlElement element;
    element.name = Name();
    if (element.name.empty()) return Fail("tag without a name");
    while (true) {
      const size_t before = pos_;
      SkipSpace();
      if (At('/') || At('>')) break;
      if (pos_ == before) return Fail("attributes run together");
      const std::string name = Name();
      if (name.empty() || !At('=')) return Fail("attribute without a value");
      ++pos_;
      if (!At('"') && !At('\'')) return Fail("unquoted attribute " + name);
      const char quote = xml_[pos_++];
      const size_t end = xml_.find(quote, pos_);
      if (end == std::string::npos) return Fail("unterminated attribute");
      const std::optional<std::string> value = Decoded(xml_.substr(pos_, end - pos_));
      if (!value) return false;
      if (!element.attributes.emplace(name, *value).second) {
        return Fail("attribute " + name + " twice");
      }
      pos_ = end + 1;
    }
    const bool empty = At('/');
    if (empty) ++pos_;
    if (!At('>')) return Fail("tag not closed");
    ++pos_;
    if (open_.empty()) ++roots_;
    elements_.push_back(std::move(element));
    if (!empty) open_.push_back(elements_.size() - 1);
    return true;
  }

  bool Close() {
    ++pos_;
    const std::string name = Name();
    SkipSpace();
    if (!At('>')) return Fail("closing tag not closed");
    ++pos_;
    if (open_.empty() || elements_[open_.back()].name != name) {
      return Fail("</" + name + "> closes nothing open");
    }
    open_.pop_back();
    return true;
  }

  const std::string& xml_;
  size_t pos_ = 0;
  std::vector<XmlElement> elements_;
  std::vector<size_t> open_;
  int roots_ = 0;
};

}  // namespace

std::optional<std::vector<XmlElement>> ReadXmlElements(const std::string& xml, std::string* error) {
  Reader reader(xml);
  std::optional<std::vector<XmlElement>> elements = reader.Read();
  if (error != nullptr) *error = reader.error;
  return elements;
}

}  // namespace ostraline
