#include "ZRJigEditorAbilitiesImpl.h"

#include "ZRJigType.h"
#include "ZRXMLDiagnostics.h"
#include "ZRXMLParser.h"
#include "ZRXMLStringPool.h"
#include "ZRXMLVocabulary.h"

#include <list>

namespace {
/** One vocabulary for each jig type key that may name the element; all of them read the same names. */
std::list<ZRXMLVocabulary> makeVocabularies()
{
    std::list<ZRXMLVocabulary> vocabularies;
    const QStringList names = ZRJigType::elementNames();
    for (const QString &name : names) {
        vocabularies.emplace_back(name,
            QStringList { QStringLiteral("enabled"), QStringLiteral("alignable"), QStringLiteral("rotatable"),
                QStringLiteral("fullOnEachPage"), QStringLiteral("exactArticle") },
            QStringList { QStringLiteral("categories") });
    }
    return vocabularies;
}

const std::list<ZRXMLVocabulary> vocabularies = makeVocabularies();
const ZRXMLVocabulary categoriesVocabulary(QStringLiteral("categories"), { QStringLiteral("pageType") }, {});
} // namespace

ZRJigEditorAbilitiesImpl::ZRJigEditorAbilitiesImpl() = default;

ZRJigEditorAbilitiesImpl::ZRJigEditorAbilitiesImpl(const QDomElement &element)
    : m_enabled(ZRXMLParser::boolAttribute(element, QStringLiteral("enabled"), true))
    , m_alignable(ZRXMLParser::boolAttribute(element, QStringLiteral("alignable"), true))
    , m_rotatable(ZRXMLParser::boolAttribute(element, QStringLiteral("rotatable"), false))
    , m_fullOnEachPage(ZRXMLParser::boolAttribute(element, QStringLiteral("fullOnEachPage"), true))
    , m_exactArticle(ZRXMLParser::boolAttribute(element, QStringLiteral("exactArticle"), false))
{
    vocabularies.front().check(element);
    const QString categoriesTag = categoriesVocabulary.element();
    for (QDomElement child = element.firstChildElement(categoriesTag); !child.isNull();
         child = child.nextSiblingElement(categoriesTag)) {
        categoriesVocabulary.check(child);
        if (ZRXMLDiagnostics::isActive()) {
            ZRXMLDiagnostics::checkKeys<ZRPageType>(
                child.attributes().namedItem(QStringLiteral("pageType")), QStringLiteral("page type"));
        }
        const ZRPageType pageTypes(ZRXMLParser::attribute(child, QStringLiteral("pageType"), QString(), true));
        QStringList keys = child.text().split(QLatin1Char(','), Qt::SkipEmptyParts, Qt::CaseSensitive);
        for (QString &key : keys)
            key = ZRXMLStringPool::share(key);
        ZRPageType::Table::forEachBit(pageTypes.value(), [this, &keys](ZRPageTypeEnum bit) {
            if (ZRPageType(bit).isValid())
                m_categories.insert(int(bit), keys);
        });
    }
    m_categories.squeeze();
}

ZRJigEditorAbilitiesImpl::ZRJigEditorAbilitiesImpl(const ZRJigEditorAbilitiesImpl &other) = default;

ZRJigEditorAbilitiesImpl::~ZRJigEditorAbilitiesImpl() = default;

QStringList ZRJigEditorAbilitiesImpl::allowedCategories(const ZRPageType &pageType) const
{
    return m_categories.value(int(pageType.value()));
}

bool ZRJigEditorAbilitiesImpl::operator==(const ZRJigEditorAbilitiesImpl &other) const
{
    return m_enabled == other.m_enabled && m_alignable == other.m_alignable && m_rotatable == other.m_rotatable
        && m_fullOnEachPage == other.m_fullOnEachPage && m_exactArticle == other.m_exactArticle
        && m_categories == other.m_categories;
}

bool ZRJigEditorAbilitiesImpl::operator!=(const ZRJigEditorAbilitiesImpl &other) const
{
    return !(*this == other);
}
