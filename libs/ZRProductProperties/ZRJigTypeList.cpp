#include "ZRJigTypeList.h"

ZRJigTypeList::ZRJigTypeList(std::initializer_list<ZRJigType> types)
    : QList<ZRJigType>(types)
{ }

ZRJigTypeList ZRJigTypeList::allElementTypes()
{
    return { ZRJigTypeUnknown, ZRJigTypeBackground, ZRJigTypeClipart, ZRJigTypeContent, ZRJigTypeLayout, ZRJigTypeMask,
        ZRJigTypeStylesV2 };
}

ZRJigTypeList ZRJigTypeList::allDownloadableElementTypes()
{
    return { ZRJigTypeBackground, ZRJigTypeClipart, ZRJigTypeContent, ZRJigTypeMask, ZRJigTypeStylesV2,
        ZRJigTypeLayout };
}
