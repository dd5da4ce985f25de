#ifndef ZRPRODUCTTYPEDESCRIPTION_H
#define ZRPRODUCTTYPEDESCRIPTION_H

#include "ZRArticleClass.h"
#include "ZRBarcodeDefinitionList.h"
#include "ZRConfiguredArticleVariantList.h"
#include "ZRContentDropRedirectList.h"
#include "ZRCoverType.h"
#include "ZRDefaultTemplateMap.h"
#include "ZRDistance.h"
#include "ZRImageFXs.h"
#include "ZRMargins.h"
#include "ZRPageAlignment.h"
#include "ZRPageTiltRedirectList.h"
#include "ZRPageTypeList.h"
#include "ZRPreview3DDescription.h"
#include "ZRProductAlignmentStyle.h"
#include "ZRProductClassification.h"
#include "ZRProductEditorAbilities.h"
#include "ZRProductType.h"
#include "ZRProductionExtraPageGroupList.h"
#include "ZRSpotColor.h"
#include "ZRSurroundingDescriptionList.h"
#include "ZRXMLRewriterStrategy.h"
#include "zrproductproperties_export.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

class ZRDefaultTemplateKey;
class ZRSurroundingKey;

/**
 * Everything known about one product type, read once from the "product" element of its description
 * file and afterwards only queried (from any thread).
 */
class ZRPRODUCTPROPERTIES_EXPORT ZRProductTypeDescription
{
public:
    /** An empty, invalid description: class 0, every flag false, every number 0, every list empty. */
    ZRProductTypeDescription();
    /**
     * Reads a "product" element. Never fails: a missing attribute or child gives its default (class
     * "unknown", horizontal pages, tilt angle 270, fold safety margin -1, page number font size 24 and
     * indents 50 tenths of a millimetre, safety margin 0); unreadable numbers in lists are dropped.
     */
    explicit ZRProductTypeDescription(const QDomElement &productElement);
    ZRProductTypeDescription(const ZRProductTypeDescription &other);
    ZRProductTypeDescription(ZRProductTypeDescription &&other) noexcept;
    virtual ~ZRProductTypeDescription();
    ZRProductTypeDescription &operator=(const ZRProductTypeDescription &other);
    ZRProductTypeDescription &operator=(ZRProductTypeDescription &&other) noexcept;

    ZRProductType productType() const { return m_productType; }
    ZRCoverType coverType() const { return m_coverType; }
    ZRArticleClass articleClass() const { return m_articleClass; }
    ZRImageFXs imageFX() const { return m_imageFXs; }
    bool isVario() const { return m_isVario; }
    bool isTwoSided() const { return m_isTwoSided; }
    bool horizontalPages() const { return m_horizontalPages; }
    bool hasSpine() const { return m_hasSpine; }
    bool hasTextOnSpine() const { return m_hasTextOnSpine; }
    bool mustPaintZeRaLogoOnSpine() const { return m_mustPaintZeRaLogoOnSpine; }
    bool canHaveBorder() const { return m_canHaveBorder; }
    bool canHaveShadow() const { return m_canHaveShadow; }
    int foldSafetyMargin() const { return m_foldSafetyMargin; }
    int tiltAngle() const { return m_tiltAngle; }
    /** The number of entries of the page list, before placeholders are expanded. */
    int countAbstractPages() const { return m_pages.size(); }
    ZRPageTypeList abstractPages() const { return m_pages; }
    ZRProductAlignmentStyle productAlignment() const { return m_productAlignment; }
    ZRConfiguredArticleVariantList variants() const { return m_variants; }
    QList<ZRSpotColor> includedSpotColors() const { return m_includedSpotColors; }
    ZRBarcodeDefinitionList barcodeDefinitions() const { return m_barcodeDefinitions; }
    /** The preview held inside this description; valid as long as the description. */
    const ZRPreview3DDescription *preview3DDescription() const { return &m_preview3D; }
    QString priceListCategory() const { return m_priceListCategory; }
    ZRDistance pageNumberHorizontalIndent() const { return m_pageNumberHorizontalIndent; }
    ZRDistance pageNumberVerticalIndent() const { return m_pageNumberVerticalIndent; }
    int pageNumberFontSize() const { return m_pageNumberFontSize; }
    ZRProductClassification classification() const { return m_classification; }
    ZRProductType replacedByProduct() const { return m_replacedBy; }
    ZRXMLRewriterStrategy conversionStrategy() const { return m_conversionStrategy; }
    ZRProductionExtraPageGroupList extraProductionContents() const { return m_extraProductionPages; }
    QList<int> productionNumbering() const { return m_productionNumbering; }
    QList<int> pagesWithContent() const { return m_pagesWithContent; }
    ZRSurroundingDescriptionList surroundings() const { return m_surroundings; }
    ZRPageTiltRedirectList tiltRedirects() const { return m_tiltRedirects; }
    ZRContentDropRedirectList contentDropRedirects() const { return m_contentDropRedirects; }
    ZRDefaultTemplateMap defaultTemplates() const { return m_defaultTemplates; }
    ZRProductEditorAbilities editorAbilities() const { return m_editorAbilities; }
    /** The stored safety margins by page type key (all pages, and cover pages when given). */
    QHash<ZRPageType, int> safetyMarginTable() const;

