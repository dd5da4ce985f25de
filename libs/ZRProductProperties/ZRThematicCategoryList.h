#ifndef ZRTHEMATICCATEGORYLIST_H
#define ZRTHEMATICCATEGORYLIST_H

#include "ZRThematicCategory.h"
#include "zrproductproperties_export.h"

#include <QList>

#include <initializer_list>

class ZRThematicCategorySet;

/** Thematic categories in the order they are shown; duplicates are allowed. */
class ZRPRODUCTPROPERTIES_EXPORT ZRThematicCategoryList : public QList<ZRThematicCategory>
{
public:
    ZRThematicCategoryList();
    explicit ZRThematicCategoryList(const QList<ZRThematicCategory> &categories);
    ZRThematicCategoryList(std::initializer_list<ZRThematicCategory> categories);
    /** The elements of @p set in the set's iteration order. */
    explicit ZRThematicCategoryList(const ZRThematicCategorySet &set);

    /** Removes the internal frame and passe-partout categories, keeping the order of the rest. */
    void removePrimaryCategories();
    /** Sorts by ZRThematicCategory::colorSortKey(); elements with equal keys may end up in any order. */
    void sortByColor();
};

#endif
