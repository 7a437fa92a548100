#include "desktop/file_filter.h"

#include <QStringList>

#include "desktop/conversions.h"

namespace ostraline {
namespace {

// "*.jpg;*.bmp" becomes "*.jpg *.bmp"; "*.*" means every file, also those
// without an extension.
QString QtPatterns(const QString& patterns) {
  QStringList result;
  for (const QString& pattern : patterns.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
    const QString trimmed = pattern.trimmed();
    result << (trimmed == QLatin1String("*.*") ? QStringLiteral("*") : trimmed);
  }
  return result.isEmpty() ? QStringLiteral("*") : result.join(QLatin1Char(' '));
}

}  // namespace

QString QtFileFilter(const std::string& filter) {
  const QStringList parts = ToQString(filter).split(QLatin1Char('|'));
  QStringList entries;
  for (qsizetype i = 0; i < parts.size(); i += 2) {
    const QString description = parts[i].trimmed();
    // An empty filter, or a trailing "|", adds no entry.
    if (description.isEmpty() && i + 1 >= parts.size()) break;
    const QString patterns = QtPatterns(i + 1 < parts.size() ? parts[i + 1] : QString());
    entries << description + QStringLiteral(" (") + patterns + QLatin1Char(')');
  }
  return entries.join(QStringLiteral(";;"));
}

}  // namespace ostraline
