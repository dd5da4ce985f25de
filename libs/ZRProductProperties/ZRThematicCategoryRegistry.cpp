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
    m_internalNames.reserve(1000);
    m_visibleNames.reserve(1000);
    m_keysByInternalName.reserve(1000);
    m_keysByVisibleName.reserve(1000);
}

ZRThematicCategoryRegistry::~ZRThematicCategoryRegistry() = default;

int ZRThematicCategoryRegistry::key(const QString &name)
{
    QMutexLocker locker(&m_mutex);
    const QString lowerName = name.toLower();
    auto found = m_keysByInternalName.constFind(lowerName);
    if (found != m_keysByInternalName.cend())
        return found.value();
    // A name given in its translated form joins the category whose visible name it is.
    if (!m_keysByVisibleName.isEmpty()) {
        found = m_keysByVisibleName.constFind(lowerName);
        if (found != m_keysByVisibleName.cend())
            return found.value();
    }

    const QString visible = translatedName(name);
    const QString lowerVisible = visible.toLower();
    const int k = generateKey(lowerVisible);
    m_internalNames.insert(k, name);
    m_visibleNames.insert(k, visible);
    m_keysByInternalName.insert(lowerName, k);
    m_keysByVisibleName.insert(lowerVisible, k);
    return k;
}

int ZRThematicCategoryRegistry::generateKey(const QString &lowerVisibleName)
{
    // The internal frame and mask categories must never share a key with content categories.
    static const QStringList neverAliased { ZRThematicCategory::framesInternalCategoryName(),
        ZRThematicCategory::passepartoutInternalCategoryName() };

    if (!lowerVisibleName.isEmpty() && !m_keysByVisibleName.isEmpty()) {
        const auto found = m_keysByVisibleName.constFind(lowerVisibleName);
        if (found != m_keysByVisibleName.cend() && !neverAliased.contains(m_internalNames.value(found.value())))
            return found.value();
    }
    return m_nextKey++;
}

QString ZRThematicCategoryRegistry::internalName(const int &key) const
{
    QMutexLocker locker(&m_mutex);
    return m_internalNames.value(key);
}

QString ZRThematicCategoryRegistry::visibleName(const int &key) const
{
    QMutexLocker locker(&m_mutex);
    return m_visibleNames.value(key);
}

void ZRThematicCategoryRegistry::setVisibleName(const int &key, const QString &name)
{
    QMutexLocker locker(&m_mutex);
    m_visibleNames.insert(key, name.isEmpty() ? translatedName(m_internalNames.value(key)) : name);
}

QList<int> ZRThematicCategoryRegistry::keys() const
{
    QMutexLocker locker(&m_mutex);
    QList<int> result = m_internalNames.keys();
    std::sort(result.begin(), result.end());
    return result;
}