    ZRSurroundingDescription findSurrounding(const ZRSurroundingKey &key) const;
    bool hasSurroundingWithBindingShade() const;
    ZRPageTiltRedirectList tiltRedirectForSourcePage(int page) const;
    ZRPageTiltRedirectList tiltRedirectForTargetPage(int page) const;
    /** The page that content dropped on @p page goes to; @p page itself without a redirect. */
    int contentDropRedirect(int page) const;
    QString findDefaultTemplate(const ZRDefaultTemplateKey &key) const;

    bool hasAssistant() const;
    bool isConvertable() const;
    ZRPageNamingStyle pageNamingStyle() const;
    bool canAlignBackgrounds() const;
    bool canRotateBackgrounds() const;
    int editorStartPage() const;
    bool showChangeDesignButton() const;
    bool supportsJigType(const ZRJigType &jigType) const;
    bool putFullBackgroundOnEachPage() const;
    bool requiresExactArticle(const ZRJigType &jigType) const;
    /** The category keys allowed for a jig type on a page type; empty means every category. */
    QStringList allowedJigCategories(const ZRPageType &pageType, const ZRJigType &jigType) const;
    ZRDateRangeConstraint dateRangeContraint() const;
    int extraProductionPageCount() const;

    /** False for class 0; otherwise true with a cover type, or for the article class that needs none (bit 44). */
    bool isValid() const;
    bool isVarioCard() const;
    bool isEasyCard() const;
    bool isSimplex() const;
    /** False when content jigs are not supported; true on every page when no pages were listed. */
    bool contentAllowedOnPage(int page) const;
    /** The cover margin for cover page types when one was given, else the margin of all pages (0 by default). */
    int safetyMargin(const ZRPageType &type) const;
    ZRMargins safetyMargins(const ZRPageType &type) const;
    /** The alignment of the page at @p index of an expanded page list (see pageTypes()). */
    ZRPageAlignment pageAlignment(const ZRPageTypeList &pages, int index) const;
    /**
     * The page list expanded for a product with @p count content pages: placeholders become their
     * pages, a back cover (64) takes the place of one content page. An entry of 0 is skipped with the
     * warning "Illegaler Seitentyp in der Produktbeschreibung.".
     */
    ZRPageTypeList pageTypes(unsigned int count) const;
    bool userPageTiltAllowed(const int &page) const;
    /**
     * The production numbers of @p count files: the listed ones (or 1), cut or counted on to @p count.
     * Counting on stops at the largest int.
     */
    QList<int> productionNumberingList(int count) const;
    /** True when the categories of a jig type on a page type are limited (a non-empty list). */
    bool limitJigCategories(const ZRPageType &pageType, const ZRJigType &jigType) const;

private:
    ZRProductType m_productType;
    ZRCoverType m_coverType;
    bool m_hasSpine = false;
    bool m_mustPaintZeRaLogoOnSpine = false;
    bool m_hasTextOnSpine = false;
    ZRImageFXs m_imageFXs;
    int m_foldSafetyMargin = 0;
    bool m_canHaveBorder = false;
    bool m_canHaveShadow = false;
    ZRPageTypeList m_pages;
    ZRProductAlignmentStyle m_productAlignment;
    bool m_horizontalPages = false;
    QList<int> m_productionNumbering;
    ZRConfiguredArticleVariantList m_variants;
    QList<int> m_pagesWithContent;
    ZRSurroundingDescriptionList m_surroundings;
    ZRPageTiltRedirectList m_tiltRedirects;
    ZRContentDropRedirectList m_contentDropRedirects;
    ZRDefaultTemplateMap m_defaultTemplates;
    ZRDistance m_pageNumberHorizontalIndent;
    ZRDistance m_pageNumberVerticalIndent;
    int m_pageNumberFontSize = 0;
    ZRProductionExtraPageGroupList m_extraProductionPages;
    ZRProductClassification m_classification;
    ZRProductType m_replacedBy;
    ZRXMLRewriterStrategy m_conversionStrategy;
    ZRProductEditorAbilities m_editorAbilities;
    // The table of safety margins holds one or two entries: all pages, and the cover when it has its own.
    int m_safetyMargin = 0;
    int m_coverSafetyMargin = -1;
    QString m_priceListCategory;
    bool m_isVario = false;
    bool m_isTwoSided = false;
    ZRArticleClass m_articleClass;
    int m_tiltAngle = 0;
    QList<ZRSpotColor> m_includedSpotColors;
    ZRBarcodeDefinitionList m_barcodeDefinitions;
    ZRPreview3DDescription m_preview3D;
};

#endif
