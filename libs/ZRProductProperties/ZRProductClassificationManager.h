#ifndef ZRPRODUCTCLASSIFICATIONMANAGER_H
#define ZRPRODUCTCLASSIFICATIONMANAGER_H

#include "zrproductproperties_export.h"

#include "ZRProductClassification.h"

#include <QList>
#include <QStringList>

/**
 * Lookups over the classifications of wall-decor products: sizes by group, the product of a group
 * and size, and the nearest size in another group. Every lookup answers with the first match in
 * the order the classifications were given.
 */
class ZRPRODUCTPROPERTIES_EXPORT ZRProductClassificationManager
{
public:
    ZRProductClassificationManager();
    explicit ZRProductClassificationManager(const QList<ZRProductClassification> &classifications);
    ZRProductClassificationManager(const ZRProductClassificationManager &other);
    ZRProductClassificationManager(ZRProductClassificationManager &&other) noexcept;
    virtual ~ZRProductClassificationManager();
    ZRProductClassificationManager &operator=(const ZRProductClassificationManager &other);
    ZRProductClassificationManager &operator=(ZRProductClassificationManager &&other) noexcept;

    QList<ZRProductClassification> classifications() const { return m_classifications; }

    /**
     * The product of the group @p groupValue whose diagonal is nearest to that of @p type; the
     * earliest one on a tie. A @p type without classification counts as size 0, so the smallest
     * product of the group wins. An invalid product type when the group has no products.
     */
    ZRProductType closestProduct(const ZRProductType &type, const QString &groupValue) const;
    /** The product of @p group whose visible size name in @p unit is @p sizeName; invalid when none is. */
    ZRProductType type(
        const ZRProductClassificationGroup &group, const QString &sizeName, const ZRDistanceUnit &unit) const;
    /** The visible size name of @p type in @p unit; empty for an unclassified product. */
    QString classificationName(const ZRProductType &type, const ZRDistanceUnit &unit) const;
    /** The group of @p type; the default group for an unclassified product. */
    ZRProductClassificationGroup classificationGroup(const ZRProductType &type) const;
    /** The visible size names of every product of @p group. */
    QStringList classificationNames(const ZRProductClassificationGroup &group, const ZRDistanceUnit &unit) const;
    /** The distinct groups, in the order of their first product. */
    QList<ZRProductClassificationGroup> classificationGroups() const;

    bool operator==(const ZRProductClassificationManager &other) const
    {
        return m_classifications == other.m_classifications;
    }
    bool operator!=(const ZRProductClassificationManager &other) const { return !(*this == other); }

private:
    const ZRProductClassification *find(const ZRProductType &type) const;

    QList<ZRProductClassification> m_classifications;
};

#endif
