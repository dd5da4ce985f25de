#include "ZRProductTypeDescription.h"

#include "ZRDefaultTemplateKey.h"
#include "ZRJigType.h"
#include "ZRPageListDecoder.h"
#include "ZRSurroundingKey.h"
#include "ZRXMLParser.h"

#include <QDomNamedNodeMap>

#include <initializer_list>
#include <limits>

namespace {
const QString nameAttribute = QStringLiteral("name");

// The article class that is valid without a cover type.
constexpr quint64 classWithoutCoverType = quint64(1) << 44;
constexpr ZRPageTypeEnum coverPages = ZRPageTypeCovers;
constexpr ZRPageTypeEnum allPages = ZRPageTypeAll;

QList<int> readIntList(const QDomElement &productElement, const QString &childName)
{
    const QDomElement child = productElement.firstChildElement(childName);
    if (child.isNull())
        return {};
    return ZRPageListDecoder::decode(child.text(), ZRPageListDecoder::NoRanges);
}

/** Appends the entries of @p pattern, starting again after its last entry, until @p count entries were added. */
void fill(ZRPageTypeList &result, std::initializer_list<ZRPageTypeEnum> pattern, unsigned int count)
{
    const auto *first = pattern.begin();
    for (unsigned int i = 0; i < count; ++i)
        result.append(ZRPageType(first[i % pattern.size()]));
}
} // namespace

ZRProductTypeDescription::ZRProductTypeDescription() = default;
ZRProductTypeDescription::ZRProductTypeDescription(const ZRProductTypeDescription &other) = default;
ZRProductTypeDescription::ZRProductTypeDescription(ZRProductTypeDescription &&other) noexcept = default;
ZRProductTypeDescription::~ZRProductTypeDescription() = default;
ZRProductTypeDescription &ZRProductTypeDescription::operator=(const ZRProductTypeDescription &other) = default;
ZRProductTypeDescription &ZRProductTypeDescription::operator=(ZRProductTypeDescription &&other) noexcept = default;

