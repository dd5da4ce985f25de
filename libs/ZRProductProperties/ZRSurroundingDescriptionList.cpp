#include "ZRSurroundingDescriptionList.h"

#include "ZRSurroundingKey.h"
#include "ZRXMLVocabulary.h"

#include <QDomElement>

#include <algorithm>

namespace {
const ZRXMLVocabulary vocabulary(QStringLiteral("surroundings"), {}, { QStringLiteral("surrounding") });
}

ZRSurroundingDescriptionList::ZRSurroundingDescriptionList() = default;

ZRSurroundingDescriptionList::ZRSurroundingDescriptionList(const ZRProductType &productType, const QDomElement &element)
{
    const QString surroundingsTag = vocabulary.element();
    const QString surroundingTag = QStringLiteral("surrounding");
    for (QDomElement group = element.firstChildElement(surroundingsTag); !group.isNull();
         group = group.nextSiblingElement(surroundingsTag))
        vocabulary.check(group);
    const auto forEachSurrounding = [&](auto function) {
        for (QDomElement group = element.firstChildElement(surroundingsTag); !group.isNull();
             group = group.nextSiblingElement(surroundingsTag)) {
            for (QDomElement surrounding = group.firstChildElement(surroundingTag); !surrounding.isNull();
                 surrounding = surrounding.nextSiblingElement(surroundingTag))
                function(surrounding);
        }
    };
    // Descriptions are large and every product keeps its list: counted first, they are stored without
    // growing the list, so neither moves nor unused capacity.
    qsizetype count = 0;
    forEachSurrounding([&count](const QDomElement &) { ++count; });
    reserve(count);
    forEachSurrounding(
        [&](const QDomElement &surrounding) { append(ZRSurroundingDescription(productType, surrounding)); });
}

ZRSurroundingDescription ZRSurroundingDescriptionList::findDescription(const ZRSurroundingKey &key) const
{
    if (const ZRSurroundingDescription *found = firstSuitable(key))
        return *found;
    if (!key.variant().isValid())
        return ZRSurroundingDescription();
    const ZRSurroundingKey withoutVariant(key.pageContext(), key.pageIndex(), ZRArticleVariants());
    if (const ZRSurroundingDescription *found = firstSuitable(withoutVariant))
        return *found;
    return ZRSurroundingDescription();
}

bool ZRSurroundingDescriptionList::hasSurroundingWithBindingShade() const
{
    return std::any_of(
        cbegin(), cend(), [](const ZRSurroundingDescription &description) { return description.hasBindingShade(); });
}

const ZRSurroundingDescription *ZRSurroundingDescriptionList::firstSuitable(const ZRSurroundingKey &key) const
{
    const auto found = std::find_if(
        cbegin(), cend(), [&key](const ZRSurroundingDescription &description) { return description.isSuitable(key); });
    return found == cend() ? nullptr : &*found;
}
