#pragma once
// The file dialogs' filter strings: "DataFile(*.csv)|*.csv|All(*.*)|*.*" pairs
// a description with its patterns; Qt wants "DataFile(*.csv) (*.csv);;All(*.*) (*)".
#include <QString>
#include <string>

namespace ostraline {

QString QtFileFilter(const std::string& filter);

}  // namespace ostraline