ZRProductTypeDescription::ZRProductTypeDescription(const QDomElement &productElement)
    : m_classification(productElement)
{
    const QDomNamedNodeMap attributes = productElement.attributes();
    const auto text = [&attributes](const QString &name, const QString &defaultValue = QString()) {
        return ZRXMLParser::attribute(attributes, name, defaultValue, true);
    };
    const auto boolean = [&attributes](const QString &name, bool defaultValue) {
        return ZRXMLParser::boolAttribute(attributes, name, defaultValue);
    };
    const auto integer = [&attributes](const QString &name, int defaultValue) {
        return ZRXMLParser::intAttribute(attributes, name, defaultValue);
    };

    m_productType = ZRProductType(text(nameAttribute));
    m_isVario = boolean(QStringLiteral("isVario"), false);
    m_isTwoSided = boolean(QStringLiteral("isTwoSided"), false);
    m_articleClass = ZRArticleClass(text(QStringLiteral("class"), QStringLiteral("unknown")));
    m_imageFXs = ZRImageFXs(text(QStringLiteral("imageFXs")));
    m_canHaveBorder = m_canHaveShadow = !m_imageFXs.isGray();
    m_coverType = ZRCoverType(text(QStringLiteral("binding")));
    m_horizontalPages = boolean(QStringLiteral("horizontalPages"), true);
    m_productAlignment = ZRProductAlignmentStyle(text(QStringLiteral("productAlignment")));
    m_mustPaintZeRaLogoOnSpine = boolean(QStringLiteral("hasLogoOnSpine"), false);

    m_surroundings = ZRSurroundingDescriptionList(m_productType, productElement);
    m_tiltRedirects = ZRPageTiltRedirectList(productElement.firstChildElement(QStringLiteral("rotationredirects")));
    m_contentDropRedirects
        = ZRContentDropRedirectList(productElement.firstChildElement(QStringLiteral("contentredirects")));
    m_defaultTemplates = ZRDefaultTemplateMap(productElement.firstChildElement(QStringLiteral("defaults")));
    m_tiltAngle = ZRXMLParser::readAngle(
        productElement.firstChildElement(QStringLiteral("tilt")), QStringLiteral("angle"), 270);
    m_variants = ZRConfiguredArticleVariantList(productElement);
    m_productionNumbering = readIntList(productElement, QStringLiteral("productionnumbering"));
    m_pagesWithContent = readIntList(productElement, QStringLiteral("pageswithcontent"));

    m_pages = ZRPageTypeList(productElement.firstChildElement(QStringLiteral("pages")).text());
    m_hasSpine = m_pages.pageTypes().contains(ZRPageType(ZRPageTypeSpine))
        || m_pages.pageTypes().contains(ZRPageType(ZRPageTypeWrapCover));
    m_hasTextOnSpine = m_hasSpine && !m_pages.containsMatch(ZRPageType(ZRPageTypeInsideCovers));

    const ZRDistanceUnit tenthMillimetre(ZRDistanceUnitTenthMM);
    const QDomElement pageNumberConfig = productElement.firstChildElement(QStringLiteral("pageNumberConfig"));
    const QDomElement margin = pageNumberConfig.firstChildElement(QStringLiteral("margin"));
    m_pageNumberVerticalIndent
        = ZRXMLParser::readDistance(margin, QStringLiteral("verticalMargin"), 50.0, tenthMillimetre);
    m_pageNumberHorizontalIndent
        = ZRXMLParser::readDistance(margin, QStringLiteral("horizontalMargin"), 50.0, tenthMillimetre);
    m_pageNumberFontSize = ZRXMLParser::intAttribute(
        pageNumberConfig.firstChildElement(QStringLiteral("font")), QStringLiteral("fontSize"), 24);

    m_extraProductionPages
        = ZRProductionExtraPageGroupList(productElement.firstChildElement(QStringLiteral("extra_production_pages")));
    m_foldSafetyMargin = integer(QStringLiteral("foldsafetymargin"), -1);
    m_replacedBy = ZRProductType(text(QStringLiteral("replacedBy")));
    m_conversionStrategy = ZRXMLRewriterStrategy(text(QStringLiteral("conversionStrategy")));
    m_editorAbilities = ZRProductEditorAbilities(productElement.firstChildElement(QStringLiteral("editorAbilities")));

    const QString spotColors = text(QStringLiteral("spotColor"));
    if (!spotColors.isEmpty()) {
        const QStringList names = spotColors.split(QLatin1Char(','));
        for (const QString &name : names)
            m_includedSpotColors.append(ZRSpotColor(name));
    }

    const QDomElement priceCategory
        = productElement.firstChildElement(QStringLiteral("pricelist")).firstChildElement(QStringLiteral("category"));
    if (!priceCategory.isNull())
        m_priceListCategory = priceCategory.text();

    m_safetyMargins.insert(ZRPageType(allPages), integer(QStringLiteral("safetymargin"), 0));
    const int coverMargin = integer(QStringLiteral("safetymargincover"), -1);
    if (coverMargin != -1)
        m_safetyMargins.insert(ZRPageType(coverPages), coverMargin);

    m_barcodeDefinitions = ZRBarcodeDefinitionList::createFromProductsXML(
        productElement.firstChildElement(QStringLiteral("barcodes")), tenthMillimetre);
    m_preview3D = ZRPreview3DDescription(productElement);
}

ZRSurroundingDescription ZRProductTypeDescription::findSurrounding(const ZRSurroundingKey &key) const
{
    return m_surroundings.findDescription(key);
}

bool ZRProductTypeDescription::hasSurroundingWithBindingShade() const
{
    return m_surroundings.hasSurroundingWithBindingShade();
}

ZRPageTiltRedirectList ZRProductTypeDescription::tiltRedirectForSourcePage(int page) const
{
    return m_tiltRedirects.filterBySourcePage(page);
}

ZRPageTiltRedirectList ZRProductTypeDescription::tiltRedirectForTargetPage(int page) const
{
    return m_tiltRedirects.filterByTargetPage(page);
}

int ZRProductTypeDescription::contentDropRedirect(int page) const
{
    return m_contentDropRedirects.targetPage(page);
}

