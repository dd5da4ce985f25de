#include "ZRProductTypeDescription.h"

#include "ZRDefaultTemplateKey.h"
#include "ZRJigType.h"
#include "ZRPageListDecoder.h"
#include "ZRSurroundingKey.h"
#include "ZRXMLDiagnostics.h"
#include "ZRXMLParser.h"
#include "ZRXMLVocabulary.h"

#include <QDomNamedNodeMap>

#include <initializer_list>
#include <limits>

namespace {
const QString nameAttribute = QStringLiteral("name");

const ZRXMLVocabulary vocabulary(QStringLiteral("product"),
    { nameAttribute, QStringLiteral("isVario"), QStringLiteral("isTwoSided"), QStringLiteral("class"),
        QStringLiteral("imageFXs"), QStringLiteral("binding"), QStringLiteral("horizontalPages"),
        QStringLiteral("productAlignment"), QStringLiteral("hasLogoOnSpine"), QStringLiteral("foldsafetymargin"),
        QStringLiteral("replacedBy"), QStringLiteral("conversionStrategy"), QStringLiteral("spotColor"),
        QStringLiteral("safetymargin"), QStringLiteral("safetymargincover") },
    { QStringLiteral("surroundings"), QStringLiteral("rotationredirects"), QStringLiteral("contentredirects"),
        QStringLiteral("defaults"), QStringLiteral("tilt"), QStringLiteral("variants"),
        QStringLiteral("productionnumbering"), QStringLiteral("pageswithcontent"), QStringLiteral("pages"),
        QStringLiteral("pageNumberConfig"), QStringLiteral("extra_production_pages"), QStringLiteral("editorAbilities"),
        QStringLiteral("pricelist"), QStringLiteral("barcodes"), QStringLiteral("classification"),
        QStringLiteral("preview3D") });
const ZRXMLVocabulary tiltVocabulary(QStringLiteral("tilt"), { QStringLiteral("angle") }, {});
const ZRXMLVocabulary productionNumberingVocabulary(QStringLiteral("productionnumbering"), {}, {});
const ZRXMLVocabulary pagesWithContentVocabulary(QStringLiteral("pageswithcontent"), {}, {});
const ZRXMLVocabulary pagesVocabulary(QStringLiteral("pages"), {}, {});
const ZRXMLVocabulary pageNumberConfigVocabulary(
    QStringLiteral("pageNumberConfig"), {}, { QStringLiteral("margin"), QStringLiteral("font") });
const ZRXMLVocabulary marginVocabulary(
    QStringLiteral("margin"), { QStringLiteral("verticalMargin"), QStringLiteral("horizontalMargin") }, {});
const ZRXMLVocabulary fontVocabulary(QStringLiteral("font"), { QStringLiteral("fontSize") }, {});
const ZRXMLVocabulary priceListVocabulary(QStringLiteral("pricelist"), {}, { QStringLiteral("category") });
const ZRXMLVocabulary priceListCategoryVocabulary(QStringLiteral("category"), {}, {});

// The article class that is valid without a cover type.
constexpr quint64 classWithoutCoverType = quint64(1) << 44;
constexpr ZRPageTypeEnum coverPages = ZRPageTypeCovers;
constexpr ZRPageTypeEnum allPages = ZRPageTypeAll;

/** The integer list of the child of @p productElement that @p childVocabulary is of. */
QList<int> readIntList(const QDomElement &productElement, const ZRXMLVocabulary &childVocabulary)
{
    const QDomElement child = productElement.firstChildElement(childVocabulary.element());
    if (child.isNull())
        return {};
    childVocabulary.check(child);
    return ZRPageListDecoder::decode(child.text(), ZRPageListDecoder::NoRanges, child);
}

/** Reports the parts of the product's enumerated attributes and of its page list that decode to nothing. */
void checkKeys(const QDomElement &productElement, const QDomElement &pages)
{
    const QDomNamedNodeMap attributes = productElement.attributes();
    ZRXMLDiagnostics::checkKeys<ZRArticleClass>(
        attributes.namedItem(QStringLiteral("class")), QStringLiteral("article class"));
    ZRXMLDiagnostics::checkKeys<ZRImageFXs>(
        attributes.namedItem(QStringLiteral("imageFXs")), QStringLiteral("image effect"));
    ZRXMLDiagnostics::checkKeys<ZRCoverType>(
        attributes.namedItem(QStringLiteral("binding")), QStringLiteral("binding"));
    ZRXMLDiagnostics::checkKeys<ZRProductAlignmentStyle>(
        attributes.namedItem(QStringLiteral("productAlignment")), QStringLiteral("product alignment"));
    ZRXMLDiagnostics::checkKeys<ZRXMLRewriterStrategy>(
        attributes.namedItem(QStringLiteral("conversionStrategy")), QStringLiteral("conversion strategy"));
    // Every part of the list becomes a spot colour, an empty one included.
    ZRXMLDiagnostics::checkKeys<ZRSpotColor>(
        attributes.namedItem(QStringLiteral("spotColor")), QStringLiteral("spot colour"), true);
    // An empty entry of the page list becomes page type 0, which the page expansion warns about.
    ZRXMLDiagnostics::checkKeys<ZRPageType>(pages, QStringLiteral("page type"));
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
    vocabulary.check(productElement);
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
    const QDomElement tilt = productElement.firstChildElement(tiltVocabulary.element());
    tiltVocabulary.check(tilt);
    m_tiltAngle = ZRXMLParser::readAngle(tilt, QStringLiteral("angle"), 270);
    m_variants = ZRConfiguredArticleVariantList(productElement);
    m_productionNumbering = readIntList(productElement, productionNumberingVocabulary);
    m_pagesWithContent = readIntList(productElement, pagesWithContentVocabulary);

    const QDomElement pages = productElement.firstChildElement(pagesVocabulary.element());
    pagesVocabulary.check(pages);
    m_pages = ZRPageTypeList(pages.text());
    m_hasSpine = m_pages.pageTypes().contains(ZRPageType(ZRPageTypeSpine))
        || m_pages.pageTypes().contains(ZRPageType(ZRPageTypeWrapCover));
    m_hasTextOnSpine = m_hasSpine && !m_pages.containsMatch(ZRPageType(ZRPageTypeInsideCovers));

    const ZRDistanceUnit tenthMillimetre(ZRDistanceUnitTenthMM);
    const QDomElement pageNumberConfig = productElement.firstChildElement(pageNumberConfigVocabulary.element());
    const QDomElement margin = pageNumberConfig.firstChildElement(marginVocabulary.element());
    const QDomElement font = pageNumberConfig.firstChildElement(fontVocabulary.element());
    pageNumberConfigVocabulary.check(pageNumberConfig);
    marginVocabulary.check(margin);
    fontVocabulary.check(font);
    m_pageNumberVerticalIndent
        = ZRXMLParser::readDistance(margin, QStringLiteral("verticalMargin"), 50.0, tenthMillimetre);
    m_pageNumberHorizontalIndent
        = ZRXMLParser::readDistance(margin, QStringLiteral("horizontalMargin"), 50.0, tenthMillimetre);
    m_pageNumberFontSize = ZRXMLParser::intAttribute(font, QStringLiteral("fontSize"), 24);

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

    const QDomElement priceList = productElement.firstChildElement(priceListVocabulary.element());
    const QDomElement priceCategory = priceList.firstChildElement(priceListCategoryVocabulary.element());
    priceListVocabulary.check(priceList);
    priceListCategoryVocabulary.check(priceCategory);
    if (!priceCategory.isNull())
        m_priceListCategory = priceCategory.text();

    m_safetyMargin = integer(QStringLiteral("safetymargin"), 0);
    m_coverSafetyMargin = integer(QStringLiteral("safetymargincover"), -1);

    m_barcodeDefinitions = ZRBarcodeDefinitionList::createFromProductsXML(
        productElement.firstChildElement(QStringLiteral("barcodes")), tenthMillimetre);
    m_preview3D = ZRPreview3DDescription(productElement);

    if (ZRXMLDiagnostics::isActive())
        checkKeys(productElement, pages);
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
    if (m_coverSafetyMargin != -1 && type.intersects(coverPages))
        return m_coverSafetyMargin;
    return m_safetyMargin;
}

QHash<ZRPageType, int> ZRProductTypeDescription::safetyMarginTable() const
{
    QHash<ZRPageType, int> table { { ZRPageType(allPages), m_safetyMargin } };
    if (m_coverSafetyMargin != -1)
        table.insert(ZRPageType(coverPages), m_coverSafetyMargin);
    return table;
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
