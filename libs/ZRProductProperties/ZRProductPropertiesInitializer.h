#ifndef ZRPRODUCTPROPERTIESINITIALIZER_H
#define ZRPRODUCTPROPERTIESINITIALIZER_H

#include "ZRInitializerAbstract.h"
#include "zrproductproperties_export.h"

/**
 * The library's start-up hook. One static instance registers itself with
 * ZRSingleton<ZRInitializer>::instance() when the library is loaded; setup() loads the current
 * product descriptions and registers their registry as a product checker. Teardown does nothing.
 */
class ZRPRODUCTPROPERTIES_EXPORT ZRProductPropertiesInitializer : public ZRInitializerAbstract
{
public:
    ZRProductPropertiesInitializer();
    ~ZRProductPropertiesInitializer() override;

    void setup(ZRInitializerOption option) override;
    void teardown() override;
};

#endif
