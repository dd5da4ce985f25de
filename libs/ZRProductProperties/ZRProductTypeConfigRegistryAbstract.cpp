#include "ZRProductTypeConfigRegistryAbstract.h"

#include "ZRJigType.h"
#include "ZRProductCheckerRegistry.h"
#include "ZRProductClassificationGroup.h"
#include "ZRProductTypeDescription.h"
#include "ZRProductTypeDescriptionReader.h"

#include <algorithm>
#include <utility>

ZRProductTypeConfigRegistryAbstract::ZRProductTypeConfigRegistryAbstract()
    : m_voidDescription(new ZRProductTypeDescription)
{ }

ZRProductTypeConfigRegistryAbstract::~ZRProductTypeConfigRegistryAbstract()
{
    qDeleteAll(m_descriptions);
    delete m_voidDescription;
}

bool ZRProductTypeConfigRegistryAbstract::isValid(const ZRProductType &type) const
{
    return exists(type);
}

int ZRProductTypeConfigRegistryAbstract::type() const
{
    return ZRProductCheckerProductType;
}

bool ZRProductTypeConfigRegistryAbstract::isValidBoxStyle(
    const ZRProductType &type, const ZRArticleVariants &variants) const
{
    Q_UNUSED(type)
    Q_UNUSED(variants)
    return true;
}

void ZRProductTypeConfigRegistryAbstract::load()
{
    QList<ZRProductTypeDescription *> unused;
    const QList<QDir> directories = supervisedDirs();
    for (const QDir &directory : directories) {
        const auto read = ZRProductTypeDescriptionReader(directory).readDir(&unused);
        m_descriptions.reserve(m_descriptions.size() + read.size());
        for (auto it = read.cbegin(); it != read.cend(); ++it) {
            ZRProductTypeDescription *&slot = m_descriptions[it.key()];
            if (slot)
                unused.append(it.value());
            else
                slot = it.value();
        }
    }
    qDeleteAll(unused);
}

const ZRProductTypeDescription *ZRProductTypeConfigRegistryAbstract::description(const ZRProductType &type) const
{
    return m_descriptions.value(type, m_voidDescription);
}

const ZRProductTypeDescription *ZRProductTypeConfigRegistryAbstract::voidDescription() const
{
    return m_voidDescription;
}

bool ZRProductTypeConfigRegistryAbstract::exists(const ZRProductType &type) const
{
    return description(type)->isValid();
}

ZRArticleClass ZRProductTypeConfigRegistryAbstract::articleClass(const ZRProductType &type) const
{
    return description(type)->articleClass();
}

bool ZRProductTypeConfigRegistryAbstract::hasArticleClass(
    const ZRProductType &type, const ZRArticleClass &articleClass) const
{
    return this->articleClass(type).intersects(articleClass.value());
}

ZRPageTypeList ZRProductTypeConfigRegistryAbstract::pageTypes(const ZRProductType &type, int count) const
{
    return description(type)->pageTypes(count < 0 ? 0u : unsigned(count));
}

bool ZRProductTypeConfigRegistryAbstract::horizontalPages(const ZRProductType &type) const
{
    return description(type)->horizontalPages();
}

QList<int> ZRProductTypeConfigRegistryAbstract::productionNumberingList(const ZRProductType &type, int count) const
{
    return description(type)->productionNumberingList(count);
}

ZRConfiguredArticleVariantList ZRProductTypeConfigRegistryAbstract::variants(const ZRProductType &type) const
{
    return description(type)->variants();
}

bool ZRProductTypeConfigRegistryAbstract::fullBackgroundOnEachPage(const ZRProductType &type) const
{
    return description(type)->putFullBackgroundOnEachPage();
}

QStringList ZRProductTypeConfigRegistryAbstract::allowedJigCategories(
    const ZRProductType &type, const ZRPageType &pageType, const ZRJigType &jigType) const
{
    return description(type)->allowedJigCategories(pageType, jigType);
}

bool ZRProductTypeConfigRegistryAbstract::limitJigCategories(
    const ZRProductType &type, const ZRPageType &pageType, const ZRJigType &jigType) const
{
    return description(type)->limitJigCategories(pageType, jigType);
}

bool ZRProductTypeConfigRegistryAbstract::thereIsOnlyOneAllowedBackgroundCategory(
    const ZRProductType &type, const ZRPageType &pageType) const
{
    return allowedJigCategories(type, pageType, ZRJigType(ZRJigTypeBackground)).size() == 1;
}

ZRProductType ZRProductTypeConfigRegistryAbstract::firstValidProduct(const ZRProductTypeList &list) const
{
    for (const ZRProductType &type : list) {
        if (exists(type))
            return type;
    }
    return ZRProductType(QString());
}

ZRProductTypeList ZRProductTypeConfigRegistryAbstract::allProducts() const
{
    return ZRProductTypeList(m_descriptions.keys());
}

QList<ZRProductType> ZRProductTypeConfigRegistryAbstract::allAvailableProducts() const
{
    const ZRProductCheckerRegistry *checkers = ZRSingleton<ZRProductCheckerRegistry>::instance();
    QList<ZRProductType> result;
    for (auto it = m_descriptions.cbegin(); it != m_descriptions.cend(); ++it) {
        if (checkers->isValid(it.key(), ZRProductCheckerAll))
            result.append(it.key());
    }
    return result;
}

ZREmptyMeansAllSet<ZRProductType> ZRProductTypeConfigRegistryAbstract::findProducts(
    const ZREmptyMeansAllSet<ZRArticleClass> &articleClasses, const ZREmptyMeansAllSet<ZRCoverType> &coverTypes) const
{
    ZREmptyMeansAllSet<ZRProductType> result;
    for (auto it = m_descriptions.cbegin(); it != m_descriptions.cend(); ++it) {
        const ZRProductTypeDescription *description = it.value();
        if ((articleClasses.isEmpty() || articleClasses.contains(description->articleClass()))
            && (coverTypes.isEmpty() || coverTypes.contains(description->coverType())))
            result.insert(it.key());
    }
    return result;
}

ZRProductTypeList ZRProductTypeConfigRegistryAbstract::findAllIn(const ZRProductClassificationGroup &group) const
{
    ZRProductTypeList result;
    for (auto it = m_descriptions.cbegin(); it != m_descriptions.cend(); ++it) {
        if (it.value()->classification().group() == group)
            result.append(it.key());
    }
    return result;
}

ZRProductClassificationManager ZRProductTypeConfigRegistryAbstract::createProductClassifationManager(
    const ZRArticleClass &articleClass) const
{
    QList<ZRProductClassification> classifications;
    for (const ZRProductTypeDescription *description : m_descriptions) {
        if (description->articleClass().intersects(articleClass.value()))
            classifications.append(description->classification());
    }
    return ZRProductClassificationManager(classifications);
}

QStringList ZRProductTypeConfigRegistryAbstract::sortPageFileNameListInInternOrder(
    const ZRProductType &type, const QList<QString> &files) const
{
    if (files.isEmpty() || !type.isValid())
        return files;
    const QList<int> numbers = productionNumberingList(type, int(files.size()));
    QList<std::pair<int, int>> order;
    order.reserve(files.size());
    for (int i = 0; i < files.size(); ++i)
        order.append({ numbers.at(i), i });
    std::sort(order.begin(), order.end());
    QStringList result;
    result.reserve(files.size());
    for (const auto &entry : std::as_const(order))
        result.append(files.at(entry.second));
    return result;
}
