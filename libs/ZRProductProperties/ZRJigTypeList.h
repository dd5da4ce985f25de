#ifndef ZRJIGTYPELIST_H
#define ZRJIGTYPELIST_H

#include "ZRJigType.h"
#include "zrproductproperties_export.h"

#include <QList>

/** An ordered list of jig types. */
class ZRPRODUCTPROPERTIES_EXPORT ZRJigTypeList : public QList<ZRJigType>
{
public:
    ZRJigTypeList() = default;
    ZRJigTypeList(std::initializer_list<ZRJigType> types);

    /** The element types 0, background, clipart, content, layout, mask, styles_v2, in this order. */
    static ZRJigTypeList allElementTypes();
    /** The downloadable types background, clipart, content, mask, styles_v2, layout, in this order. */
    static ZRJigTypeList allDownloadableElementTypes();
};

#endif
