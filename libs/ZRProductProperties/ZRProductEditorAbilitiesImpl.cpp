#include "ZRProductEditorAbilitiesImpl.h"

#include "ZRXMLParser.h"

// Answers for every jig type without an entry of its own.
static const ZRJigEditorAbilities defaultAbilites;

ZRProductEditorAbilitiesImpl::ZRProductEditorAbilitiesImpl() = default;

ZRProductEditorAbilitiesImpl::ZRProductEditorAbilitiesImpl(const QDomElement &element)
{
    if (element.tagName() != QLatin1String("editorAbilities"))
        return;

    m_hasAssistant = ZRXMLParser::boolAttribute(
        element.firstChildElement(QStringLiteral("assistant")), QStringLiteral("enabled"), false);
    m_convertable = ZRXMLParser::boolAttribute(element, QStringLiteral("convertable"), true);
    m_pageNamingStyle = ZRPageNamingStyle(element.firstChildElement(QStringLiteral("pageNamingStyle")).text());
    m_userPageTiltConfig = ZRUserPageTiltConfig(element.firstChildElement(QStringLiteral("pageTilt")));
    m_editorStartPage = ZRXMLParser::intText(element, QStringLiteral("startPage"), 0);
    m_dateRangeConstraint = ZRDateRangeConstraint(element.firstChildElement(QStringLiteral("dateRangeConstraint")));

    const QDomElement jigs = element.firstChildElement(QStringLiteral("jigs"));
    m_showChangeBaseDesignButton
        = ZRXMLParser::boolAttribute(jigs, QStringLiteral("showChangeBaseDesignButton"), false);
    // Every child node counts, not only elements: a comment or text node has an empty tag name and
    // so stores default abilities under jig type 0, an entry that takes part in equality.
    for (QDomNode node = jigs.firstChild(); !node.isNull(); node = node.nextSibling()) {
        const QDomElement jig = node.toElement();
        m_jigs.insert(ZRJigType(jig.tagName()), ZRJigEditorAbilities(jig));
    }
}

ZRProductEditorAbilitiesImpl::ZRProductEditorAbilitiesImpl(const ZRProductEditorAbilitiesImpl &other) = default;

ZRProductEditorAbilitiesImpl::~ZRProductEditorAbilitiesImpl() = default;

ZRJigEditorAbilities ZRProductEditorAbilitiesImpl::jigAbilities(const ZRJigType &jigType) const
{
    return m_jigs.value(jigType, defaultAbilites);
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
