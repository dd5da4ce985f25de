#ifndef ZRPRODUCTIONEXTRAPAGEGROUPLIST_H
#define ZRPRODUCTIONEXTRAPAGEGROUPLIST_H

#include "ZRProductionExtraPageGroup.h"
#include "zrproductproperties_export.h"

#include <QDomElement>
#include <QList>

/**
 * The extra pages that production inserts into a product, as groups in document order.
 */
class ZRPRODUCTPROPERTIES_EXPORT ZRProductionExtraPageGroupList
{
public:
    /** No groups. */
    ZRProductionExtraPageGroupList();
    /**
     * Reads one group from every "item" child of @p element; a null element gives no groups. Groups
     * of more than ZRXMLLimits::maxListPages target pages in all are refused as a whole, with the
     * warning "Page list too long in the product description.".
     */
    explicit ZRProductionExtraPageGroupList(const QDomElement &element);
    virtual ~ZRProductionExtraPageGroupList();

    QList<ZRProductionExtraPageGroup> groups() const { return m_groups; }
    bool isEmpty() const { return m_groups.isEmpty(); }
    /** The number of target page entries over all groups, duplicates counted. */
    int totalPages() const;

    bool operator==(const ZRProductionExtraPageGroupList &other) const;
    bool operator!=(const ZRProductionExtraPageGroupList &other) const;

private:
    QList<ZRProductionExtraPageGroup> m_groups;
};

#endif
