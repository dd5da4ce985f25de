#ifndef ZRPRODUCTTYPECONFIGREGISTRYABSTRACT_H
#define ZRPRODUCTTYPECONFIGREGISTRYABSTRACT_H

#include "ZRArticleClass.h"
#include "ZRConfiguredArticleVariantList.h"
#include "ZRCoverType.h"
#include "ZREmptyMeansAllSet.h"
#include "ZRPageTypeList.h"
#include "ZRProductChecker.h"
#include "ZRProductClassificationManager.h"
#include "ZRProductType.h"
#include "ZRProductTypeList.h"
#include "zrproductproperties_export.h"

#include <QDir>
#include <QHash>
#include <QList>
#include <QStringList>

class ZRJigType;
class ZRPageType;
class ZRProductClassificationGroup;
class ZRProductTypeDescription;

/**
 * The product descriptions of a set of directories, by product type. The first directory that
 * describes a product type wins. An unknown product type gets the invalid void description, never a
 * null pointer. After load() every query only reads, so queries may come from any thread.
 */
class ZRPRODUCTPROPERTIES_EXPORT ZRProductTypeConfigRegistryAbstract : public ZRProductChecker
{
public:
    ZRProductTypeConfigRegistryAbstract();
    ~ZRProductTypeConfigRegistryAbstract() override;
    ZRProductTypeConfigRegistryAbstract(const ZRProductTypeConfigRegistryAbstract &) = delete;
    ZRProductTypeConfigRegistryAbstract &operator=(const ZRProductTypeConfigRegistryAbstract &) = delete;

    /** True when the product type has a valid description. */
    bool isValid(const ZRProductType &type) const override;
    /** The checker type of product type registries: 4. */
    int type() const override;
    /** Every box style is accepted. */
    bool isValidBoxStyle(const ZRProductType &type, const ZRArticleVariants &variants) const override;
    /** The directories read by load(), in order of precedence. */
    virtual QList<QDir> supervisedDirs() const = 0;

    /** Reads every supervised directory; product types already known keep their description. */
    void load();

    /** The description of @p type, or voidDescription(); never null. */
    const ZRProductTypeDescription *description(const ZRProductType &type) const;
    const ZRProductTypeDescription *voidDescription() const;
    bool exists(const ZRProductType &type) const;

    ZRArticleClass articleClass(const ZRProductType &type) const;
    bool hasArticleClass(const ZRProductType &type, const ZRArticleClass &articleClass) const;
    ZRPageTypeList pageTypes(const ZRProductType &type, int count) const;
    bool horizontalPages(const ZRProductType &type) const;
    QList<int> productionNumberingList(const ZRProductType &type, int count) const;
    ZRConfiguredArticleVariantList variants(const ZRProductType &type) const;
    bool fullBackgroundOnEachPage(const ZRProductType &type) const;
    QStringList allowedJigCategories(
        const ZRProductType &type, const ZRPageType &pageType, const ZRJigType &jigType) const;
    bool limitJigCategories(const ZRProductType &type, const ZRPageType &pageType, const ZRJigType &jigType) const;
    /** True when the background jig of @p type allows exactly one category on @p pageType. */
    bool thereIsOnlyOneAllowedBackgroundCategory(const ZRProductType &type, const ZRPageType &pageType) const;

    /** The first product type of @p list that exists; an empty product type when none does. */
    ZRProductType firstValidProduct(const ZRProductTypeList &list) const;
    /** Every described product type, valid or not, in hash order. */
    ZRProductTypeList allProducts() const;
    /** The product types that every registered product checker accepts, in hash order. */
    QList<ZRProductType> allAvailableProducts() const;
    /** Product types whose article class and cover type are in the sets; an empty set accepts all. */
    ZREmptyMeansAllSet<ZRProductType> findProducts(const ZREmptyMeansAllSet<ZRArticleClass> &articleClasses,
        const ZREmptyMeansAllSet<ZRCoverType> &coverTypes) const;
    /** Product types whose classification is in @p group. */
    ZRProductTypeList findAllIn(const ZRProductClassificationGroup &group) const;
    /** A classification manager of every product sharing a flag with @p articleClass. */
    ZRProductClassificationManager createProductClassifationManager(const ZRArticleClass &articleClass) const;
    /** @p files ordered by the production numbers of @p type (ties keep their order). */
    QStringList sortPageFileNameListInInternOrder(const ZRProductType &type, const QList<QString> &files) const;

private:
    QHash<ZRProductType, ZRProductTypeDescription *> m_descriptions;
    ZRProductTypeDescription *m_voidDescription;
};

#endif