QString ZRProductTypeDescription::findDefaultTemplate(const ZRDefaultTemplateKey &key) const
{
    return m_defaultTemplates.findTemplate(key);
}

bool ZRProductTypeDescription::hasAssistant() const
{
    return m_editorAbilities.hasAssistant();
}

bool ZRProductTypeDescription::isConvertable() const
{
    return m_editorAbilities.isConvertable();
}

ZRPageNamingStyle ZRProductTypeDescription::pageNamingStyle() const
{
    return m_editorAbilities.pageNamingStyle();
}

bool ZRProductTypeDescription::canAlignBackgrounds() const
{
    return m_editorAbilities.canAlignBackgrounds();
}

bool ZRProductTypeDescription::canRotateBackgrounds() const
{
    return m_editorAbilities.canRotateBackgrounds();
}

int ZRProductTypeDescription::editorStartPage() const
{
    return m_editorAbilities.editorStartPage();
}

bool ZRProductTypeDescription::showChangeDesignButton() const
{
    return m_editorAbilities.showChangeBaseDesignButton();
}

bool ZRProductTypeDescription::supportsJigType(const ZRJigType &jigType) const
{
    return m_editorAbilities.isJigEnabled(jigType);
}

bool ZRProductTypeDescription::putFullBackgroundOnEachPage() const
{
    return m_editorAbilities.fullBackgroundOnEachPage();
}

bool ZRProductTypeDescription::requiresExactArticle(const ZRJigType &jigType) const
{
    return m_editorAbilities.requiresExactArticle(jigType);
}

QStringList ZRProductTypeDescription::allowedJigCategories(const ZRPageType &pageType, const ZRJigType &jigType) const
{
    return m_editorAbilities.allowedCategories(jigType, pageType);
}

ZRDateRangeConstraint ZRProductTypeDescription::dateRangeContraint() const
{
    return m_editorAbilities.dateRangeConstraint();
}

int ZRProductTypeDescription::extraProductionPageCount() const
{
    return m_extraProductionPages.totalPages();
}

bool ZRProductTypeDescription::isValid() const
{
    const quint64 articleClass = m_articleClass.value();
    if (articleClass == 0)
        return false;
    if (m_coverType.isValid())
        return true;
    return (articleClass & classWithoutCoverType) != 0;
}

bool ZRProductTypeDescription::isVarioCard() const
{
    return (quint64(m_articleClass.value()) & ZRArticleClassCard) != 0 && m_isVario;
}

bool ZRProductTypeDescription::isEasyCard() const
{
    return m_articleClass.value() == ZRArticleClassCard && !m_isVario;
}

bool ZRProductTypeDescription::isSimplex() const
{
    return m_coverType.isSimplex();
}

bool ZRProductTypeDescription::contentAllowedOnPage(int page) const
{
    if (!supportsJigType(ZRJigType(ZRJigTypeContent)))
        return false;
    return m_pagesWithContent.isEmpty() || m_pagesWithContent.contains(page);
}

int ZRProductTypeDescription::safetyMargin(const ZRPageType &type) const
{
    if (type.intersects(coverPages)) {
        const auto cover = m_safetyMargins.constFind(ZRPageType(coverPages));
        if (cover != m_safetyMargins.constEnd())
            return *cover;
    }
    return m_safetyMargins.value(ZRPageType(allPages), 0);
}

ZRMargins ZRProductTypeDescription::safetyMargins(const ZRPageType &type) const
{
    const int margin = safetyMargin(type);
    return ZRMargins(margin, margin, margin, margin);
}

