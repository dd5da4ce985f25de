#include "ZRProductTypeList.h"

#include <QStringList>

ZRProductTypeList::ZRProductTypeList(const QList<ZRProductType> &types)
    : QList<ZRProductType>(types)
{ }

ZRProductTypeList::ZRProductTypeList(std::initializer_list<ZRProductType> types)
    : QList<ZRProductType>(types)
{ }

QStringList ZRProductTypeList::names() const
{
    QStringList result;
    result.reserve(size());
    for (const ZRProductType &type : *this)
        result.append(type.name());
    return result;
}
