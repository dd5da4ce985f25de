#include "ZRProductEditorAbilitiesImpl.h"

#include "ZRXMLDiagnostics.h"
#include "ZRXMLParser.h"
#include "ZRXMLVocabulary.h"

// Answers for every jig type without an entry of its own.
static const ZRJigEditorAbilities defaultAbilites;

namespace {
const ZRXMLVocabulary vocabulary(QStringLiteral("editorAbilities"), { QStringLiteral("convertable") },
    { QStringLiteral("assistant"), QStringLiteral("pageNamingStyle"), QStringLiteral("pageTilt"),
        QStringLiteral("startPage"), QStringLiteral("dateRangeConstraint"), QStringLiteral("jigs") });
const ZRXMLVocabulary assistantVocabulary(QStringLiteral("assistant"), { QStringLiteral("enabled") }, {});
const ZRXMLVocabulary pageNamingStyleVocabulary(QStringLiteral("pageNamingStyle"), {}, {});
const ZRXMLVocabulary startPageVocabulary(QStringLiteral("startPage"), {}, {});
const ZRXMLVocabulary jigsVocabulary(QStringLiteral("jigs"), { QStringLiteral("showChangeBaseDesignButton") },
    ZRJigType::elementNames(), ZRXMLVocabulary::KeyedChildren);
} // namespace

ZRProductEditorAbilitiesImpl::ZRProductEditorAbilitiesImpl() = default;

ZRProductEditorAbilitiesImpl::ZRProductEditorAbilitiesImpl(const QDomElement &element)
{
    if (element.tagName() != QLatin1String("editorAbilities"))
        return;

    vocabulary.check(element);
    const QDomElement assistant = element.firstChildElement(assistantVocabulary.element());
    assistantVocabulary.check(assistant);
    m_hasAssistant = ZRXMLParser::boolAttribute(assistant, QStringLiteral("enabled"), false);
    m_convertable = ZRXMLParser::boolAttribute(element, QStringLiteral("convertable"), true);
    const QDomElement pageNamingStyle = element.firstChildElement(pageNamingStyleVocabulary.element());
    pageNamingStyleVocabulary.check(pageNamingStyle);
    ZRXMLDiagnostics::checkKeys<ZRPageNamingStyle>(pageNamingStyle, QStringLiteral("page naming style"));
    m_pageNamingStyle = ZRPageNamingStyle(pageNamingStyle.text());
    m_userPageTiltConfig = ZRUserPageTiltConfig(element.firstChildElement(QStringLiteral("pageTilt")));
    startPageVocabulary.check(element.firstChildElement(startPageVocabulary.element()));
    m_editorStartPage = ZRXMLParser::intText(element, startPageVocabulary.element(), 0);
    m_dateRangeConstraint = ZRDateRangeConstraint(element.firstChildElement(QStringLiteral("dateRangeConstraint")));

    const QDomElement jigs = element.firstChildElement(jigsVocabulary.element());
    jigsVocabulary.check(jigs);
    m_showChangeBaseDesignButton
        = ZRXMLParser::boolAttribute(jigs, QStringLiteral("showChangeBaseDesignButton"), false);
    // Every child node counts, not only elements: a comment or text node has an empty tag name and
    // so stores default abilities under jig type 0, an entry that takes part in equality.
    for (QDomNode node = jigs.firstChild(); !node.isNull(); node = node.nextSibling()) {
        const QDomElement jig = node.toElement();
        if (!jig.isNull() && ZRXMLDiagnostics::isActive())
            ZRXMLDiagnostics::checkKeys(jig.tagName(), jigsVocabulary.children(), QStringLiteral("jig type"), jig);
        m_jigs.insert(int(ZRJigType(jig.tagName()).value()), ZRJigEditorAbilities(jig));
    }
    m_jigs.squeeze();
}

ZRProductEditorAbilitiesImpl::ZRProductEditorAbilitiesImpl(const ZRProductEditorAbilitiesImpl &other) = default;

ZRProductEditorAbilitiesImpl::~ZRProductEditorAbilitiesImpl() = default;

ZRJigEditorAbilities ZRProductEditorAbilitiesImpl::jigAbilities(const ZRJigType &jigType) const
{
    return m_jigs.value(int(jigType.value()), defaultAbilites);
}

bool ZRProductEditorAbilitiesImpl::isJigEnabled(const ZRJigType &jigType) const
{
    return jigAbilities(jigType).isEnabled();
}

bool ZRProductEditorAbilitiesImpl::requiresExactArticle(const ZRJigType &jigType) const
{
    return jigAbilities(jigType).requiresExactArticle();
}

QStringList ZRProductEditorAbilitiesImpl::allowedCategories(const ZRJigType &jigType, const ZRPageType &pageType) const
{
    return jigAbilities(jigType).allowedCategories(pageType);
}

bool ZRProductEditorAbilitiesImpl::canAlignBackgrounds() const
{
    return jigAbilities(ZRJigTypeBackground).alignable();
}

bool ZRProductEditorAbilitiesImpl::canRotateBackgrounds() const
{
    return jigAbilities(ZRJigTypeBackground).rotatable();
}

bool ZRProductEditorAbilitiesImpl::fullBackgroundOnEachPage() const
{
    return jigAbilities(ZRJigTypeBackground).fullOnEachPage();
}

bool ZRProductEditorAbilitiesImpl::operator==(const ZRProductEditorAbilitiesImpl &other) const
{
    // Page tilt and date range are left out on purpose: abilities differing only there are equal.
    return m_hasAssistant == other.m_hasAssistant && m_convertable == other.m_convertable
        && m_pageNamingStyle.value() == other.m_pageNamingStyle.value() && m_editorStartPage == other.m_editorStartPage
        && m_showChangeBaseDesignButton == other.m_showChangeBaseDesignButton && m_jigs == other.m_jigs;
}

bool ZRProductEditorAbilitiesImpl::operator!=(const ZRProductEditorAbilitiesImpl &other) const
{
    return !(*this == other);
}
