#include "ZRLegacyProductTypeConfigRegistry.h"

#include "ZRDirectoryConfig.h"
#include "ZRProductTypeDescription.h"

template class ZRSingleton<ZRLegacyProductTypeConfigRegistry>;

ZRLegacyProductTypeConfigRegistry::ZRLegacyProductTypeConfigRegistry()
{
    load();
}

ZRLegacyProductTypeConfigRegistry::~ZRLegacyProductTypeConfigRegistry() = default;

QList<QDir> ZRLegacyProductTypeConfigRegistry::supervisedDirs() const
{
    return { QDir(ZRSingleton<ZRDirectoryConfig>::instance()->resource(QStringLiteral("products/legacy"), false)) };
}

ZRProductType ZRLegacyProductTypeConfigRegistry::replacedByProduct(const ZRProductType &type) const
{
    return description(type)->replacedByProduct();
}

ZRXMLRewriterStrategy ZRLegacyProductTypeConfigRegistry::conversionStrategy(const ZRProductType &type) const
{
    return description(type)->conversionStrategy();
}
