#include "ZRThematicCategorySet.h"

#include "ZRXMLBuilder.h"

#include <QCoreApplication>
#include <QDebug>

ZRThematicCategorySet::ZRThematicCategorySet() = default;

ZRThematicCategorySet::ZRThematicCategorySet(const ZRThematicCategory &category)
{
    insert(category);
}

ZRThematicCategorySet::ZRThematicCategorySet(const QList<ZRThematicCategory> &categories)
{
    for (const ZRThematicCategory &category : categories)
        insertOnlyOnce(category);
}

ZRThematicCategorySet::ZRThematicCategorySet(const QList<QString> &names)
{
    for (const QString &name : names)
        insertOnlyOnce(ZRThematicCategory(name));
}

ZRThematicCategorySet::ZRThematicCategorySet(std::initializer_list<ZRThematicCategory> categories)
    : QSet<ZRThematicCategory>(categories)
{ }

ZRThematicCategorySet ZRThematicCategorySet::buildFromCSV(const QString &csv)
{
    ZRThematicCategorySet set;
    const QStringList names = csv.split(QLatin1Char(','), Qt::KeepEmptyParts);
    for (const QString &name : names) {
        // Names are taken as written: a blank after a comma belongs to the name.
        if (!name.isEmpty())
            set.insert(ZRThematicCategory(name));
    }
    return set;
}

ZRThematicCategorySet ZRThematicCategorySet::fromSpotColors(const QList<ZRSpotColor> &spotColors)
{
    ZRThematicCategorySet set;
    for (const ZRSpotColor &spotColor : spotColors)
        set.insert(ZRThematicCategory::fromSpotColor(spotColor));
    return set;
}

bool ZRThematicCategorySet::contains(const ZRThematicCategory &category) const
{
    return QSet<ZRThematicCategory>::contains(category);
}

bool ZRThematicCategorySet::isCategory(const ZRThematicCategory &category) const
{
    return size() == 1 && contains(category);
}

bool ZRThematicCategorySet::contains(const ZRThematicCategorySet &other) const
{
    return std::all_of(
        other.cbegin(), other.cend(), [this](const ZRThematicCategory &category) { return contains(category); });
}

bool ZRThematicCategorySet::containsAtLeastOne(const ZRThematicCategorySet &other) const
{
    return std::any_of(
        other.cbegin(), other.cend(), [this](const ZRThematicCategory &category) { return contains(category); });
}

bool ZRThematicCategorySet::containsOnlyFavouritesAnd(const ZRThematicCategorySet &other) const
{
    return std::all_of(cbegin(), cend(), [&other](const ZRThematicCategory &category) {
        return category.isFavourite() || category.isSuggestedByAI() || other.contains(category);
    });
}

bool ZRThematicCategorySet::containsOnlySpotColorCategories() const
{
    return std::all_of(
        cbegin(), cend(), [](const ZRThematicCategory &category) { return category.isSpotColorCategory(); });
}

bool ZRThematicCategorySet::containsCategoryAll() const
{
    return std::any_of(cbegin(), cend(), [](const ZRThematicCategory &category) { return category.isCategoryAll(); });
}

bool ZRThematicCategorySet::isOnlySuggestedByAI() const
{
    return isCategory(ZRThematicCategory::suggestedByAI());
}

bool ZRThematicCategorySet::isOnlyMultiColor() const
{
    return isCategory(ZRThematicCategory::multiColor());
}

bool ZRThematicCategorySet::isOnlyFitsToStyleV2Category() const
{
    return isCategory(ZRThematicCategory::fitsToStyleV2Category());
}

ZRSpotColor ZRThematicCategorySet::spotColor() const
{
    if (size() == 1)
        return cbegin()->toSpotColor();
    return ZRSpotColor(ZRSpotColorNone);
}

void ZRThematicCategorySet::insertNonEmpty(const ZRThematicCategory &category)
{
    if (!category.isEmpty())
        insert(category);
}

bool ZRThematicCategorySet::insertOnlyOnce(const ZRThematicCategory &category)
{
    if (contains(category))
        return true;
    insert(category);
    return false;
}

