#include "ZRArticleClass.h"

template class ZREnumWrapper<ZRArticleClassEnum>;

ZRArticleClass::ZRArticleClass(ZRArticleClassEnum value)
    : ZREnumWrapper(value)
{ }

ZRArticleClass::ZRArticleClass(const QString &keys)
{
    m_value = decoded(keys);
}

void ZRArticleClass::fillTable(Table *table) const
{
    table->insert({
        { "unknown", ZRArticleClassUnknown },
        { "photobook", ZRArticleClassPhotoBook },
        { "calendar", ZRArticleClassCalendar },
        { "notebook", ZRArticleClassNotebook },
        { "card", ZRArticleClassCard },
        { "adventcalendar", ZRArticleClassAdventCalendar },
        { "mug", ZRArticleClassMug },
        { "puzzle", ZRArticleClassPuzzle },
        { "photoprint", ZRArticleClassPhotoPrint },
        { "gift", ZRArticleClassGift },
        { "walldecor", ZRArticleClassWallDecor },
    });
}
