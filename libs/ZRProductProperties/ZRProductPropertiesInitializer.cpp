#include "ZRProductPropertiesInitializer.h"

#include "ZRInitializer.h"
#include "ZRProductCheckerRegistry.h"
#include "ZRProductTypeConfigRegistry.h"

namespace {
// Registers the library with the base initializer as soon as the library is loaded.
ZRProductPropertiesInitializer theInitializer;
} // namespace

ZRProductPropertiesInitializer::ZRProductPropertiesInitializer()
{
    ZRSingleton<ZRInitializer>::instance()->registerInitializer(this);
}

ZRProductPropertiesInitializer::~ZRProductPropertiesInitializer() = default;

void ZRProductPropertiesInitializer::setup(ZRInitializerOption option)
{
    Q_UNUSED(option)
    // Asking for the registry creates it, so the product descriptions are read here.
    ZRSingleton<ZRProductCheckerRegistry>::instance()->registerChecker(
        ZRSingleton<ZRProductTypeConfigRegistry>::instance());
}

void ZRProductPropertiesInitializer::teardown() { }
