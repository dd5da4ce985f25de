#include "ZRXMLStringPool.h"

namespace {
thread_local ZRXMLStringPool *activePool = nullptr;
} // namespace

ZRXMLStringPool::ZRXMLStringPool()
    : m_outer(activePool)
{
    activePool = this;
}

ZRXMLStringPool::~ZRXMLStringPool()
{
    activePool = m_outer;
}

QString ZRXMLStringPool::share(const QString &text)
{
    if (!activePool || text.isEmpty())
        return text;
    return *activePool->m_strings.insert(text);
}

QVariant *ZRXMLStringPool::recordSlot(QMetaType type, const QString &text)
{
    if (!activePool)
        return nullptr;
    return &activePool->m_records[{ type.id(), text }];
}
