#ifndef ZRTHEMATICCATEGORYSET_H
#define ZRTHEMATICCATEGORYSET_H

#include "ZRSpotColor.h"
#include "ZRThematicCategory.h"
#include "zrproductproperties_export.h"

#include <QDomElement>
#include <QList>
#include <QSet>
#include <QStringList>

#include <initializer_list>

class QDebug;

/**
 * The thematic categories an item belongs to, or that a product allows, with the tests the editor
 * needs. Iteration order is the hash order and means nothing; "first" below is first in that order.
 */
class ZRPRODUCTPROPERTIES_EXPORT ZRThematicCategorySet : public QSet<ZRThematicCategory>
{
public:
    ZRThematicCategorySet();
    explicit ZRThematicCategorySet(const ZRThematicCategory &category);
    explicit ZRThematicCategorySet(const QList<ZRThematicCategory> &categories);
    /** The categories of the internal names @p names; an empty name is the category of the empty name. */
    explicit ZRThematicCategorySet(const QList<QString> &names);
    ZRThematicCategorySet(std::initializer_list<ZRThematicCategory> categories);

    /** The categories of the comma-separated names of @p csv; empty parts are skipped, blanks kept. */
    static ZRThematicCategorySet buildFromCSV(const QString &csv);
    /** The categories of @p spotColors; a value without category adds the empty category. */
    static ZRThematicCategorySet fromSpotColors(const QList<ZRSpotColor> &spotColors);

    bool contains(const ZRThematicCategory &category) const;
    /** True when @p category is the only element. */
    bool isCategory(const ZRThematicCategory &category) const;
    /** True when every element of @p other is in this set (also when @p other is empty). */
    bool contains(const ZRThematicCategorySet &other) const;
    /** True when some element of @p other is in this set (never when @p other is empty). */
    bool containsAtLeastOne(const ZRThematicCategorySet &other) const;
    /** True when every element apart from favourites and the AI suggestions is in @p other. */
    bool containsOnlyFavouritesAnd(const ZRThematicCategorySet &other) const;
    /** True when every element is a spot colour category (also for an empty set). */
    bool containsOnlySpotColorCategories() const;
    bool containsCategoryAll() const;
    bool isOnlySuggestedByAI() const;
    bool isOnlyMultiColor() const;
    bool isOnlyFitsToStyleV2Category() const;
    /** The spot colour of the only element; value 0 for an empty set or more than one element. */
    ZRSpotColor spotColor() const;

    /** Adds @p category unless it is empty. */
    void insertNonEmpty(const ZRThematicCategory &category);
    /** Adds @p category; returns whether it was already there. */
    bool insertOnlyOnce(const ZRThematicCategory &category);
    /** Adds the catch-all category "Sonstige" in the current language. */
    void insertCategoryVarious();
    /** Removes every category whose internal name is an internal name of @p other (case-sensitive). */
    ZRThematicCategorySet &subtract(const ZRThematicCategorySet &other);
    /** A copy with the favourites added. */
    ZRThematicCategorySet plusFavourites() const;

    /**
     * The category that represents the set: the user's cliparts or book styles when present, else
     * multiColor() when present and @p preferMultiColor, else the first element that is no special
     * category (the first element when all are). The empty category for an empty set.
     */
    ZRThematicCategory preferredCategory(bool preferMultiColor) const;

    /** The internal names, in iteration order. */
    QStringList toDataStringList() const;
    /** Appends one "subcategory" child element holding the internal name per element. */
    void toXml(QDomElement &parent) const;

    static ZRThematicCategorySet allKnownSpotColorCategoriesSet();
    static ZRThematicCategorySet allSmartLayoutCategories();
    /** The smart layout and spot colour categories, which are shown with an icon. */
    static ZRThematicCategorySet categoriesWithIcon();
    /** Show-all, favourites, frames, multi-colour, passe-partouts and recycle bin. */
    static ZRThematicCategorySet specialCategories();
    static ZRThematicCategorySet allCategorySet();
    static ZRThematicCategorySet createRecycleBinCategory();
    static ZRThematicCategorySet createCategories01();
};

/** Hash of the whole set, independent of iteration order. */
inline size_t qHash(const ZRThematicCategorySet &set, size_t seed = 0) noexcept
{
    return qHashRangeCommutative(set.cbegin(), set.cend(), seed);
}

/** Writes "EMPTY!" for an empty set, else each category on a line of its own. */
ZRPRODUCTPROPERTIES_EXPORT QDebug operator<<(QDebug debug, const ZRThematicCategorySet &set);

#endif
