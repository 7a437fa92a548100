#include "proxies/proxy_records.h"

namespace ostraline {

ProxyRecords::ProxyRecords() {
  for (auto* table : {&ProxyLoaded, &ProxyHasLabel, &ProxyHasTrinity}) table->DimUpper(4);
  ProxyFileName.DimUpper(4);
  ProxyColumnCount.DimUpper(4);
  ProxyRowCount.DimUpper(4);
  ProxyLabel.DimUpper(4);
  ProxyDepth.DimUpper(4);
  ProxyHeader.DimUpper(4);
  ProxyValue.DimUpper(4);
  ProxyColumnA.DimUpper(4);
  ProxyColumnB.DimUpper(4);
  ProxyMax.DimUpper(4);
  ProxyMin.DimUpper(4);
}

ProxyRecords& ProxiesOf(const BoreHoleSet& set) {
  return set.IsDuo ? duoProxies : masterProxies;
}

}  // namespace ostraline
