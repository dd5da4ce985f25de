#ifndef ZRPRODUCTTYPE_H
#define ZRPRODUCTTYPE_H

#include "zrcore_export.h"

#include <QMetaType>
#include <QString>

class QDebug;

/** Identifier of a product type, by its name. Valid exactly when the name is not empty. */
class ZRCORE_EXPORT ZRProductType
{
public:
    ZRProductType() = default;
    explicit ZRProductType(const QString &name);
    virtual ~ZRProductType();
    ZRProductType(const ZRProductType &) = default;
    ZRProductType(ZRProductType &&) noexcept = default;
    ZRProductType &operator=(const ZRProductType &) = default;
    ZRProductType &operator=(ZRProductType &&) noexcept = default;

    QString name() const { return m_name; }
    bool isValid() const { return !m_name.isEmpty(); }
    /** The hash of the name, computed once when the product type is made. */
    size_t calcHashValue() const { return m_hash; }

    bool operator==(const ZRProductType &other) const { return m_hash == other.m_hash && m_name == other.m_name; }
    bool operator!=(const ZRProductType &other) const { return !(*this == other); }
    bool operator<(const ZRProductType &other) const { return m_name < other.m_name; }

private:
    QString m_name;
    size_t m_hash = 0;
};

inline size_t qHash(const ZRProductType &type, size_t seed = 0) noexcept
{
    return type.calcHashValue() ^ seed;
}

ZRCORE_EXPORT QDebug operator<<(QDebug debug, const ZRProductType &type);

Q_DECLARE_METATYPE(ZRProductType)

#endif
