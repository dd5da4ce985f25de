#include "ZRThematicCategoryList.h"

#include "ZRThematicCategorySet.h"

#include <QPair>

#include <algorithm>

ZRThematicCategoryList::ZRThematicCategoryList() = default;

ZRThematicCategoryList::ZRThematicCategoryList(const QList<ZRThematicCategory> &categories)
    : QList<ZRThematicCategory>(categories)
{ }

ZRThematicCategoryList::ZRThematicCategoryList(std::initializer_list<ZRThematicCategory> categories)
    : QList<ZRThematicCategory>(categories)
{ }

ZRThematicCategoryList::ZRThematicCategoryList(const ZRThematicCategorySet &set)
    : QList<ZRThematicCategory>(set.cbegin(), set.cend())
{ }

void ZRThematicCategoryList::removePrimaryCategories()
{
    removeIf([](const ZRThematicCategory &category) { return category.isPrimaryCategory(); });
}

void ZRThematicCategoryList::sortByColor()
{
    // Each key needs registry lookups and a colour conversion: compute it once per element.
    QList<QPair<QString, ZRThematicCategory>> keyed;
    keyed.reserve(size());
    for (const ZRThematicCategory &category : std::as_const(*this))
        keyed.append({ category.colorSortKey(), category });
    std::sort(keyed.begin(), keyed.end(), [](const auto &a, const auto &b) { return a.first < b.first; });
    for (qsizetype i = 0; i < keyed.size(); ++i)
        (*this)[i] = keyed.at(i).second;
}
