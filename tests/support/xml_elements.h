#pragma once
// A strict little reader of the XML the program writes (the clipboard's
// vector pictures): tags must balance, attributes be quoted, entities be
// XML's five. Enough to check a document, no more.
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace ostraline {

struct XmlElement {
  std::string name;
  std::map<std::string, std::string> attributes;
  std::string text;  // its own character data, entities decoded
};

// The elements in document order, or nothing with the reason in `error`
// when the document is not well formed.
std::optional<std::vector<XmlElement>> ReadXmlElements(const std::string& xml,
                                                       std::string* error = nullptr);

}  // namespace ostraline
