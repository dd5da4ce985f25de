#ifndef ZRPRODUCTTYPELIST_H
#define ZRPRODUCTTYPELIST_H

#include "ZRProductType.h"
#include "zrproductbase_export.h"

#include <QList>

/** An ordered list of product types. */
class ZRPRODUCTBASE_EXPORT ZRProductTypeList : public QList<ZRProductType>
{
public:
    ZRProductTypeList() = default;
    ZRProductTypeList(const QList<ZRProductType> &types);
    ZRProductTypeList(std::initializer_list<ZRProductType> types);
    /** The names of the product types, in order. */
    QStringList names() const;
};

#endif
