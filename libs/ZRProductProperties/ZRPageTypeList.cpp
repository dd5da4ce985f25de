#include "ZRPageTypeList.h"

#include <algorithm>

#include <QStringList>

ZRPageTypeList::ZRPageTypeList() = default;

ZRPageTypeList::ZRPageTypeList(std::initializer_list<ZRPageType> pageTypes)
    : m_pageTypes(pageTypes)
{ }

ZRPageTypeList::ZRPageTypeList(const QList<ZRPageType> &pageTypes)
    : m_pageTypes(pageTypes)
{ }

ZRPageTypeList::ZRPageTypeList(const QString &text)
{
    m_pageTypes.reserve(text.count(u',') + 1);
    qsizetype start = 0;
    for (;;) {
        const qsizetype comma = text.indexOf(u',', start);
        const QStringView part = QStringView(text).sliced(start, (comma < 0 ? text.size() : comma) - start).trimmed();
        // Only decoded, never kept: the key is handed over in place instead of as a copy.
        m_pageTypes.append(ZRPageType(QString::fromRawData(part.data(), part.size())));
        if (comma < 0)
            break;
        start = comma + 1;
    }
}

ZRPageTypeList::ZRPageTypeList(const ZRPageTypeList &other) = default;
ZRPageTypeList::ZRPageTypeList(ZRPageTypeList &&other) noexcept = default;
ZRPageTypeList::~ZRPageTypeList() = default;
ZRPageTypeList &ZRPageTypeList::operator=(const ZRPageTypeList &other) = default;
ZRPageTypeList &ZRPageTypeList::operator=(ZRPageTypeList &&other) noexcept = default;

bool ZRPageTypeList::containsPanoPageType() const
{
    // Asked for every page of an expanded list: the values are compared without the wrapper's virtual calls.
    return std::any_of(m_pageTypes.cbegin(), m_pageTypes.cend(),
        [](const ZRPageType &pageType) { return pageType.value() == ZRPageTypePanoramaPage; });
}

bool ZRPageTypeList::containsMatch(const ZRPageType &pageType)
{
    m_pageTypes.detach();
    for (const ZRPageType &entry : std::as_const(m_pageTypes)) {
        if (entry.intersects(pageType.value()))
            return true;
    }
    return false;
}

void ZRPageTypeList::appendEnum(const QList<ZRPageTypeEnum> &values)
{
    for (ZRPageTypeEnum value : values)
        m_pageTypes.append(ZRPageType(value));
}

QString ZRPageTypeList::toString() const
{
    QStringList keys;
    keys.reserve(m_pageTypes.size());
    for (const ZRPageType &pageType : m_pageTypes)
        keys.append(pageType.encodeCSV());
    return keys.join(QLatin1String(", "));
}
