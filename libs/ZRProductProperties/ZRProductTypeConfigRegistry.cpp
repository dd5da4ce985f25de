#include "ZRProductTypeConfigRegistry.h"

#include "ZRDirectoryConfig.h"

template class ZRSingleton<ZRProductTypeConfigRegistry>;

ZRProductTypeConfigRegistry::ZRProductTypeConfigRegistry()
{
    load();
}

ZRProductTypeConfigRegistry::~ZRProductTypeConfigRegistry() = default;

QList<QDir> ZRProductTypeConfigRegistry::supervisedDirs() const
{
    const ZRDirectoryConfig *config = ZRSingleton<ZRDirectoryConfig>::instance();
    return { config->productsDir(true), config->productsDir(false) };
}
