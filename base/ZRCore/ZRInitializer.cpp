#include "ZRInitializer.h"

template class ZRSingleton<ZRInitializer>;

ZRInitializer::ZRInitializer() = default;

ZRInitializer::~ZRInitializer() = default;

void ZRInitializer::registerInitializer(ZRInitializerAbstract *initializer)
{
    QMutexLocker locker(&m_mutex);
    if (initializer && !m_initializers.contains(initializer))
        m_initializers.append(initializer);
}

QList<ZRInitializerAbstract *> ZRInitializer::initializers() const
{
    QMutexLocker locker(&m_mutex);
    return m_initializers;
}

void ZRInitializer::setupAll(ZRInitializerOption option)
{
    // Run outside the lock: a setup may register further initializers or ask for other singletons.
    const QList<ZRInitializerAbstract *> all = initializers();
    for (ZRInitializerAbstract *initializer : all)
        initializer->setup(option);
}

void ZRInitializer::teardownAll()
{
    const QList<ZRInitializerAbstract *> all = initializers();
    for (auto it = all.crbegin(); it != all.crend(); ++it)
        (*it)->teardown();
}