void ZRThematicCategorySet::insertCategoryVarious()
{
    insertOnlyOnce(ZRThematicCategory(QCoreApplication::translate("ZRThematicCategorySet", "Sonstige")));
}

ZRThematicCategorySet &ZRThematicCategorySet::subtract(const ZRThematicCategorySet &other)
{
    // By name, not by key: a category that only aliases one of other's names stays.
    const QStringList names = other.toDataStringList();
    removeIf([&names](const ZRThematicCategory &category) { return names.contains(category.internalName()); });
    return *this;
}

ZRThematicCategorySet ZRThematicCategorySet::plusFavourites() const
{
    ZRThematicCategorySet set = *this;
    set.insert(ZRThematicCategory::favourites());
    return set;
}

ZRThematicCategory ZRThematicCategorySet::preferredCategory(bool preferMultiColor) const
{
    if (isEmpty())
        return ZRThematicCategory();
    if (contains(ZRThematicCategory::userCliparts()))
        return ZRThematicCategory::userCliparts();
    if (contains(ZRThematicCategory::userBookStyles()))
        return ZRThematicCategory::userBookStyles();

    ZRThematicCategorySet remainder = *this;
    remainder.subtract(specialCategories());
    const ZRThematicCategory candidate = remainder.isEmpty() ? *cbegin() : *remainder.cbegin();
    if (preferMultiColor && contains(ZRThematicCategory::multiColor()))
        return ZRThematicCategory::multiColor();
    return candidate;
}

QStringList ZRThematicCategorySet::toDataStringList() const
{
    QStringList names;
    names.reserve(size());
    for (const ZRThematicCategory &category : *this)
        names.append(category.internalName());
    return names;
}

void ZRThematicCategorySet::toXml(QDomElement &parent) const
{
    for (const ZRThematicCategory &category : *this)
        ZRXMLBuilder::buildDomElement(parent, QStringLiteral("subcategory"), category.internalName());
}

ZRThematicCategorySet ZRThematicCategorySet::allKnownSpotColorCategoriesSet()
{
    return { ZRThematicCategory::gold(), ZRThematicCategory::roseGold(), ZRThematicCategory::silver(),
        ZRThematicCategory::silverInk(), ZRThematicCategory::emboss() };
}

ZRThematicCategorySet ZRThematicCategorySet::allSmartLayoutCategories()
{
    return { ZRThematicCategory::layoutTop(), ZRThematicCategory::layoutCentered(),
        ZRThematicCategory::layoutWideMargin(), ZRThematicCategory::layoutQuadratic(),
        ZRThematicCategory::layoutMiddle(), ZRThematicCategory::layoutElegant(), ZRThematicCategory::layoutClassic(),
        ZRThematicCategory::layoutLargeArea(), ZRThematicCategory::layoutFullArea() };
}

ZRThematicCategorySet ZRThematicCategorySet::categoriesWithIcon()
{
    ZRThematicCategorySet set = allSmartLayoutCategories();
    set.unite(allKnownSpotColorCategoriesSet());
    return set;
}

ZRThematicCategorySet ZRThematicCategorySet::specialCategories()
{
    return { ZRThematicCategory::categoryAll(), ZRThematicCategory::favourites(), ZRThematicCategory::frames(),
        ZRThematicCategory::multiColor(), ZRThematicCategory::passpartouts(), ZRThematicCategory::recycleBin() };
}

ZRThematicCategorySet ZRThematicCategorySet::allCategorySet()
{
    return ZRThematicCategorySet(ZRThematicCategory::categoryAll());
}

ZRThematicCategorySet ZRThematicCategorySet::createRecycleBinCategory()
{
    return ZRThematicCategorySet(ZRThematicCategory::recycleBin());
}

ZRThematicCategorySet ZRThematicCategorySet::createCategories01()
{
    static const ZRThematicCategorySet set { ZRThematicCategory::category0(), ZRThematicCategory::category1() };
    return set;
}

QDebug operator<<(QDebug debug, const ZRThematicCategorySet &set)
{
    QDebugStateSaver saver(debug);
    debug.nospace().noquote();
    if (set.isEmpty()) {
        debug << "EMPTY!\n";
        return debug;
    }
    for (const ZRThematicCategory &category : set)
        debug << category << "\n";
    return debug;
}
