#include "ZRThematicCategoryRegistry.h"

#include "ZRLocaleAndTranslationManager.h"
#include "ZRThematicCategory.h"
#include "ZRThematicCategoryTranslationRegistry.h"

#include <QMutexLocker>
#include <QStringList>

#include <algorithm>

template class ZRSingleton<ZRThematicCategoryRegistry>;

namespace {
// The translation registry never calls back into this registry, so it may be called with the mutex held.
QString translatedName(const QString &name)
{
    return ZRSingleton<ZRThematicCategoryTranslationRegistry>::instance()->translate(
        name, ZRSingleton<ZRLocaleAndTranslationManager>::instance()->locale());
}
} // namespace

ZRThematicCategoryRegistry::ZRThematicCategoryRegistry()
{
    // Room for a whole content catalogue, so loading it does not rehash.
    internalNames.reserve(1000);
    visibleNames.reserve(1000);
    keysByInternalName.reserve(1000);
    keysByVisibleName.reserve(1000);
}

ZRThematicCategoryRegistry::~ZRThematicCategoryRegistry() = default;

int ZRThematicCategoryRegistry::key(const QString &name)
{
    QMutexLocker locker(&mutex);
    const QString lowerName = name.toLower();
    auto found = keysByInternalName.constFind(lowerName);
    if (found != keysByInternalName.cend())
        return found.value();
    // A name given in its translated form joins the category whose visible name it is.
    if (!keysByVisibleName.isEmpty()) {
        found = keysByVisibleName.constFind(lowerName);
        if (found != keysByVisibleName.cend())
            return found.value();
    }

    const QString visible = translatedName(name);
    const QString lowerVisible = visible.toLower();
    const int k = generateKey(lowerVisible);
    internalNames.insert(k, name);
    visibleNames.insert(k, visible);
    keysByInternalName.insert(lowerName, k);
    keysByVisibleName.insert(lowerVisible, k);
    return k;
}

int ZRThematicCategoryRegistry::generateKey(const QString &lowerVisibleName)
{
    // The internal frame and mask categories must never share a key with content categories.
    static const QStringList neverAliased { ZRThematicCategory::framesInternalCategoryName(),
        ZRThematicCategory::passepartoutInternalCategoryName() };

    if (!lowerVisibleName.isEmpty() && !keysByVisibleName.isEmpty()) {
        const auto found = keysByVisibleName.constFind(lowerVisibleName);
        if (found != keysByVisibleName.cend() && !neverAliased.contains(internalNames.value(found.value())))
            return found.value();
    }
    return nextKey++;
}

QString ZRThematicCategoryRegistry::internalName(const int &key) const
{
    QMutexLocker locker(&mutex);
    return internalNames.value(key);
}

QString ZRThematicCategoryRegistry::visibleName(const int &key) const
{
    QMutexLocker locker(&mutex);
    return visibleNames.value(key);
}

void ZRThematicCategoryRegistry::setVisibleName(const int &key, const QString &name)
{
    QMutexLocker locker(&mutex);
    visibleNames.insert(key, name.isEmpty() ? translatedName(internalNames.value(key)) : name);
}

QList<int> ZRThematicCategoryRegistry::keys() const
{
    QMutexLocker locker(&mutex);
    QList<int> result = internalNames.keys();
    std::sort(result.begin(), result.end());
    return result;
}
