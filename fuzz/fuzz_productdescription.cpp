// A product description file: the "product" element under the document element, read as the
// description reader does, then asked every query the editor asks.

#include "FuzzSupport.h"

#include "ZRDefaultTemplateKey.h"
#include "ZRDistanceUnit.h"
#include "ZRJigType.h"
#include "ZRPageContext.h"
#include "ZRPreview3DDescription.h"
#include "ZRProductTypeDescription.h"
#include "ZRSurroundingKey.h"
#include "ZRXMLLoader.h"

#include <QUrl>

namespace {
constexpr ZRPageAlignmentEnum alignments[] = { ZRPageAlignmentNone, ZRPageAlignmentLeft, ZRPageAlignmentRight,
    ZRPageAlignmentCenter, ZRPageAlignmentTop, ZRPageAlignmentBottom, ZRPageAlignmentMiddle, ZRPageAlignmentAll };
constexpr ZRDefaultTemplateType templateTypes[]
    = { ZRDefaultTemplateLayout, ZRDefaultTemplateBackground, ZRDefaultTemplateDesign };
constexpr ZRDistanceUnitEnum units[]
    = { ZRDistanceUnitTenthMM, ZRDistanceUnitMM, ZRDistanceUnitInch, ZRDistanceUnitCM, ZRDistanceUnitPoint };
// Page counts of real products: none, a card, a calendar, an advent calendar, a thick book.
constexpr unsigned int pageCounts[] = { 0, 1, 2, 13, 24, 120 };

void querySurroundings(const ZRProductTypeDescription &description, const ZRPageType &type, int index)
{
    for (ZRPageAlignmentEnum alignment : alignments) {
        const ZRPageContext context(type, ZRPageAlignment(alignment));
        const ZRSurroundingDescription surrounding = description.findSurrounding(ZRSurroundingKey(context, index));
        if (surrounding.isValid()) {
            surrounding.hasSpineFold();
            surrounding.spineFoldWithSafetyMargins();
            surrounding.hashValue();
            const ZRSpiralConfig spiral = surrounding.spiralConfig();
            spiral.hasSpiral();
            spiral.hasHook();
            spiral.spiralSize(Qt::Horizontal);
            spiral.spiralSize(Qt::Vertical);
            surrounding.calendarHoleConfig().hasHole();
        }
        for (ZRDefaultTemplateType templateType : templateTypes) {
            description.findDefaultTemplate(ZRDefaultTemplateKey(context, templateType));
            description.findDefaultTemplate(ZRDefaultTemplateKey(context, templateType, index, 2));
        }
    }
}

void queryEditorAbilities(const ZRProductTypeDescription &description, const ZRPageTypeList &pages)
{
    description.hasAssistant();
    description.isConvertable();
    description.pageNamingStyle().encodeCSV();
    description.canAlignBackgrounds();
    description.canRotateBackgrounds();
    description.editorStartPage();
    description.showChangeDesignButton();
    description.putFullBackgroundOnEachPage();
    description.dateRangeContraint().allowedDateRange();
    for (int bit = 0; bit <= 13; ++bit) {
        const ZRJigType jig(ZRJigTypeEnum(bit == 0 ? 0 : 1 << (bit - 1)));
        description.supportsJigType(jig);
        description.requiresExactArticle(jig);
        for (const ZRPageType &type : pages) {
            description.allowedJigCategories(type, jig);
            description.limitJigCategories(type, jig);
        }
    }
}

void queryPages(const ZRProductTypeDescription &description)
{
    for (unsigned int count : pageCounts) {
        const ZRPageTypeList pages = description.pageTypes(count);
        for (int index = -1; index <= pages.size(); ++index) {
            description.pageAlignment(pages, index);
            const ZRPageType type = index >= 0 && index < pages.size() ? pages.at(index) : ZRPageType();
            description.safetyMargin(type);
            description.safetyMargins(type);
            description.userPageTiltAllowed(index);
            description.contentAllowedOnPage(index);
            description.tiltRedirectForSourcePage(index);
            description.tiltRedirectForTargetPage(index);
            description.contentDropRedirect(index);
        }
        description.productionNumberingList(int(count));
        queryEditorAbilities(description, pages);
    }
    // Surroundings and templates for every page of the largest list and the page types of the description.
    const ZRPageTypeList pages = description.pageTypes(pageCounts[std::size(pageCounts) - 1]);
    for (int index = 0; index < pages.size(); ++index)
        querySurroundings(description, pages.at(index), index);
    for (const ZRPageType &type : description.abstractPages())
        querySurroundings(description, type, -1);
}

void queryClassificationAndPreview(const ZRProductTypeDescription &description)
{
    const ZRProductClassification classification = description.classification();
    for (ZRDistanceUnitEnum unit : units) {
        classification.sizeName(ZRDistanceUnit(unit));
        classification.visibleName(ZRDistanceUnit(unit));
        classification.sizeNameWithUnit(ZRDistanceUnit(unit));
        classification.dimensions(ZRDistanceUnit(unit));
    }
    classification.areaSize();
    classification.sizeDiagonal();
    classification.group().visibleDescription();
    classification.group().canCustomFormat(description.productType().name());
    description.preview3DDescription()->url(true).toString();
    description.preview3DDescription()->url(false).toString();
}
} // namespace

void fuzzSetUp() { }

void fuzzOneInput(const uint8_t *data, size_t size)
{
    const QDomElement root = ZRXMLLoader::loadDocumentElement(FuzzSupport::bytes(data, size));
    if (root.isNull())
        return;
    const ZRProductTypeDescription description(root.firstChildElement(QStringLiteral("product")));

    description.isValid();
    description.isVarioCard();
    description.isEasyCard();
    description.isSimplex();
    description.hasSurroundingWithBindingShade();
    description.extraProductionPageCount();
    description.abstractPages().containsPanoPageType();
    queryPages(description);
    queryClassificationAndPreview(description);

    // Copies are independent values: a copy answers like the original.
    const ZRProductTypeDescription copy = description;
    FuzzSupport::check(copy.pageTypes(24) == description.pageTypes(24), "a copied description lists the same pages");
    FuzzSupport::check(copy.productionNumberingList(3) == description.productionNumberingList(3),
        "a copied description numbers pages alike");
}
