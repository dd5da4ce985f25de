#ifndef ZRPRODUCTTYPECONFIGREGISTRY_H
#define ZRPRODUCTTYPECONFIGREGISTRY_H

#include "ZRProductTypeConfigRegistryAbstract.h"
#include "ZRSingleton.h"
#include "zrproductproperties_export.h"

class ZRProductTypeConfigRegistry;
extern template class ZRPRODUCTPROPERTIES_EXPORT ZRSingleton<ZRProductTypeConfigRegistry>;

/**
 * The current products: the descriptions of the directory configuration's productsDir(true), then
 * productsDir(false), loaded once when the registry is first asked for (normally during the
 * library's setup). Reach it as ZRSingleton<ZRProductTypeConfigRegistry>::instance().
 */
class ZRPRODUCTPROPERTIES_EXPORT ZRProductTypeConfigRegistry : public ZRProductTypeConfigRegistryAbstract,
                                                               public ZRSingleton<ZRProductTypeConfigRegistry>
{
public:
    ZRProductTypeConfigRegistry();
    ~ZRProductTypeConfigRegistry() override;

    QList<QDir> supervisedDirs() const override;
};

#endif
