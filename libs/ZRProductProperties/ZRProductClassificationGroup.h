#ifndef ZRPRODUCTCLASSIFICATIONGROUP_H
#define ZRPRODUCTCLASSIFICATIONGROUP_H

#include "zrproductproperties_export.h"

#include "ZRLookUpTable.h"

#include <QSet>
#include <QString>

/**
 * The material group of a wall-decor product ("Leinwand", "PGAP" ...), as written in the product
 * description. The default group has an empty value.
 */
class ZRPRODUCTPROPERTIES_EXPORT ZRProductClassificationGroup
{
public:
    ZRProductClassificationGroup();
    explicit ZRProductClassificationGroup(const QString &value);
    ZRProductClassificationGroup(const ZRProductClassificationGroup &other);
    ZRProductClassificationGroup(ZRProductClassificationGroup &&other) noexcept;
    virtual ~ZRProductClassificationGroup();
    ZRProductClassificationGroup &operator=(const ZRProductClassificationGroup &other);
    ZRProductClassificationGroup &operator=(ZRProductClassificationGroup &&other) noexcept;

    QString value() const { return m_value; }

    /** The translated description of the group; empty for a group that has none. */
    QString visibleDescription() const;
    /**
     * Whether products of the group @p name may be ordered in a size of the user's choosing; with an
     * empty @p name, whether this group's products may.
     */
    bool canCustomFormat(const QString &name = QString()) const;
    /** Fills @p table with the translated description of every known group. */
    void initDescriptions(ZRLookUpTable<QString, QString> *table) const;

    /** The groups whose products may be ordered in a custom size. */
    static QSet<QString> customFormatProductWhiteList();

    bool operator==(const ZRProductClassificationGroup &other) const { return m_value == other.m_value; }
    bool operator!=(const ZRProductClassificationGroup &other) const { return m_value != other.m_value; }

private:
    QString m_value;
};

inline size_t qHash(const ZRProductClassificationGroup &group, size_t seed = 0) noexcept
{
    return qHash(group.value(), seed);
}

#endif
