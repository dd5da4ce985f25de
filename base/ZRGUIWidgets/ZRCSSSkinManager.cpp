#include "ZRCSSSkinManager.h"

template class ZRSingleton<ZRCSSSkinManager>;

ZRCSSSkinManager::ZRCSSSkinManager()
    : m_backgroundColor(0xf0, 0xf0, 0xf0)
{
    const QColor fromEnvironment = QColor::fromString(qEnvironmentVariable("ZR_SKIN_BACKGROUND"));
    if (fromEnvironment.isValid())
        m_backgroundColor = fromEnvironment;
}

ZRCSSSkinManager::~ZRCSSSkinManager() = default;

QColor ZRCSSSkinManager::backgroundColor() const
{
    ZRReadLocker locker(&m_lock);
    return m_backgroundColor;
}

void ZRCSSSkinManager::setBackgroundColor(const QColor &color)
{
    ZRWriteLocker locker(&m_lock);
    m_backgroundColor = color;
}