ZRPageAlignment ZRProductTypeDescription::pageAlignment(const ZRPageTypeList &pages, int index) const
{
    const bool horizontal = m_horizontalPages;
    const ZRPageAlignmentEnum outer = horizontal ? ZRPageAlignmentRight : ZRPageAlignmentBottom; // A
    const ZRPageAlignmentEnum inner = horizontal ? ZRPageAlignmentLeft : ZRPageAlignmentTop; // B
    const bool odd = index % 2 != 0;
    const ZRPageType type = index >= 0 && index < pages.size() ? pages.at(index) : ZRPageType();

    if (isSimplex()) {
        switch (m_productAlignment.value()) {
        case ZRProductAlignmentNormal:
            return outer;
        case ZRProductAlignmentCard:
        case ZRProductAlignmentCollegeBlock:
            if (horizontal)
                return odd ? ZRPageAlignmentRight : ZRPageAlignmentLeft;
            return odd ? ZRPageAlignmentBottom : ZRPageAlignmentTop;
        case ZRProductAlignmentVarioCard:
        case ZRProductAlignmentFotoAdventCalendar:
            return ZRPageAlignmentCenter;
        }
    }
    if (pages.containsPanoPageType()) {
        switch (index) {
        case 0:
            return ZRPageAlignmentLeft;
        case 1:
            return pages.at(0) == ZRPageTypeSingleStartPage ? ZRPageAlignmentLeft : ZRPageAlignmentRight;
        case 2:
        case 3:
            return ZRPageAlignmentRight;
        default:
            break;
        }
    }
    if (type.intersects(coverPages) && m_hasSpine) {
        switch (index) {
        case 0:
            return inner;
        case 1:
            return horizontal ? ZRPageAlignmentCenter : ZRPageAlignmentMiddle;
        case 2:
            return outer;
        default:
            break;
        }
    }
    return odd ? outer : inner;
}

ZRPageTypeList ZRProductTypeDescription::pageTypes(unsigned int count) const
{
    ZRPageTypeList result;
    unsigned int contentPages = count;
    for (const ZRPageType &type : m_pages) {
        switch (type.value()) {
        case ZRPageTypeCalendarSheetsDouble:
            fill(result, { ZRPageTypePhotoPage, ZRPageTypePhotoPage, ZRPageTypeGridPage, ZRPageTypeGridPage },
                contentPages);
            break;
        case ZRPageTypeCalendarSheets:
            fill(result, { ZRPageTypePhotoPage, ZRPageTypeGridPage }, contentPages);
            break;
        case ZRPageTypeCalendarSheetsGridFirst:
            fill(result, { ZRPageTypeGridPage, ZRPageTypePhotoPage }, contentPages);
            break;
        case ZRPageTypeContentPages:
            fill(result, { ZRPageTypeContent }, contentPages);
            break;
        case ZRPageTypeAdventDoors:
            // An advent calendar always has 24 doors, whatever the number of content pages.
            result.append(ZRPageType(ZRPageTypeContent));
            fill(result, { ZRPageTypeDoorPage }, 24);
            break;
        case ZRPageTypeWrapCover:
            result.appendEnum({ ZRPageTypeWrapFront, ZRPageTypeWrapSpine, ZRPageTypeWrapFlap, ZRPageTypeWrapBack });
            break;
        case ZRPageTypeNone:
            qWarning("Illegaler Seitentyp in der Produktbeschreibung.");
            break;
        case ZRPageTypeCoverBack:
            result.append(type);
            // The back cover takes the place of one content page; never count below none.
            if (contentPages > 0)
                --contentPages;
            break;
        default:
            result.append(type);
            break;
        }
    }
    return result;
}

bool ZRProductTypeDescription::userPageTiltAllowed(const int &page) const
{
    return !m_editorAbilities.userPageTiltConfig().isPageRotationDisabled(page);
}

QList<int> ZRProductTypeDescription::productionNumberingList(int count) const
{
    QList<int> numbers = m_productionNumbering;
    if (numbers.isEmpty())
        numbers.append(1);
    if (numbers.size() > count)
        numbers.resize(qMax(count, 0));
    // Counting on stops at the largest int instead of overflowing.
    while (numbers.size() < count)
        numbers.append(numbers.last() < std::numeric_limits<int>::max() ? numbers.last() + 1 : numbers.last());
    return numbers;
}

bool ZRProductTypeDescription::limitJigCategories(const ZRPageType &pageType, const ZRJigType &jigType) const
{
    return !allowedJigCategories(pageType, jigType).isEmpty();
}
