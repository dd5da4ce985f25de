#ifndef ZRLEGACYPRODUCTTYPECONFIGREGISTRY_H
#define ZRLEGACYPRODUCTTYPECONFIGREGISTRY_H

#include "ZRProductTypeConfigRegistryAbstract.h"
#include "ZRSingleton.h"
#include "ZRXMLRewriterStrategy.h"
#include "zrproductproperties_export.h"

class ZRLegacyProductTypeConfigRegistry;
extern template class ZRPRODUCTPROPERTIES_EXPORT ZRSingleton<ZRLegacyProductTypeConfigRegistry>;

/**
 * Retired products: the descriptions of the resource directory "products/legacy", which tell the
 * product that replaces each and how old documents are rewritten. Loaded on first use; reach it as
 * ZRSingleton<ZRLegacyProductTypeConfigRegistry>::instance().
 */
class ZRPRODUCTPROPERTIES_EXPORT ZRLegacyProductTypeConfigRegistry
    : public ZRProductTypeConfigRegistryAbstract,
      public ZRSingleton<ZRLegacyProductTypeConfigRegistry>
{
public:
    ZRLegacyProductTypeConfigRegistry();
    ~ZRLegacyProductTypeConfigRegistry() override;

    QList<QDir> supervisedDirs() const override;
    /** The product replacing @p type; an empty product type when @p type is not described. */
    ZRProductType replacedByProduct(const ZRProductType &type) const;
    ZRXMLRewriterStrategy conversionStrategy(const ZRProductType &type) const;
};

#endif
