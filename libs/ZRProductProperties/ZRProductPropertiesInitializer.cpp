#include "ZRProductPropertiesInitializer.h"

#include "ZRInitializer.h"

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
    // The product type registry registers itself as a product checker here once it exists.
}

void ZRProductPropertiesInitializer::teardown() { }
