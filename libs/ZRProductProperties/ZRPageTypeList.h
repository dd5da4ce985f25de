#ifndef ZRPAGETYPELIST_H
#define ZRPAGETYPELIST_H

#include "ZRPageType.h"
#include "zrproductproperties_export.h"

#include <QList>

/** An ordered list of page types, read from a comma-separated attribute. */
class ZRPRODUCTPROPERTIES_EXPORT ZRPageTypeList
{
public:
    ZRPageTypeList();
    ZRPageTypeList(std::initializer_list<ZRPageType> pageTypes);
    ZRPageTypeList(const QList<ZRPageType> &pageTypes);
    /** One page type per comma-separated part, each trimmed and decoded; empty parts are kept (as 0). */
    explicit ZRPageTypeList(const QString &text);
    ZRPageTypeList(const ZRPageTypeList &other);
    ZRPageTypeList(ZRPageTypeList &&other) noexcept;
    virtual ~ZRPageTypeList();
    ZRPageTypeList &operator=(const ZRPageTypeList &other);
    ZRPageTypeList &operator=(ZRPageTypeList &&other) noexcept;

    /** True when an entry is the panorama content page type ("panorama,content"). */
    bool containsPanoPageType() const;
    /** True when an entry shares a flag with @p pageType; detaches the list before walking it. */
    bool containsMatch(const ZRPageType &pageType);
    void appendEnum(const QList<ZRPageTypeEnum> &values);

    void append(const ZRPageType &pageType) { m_pageTypes.append(pageType); }
    const QList<ZRPageType> &pageTypes() const { return m_pageTypes; }
    int size() const { return int(m_pageTypes.size()); }
    bool isEmpty() const { return m_pageTypes.isEmpty(); }
    const ZRPageType &at(int index) const { return m_pageTypes.at(index); }
    QList<ZRPageType>::const_iterator begin() const { return m_pageTypes.cbegin(); }
    QList<ZRPageType>::const_iterator end() const { return m_pageTypes.cend(); }
    /** The keys of the entries, each written with encodeCSV(), joined by ", ". */
    QString toString() const;

    bool operator==(const ZRPageTypeList &other) const { return m_pageTypes == other.m_pageTypes; }
    bool operator!=(const ZRPageTypeList &other) const { return !(*this == other); }

private:
    QList<ZRPageType> m_pageTypes;
};

#endif
