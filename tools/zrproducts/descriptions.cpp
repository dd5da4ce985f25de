#include "descriptions.h"

#include "ZRDefaultTemplateKey.h"
#include "ZRJigType.h"
#include "ZRLegacyProductTypeConfigRegistry.h"
#include "ZRProductTypeConfigRegistryAbstract.h"
#include "ZRProductTypeDescription.h"
#include "ZRThematicCategory.h"
#include "ZRThematicCategoryList.h"

#include <QRect>
#include <QRectF>
#include <QSize>

#include <algorithm>
#include <map>
#include <tuple>

namespace {
/** The key of a value: its own key when it has one, else the keys of its flags; empty for an unnamed 0. */
template<typename W> QString keys(const W &value)
{
    const auto *table = value.enumToStringTable();
    const QString exact = table->valueToString().value(value.value());
    if (!exact.isEmpty() || value.value() == 0)
        return exact;
    return table->encodeCSV(value.value());
}

QVariantList numbers(const QList<int> &values)
{
    QVariantList list;
    for (int value : values)
        list.append(value);
    return list;
}

QString sizeText(const QSize &size)
{
    if (size.width() < 0 || size.height() < 0)
        return QString();
    return QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
}

/** "x,y widthxheight", empty for a null rectangle. */
QString rectText(const QRectF &rect)
{
    if (rect.isNull())
        return QString();
    return QStringLiteral("%1,%2 %3x%4").arg(rect.x()).arg(rect.y()).arg(rect.width()).arg(rect.height());
}

QString templateKind(ZRDefaultTemplateType kind)
{
    switch (kind) {
    case ZRDefaultTemplateLayout:
        return QStringLiteral("layout");
    case ZRDefaultTemplateBackground:
        return QStringLiteral("background");
    case ZRDefaultTemplateDesign:
        return QStringLiteral("design");
    }
    return QString();
}

/** Every single page type flag, lowest first: the page types that editor abilities keep categories for. */
QList<ZRPageType> singlePageTypes()
{
    QList<ZRPageType> result;
    for (int bit = 0; bit < 31; ++bit) {
        const ZRPageType type(ZRPageTypeEnum(1 << bit));
        if (type.enumToStringTable()->valueToString().contains(type.value()))
            result.append(type);
    }
    return result;
}

Record surroundingRecord(const ZRSurroundingDescription &surrounding)
{
    Record record;
    record.add(QStringLiteral("type"), keys(surrounding.surroundingType()))
        .add(QStringLiteral("pageTypes"), keys(surrounding.pageTypes()))
        .add(QStringLiteral("alignments"), keys(surrounding.alignments()))
        .add(QStringLiteral("pageNr"), surrounding.pageNr())
        .add(QStringLiteral("variant"), surrounding.variant().toString())
        .add(QStringLiteral("image"), surrounding.imageResource())
        .add(QStringLiteral("paintOnTop"), surrounding.paintOnTop())
        .add(QStringLiteral("canBeHiddenByUser"), surrounding.canBeHiddenByUser())
        .add(QStringLiteral("hideGrafikInPreview"), surrounding.hideGrafikInPreview())
        .add(QStringLiteral("editableArea"), rectText(surrounding.editableArea()))
        .add(QStringLiteral("hasBindingShade"), surrounding.hasBindingShade())
        .add(QStringLiteral("spineFoldWidth"),
            surrounding.hasSpineFold() ? QVariant(surrounding.spineFoldWidth()) : QVariant())
        .add(QStringLiteral("spotColor"), keys(surrounding.spotColor()))
        .add(QStringLiteral("imageSpotColor"), surrounding.imageResourceSpotColor());
    QVariantList masks;
    const QList<QRect> maskRects = surrounding.spotColorMask();
    for (const QRect &mask : maskRects)
        masks.append(rectText(mask));
    record.add(QStringLiteral("spotColorMask"), masks)
        .add(QStringLiteral("tileSize"), sizeText(surrounding.tileSize()));

    const ZRSpiralConfig spirals = surrounding.spiralConfig();
    if (spirals.hasSpiral()) {
        const QImage loop = spirals.bindingLoopImage();
        Record spiralRecord;
        spiralRecord.add(QStringLiteral("count"), spirals.spiralCount())
            .add(QStringLiteral("hook"),
                spirals.hasHook() ? sizeText(QSize(spirals.hookWidth(), spirals.hookHeight())) : QString())
            .add(QStringLiteral("sizeHorizontal"), sizeText(spirals.spiralSize(Qt::Horizontal)))
            .add(QStringLiteral("sizeVertical"), sizeText(spirals.spiralSize(Qt::Vertical)))
            .add(QStringLiteral("loopPicture"), loop.isNull() ? QStringLiteral("missing") : sizeText(loop.size()));
        record.add(QStringLiteral("spirals"), spiralRecord);
    } else {
        record.add(QStringLiteral("spirals"), QVariant());
    }

    const ZRCalendarHoleConfig hole = surrounding.calendarHoleConfig();
    if (hole.hasHole()) {
        Record holeRecord;
        holeRecord.add(QStringLiteral("diameter"), hole.diameter()).add(QStringLiteral("distanceY"), hole.distanceY());
        record.add(QStringLiteral("hole"), holeRecord);
    } else {
        record.add(QStringLiteral("hole"), QVariant());
    }
    return record;
}

/**
 * The stored default templates with the alignments of one written entry joined again (the map holds
 * one entry per single alignment); empty names, which never answer a look-up, are left out.
 */
QList<Record> defaultTemplateRecords(const ZRDefaultTemplateMap &map)
{
    using Group = std::tuple<int, int, int, int, QString>; // page type, page nr, scene count, kind, name
    std::map<Group, int> alignments;
    for (auto it = map.cbegin(); it != map.cend(); ++it) {
        if (it.value().isEmpty())
            continue;
        const ZRDefaultTemplateKey &key = it.key();
        const Group group { int(key.pageType().value()), key.pageNumber(), key.scenePageCount(),
            int(key.defaultTemplateType()), it.value() };
        alignments[group] |= int(key.pageAlignment().value());
    }
    QList<Record> records;
    for (const auto &[group, alignment] : alignments) {
        Record record;
        record.add(QStringLiteral("pageType"), keys(ZRPageType(ZRPageTypeEnum(std::get<0>(group)))))
            .add(QStringLiteral("alignments"), keys(ZRPageAlignment(ZRPageAlignmentEnum(alignment))))
            .add(QStringLiteral("pageNr"), std::get<1>(group))
            .add(QStringLiteral("scenePageCount"), std::get<2>(group))
            .add(QStringLiteral("kind"), templateKind(ZRDefaultTemplateType(std::get<3>(group))))
            .add(QStringLiteral("template"), std::get<4>(group));
        records.append(record);
    }
    return records;
}

/** The jig types whose abilities differ from the defaults (disabled, exact article or limited categories). */
QList<Record> jigRecords(const ZRProductTypeDescription &description)
{
    const QList<ZRPageType> pageTypes = singlePageTypes();
    const auto &jigKeys = ZRJigType().enumToStringTable()->valueToString();
    QList<ZRJigTypeEnum> jigTypes = jigKeys.keys();
    std::sort(jigTypes.begin(), jigTypes.end());

    QList<Record> records;
    for (const ZRJigTypeEnum value : std::as_const(jigTypes)) {
        const ZRJigType jig(value);
        if (value == ZRJigTypeUnknown)
            continue;
        QList<Record> categories;
        for (const ZRPageType &pageType : pageTypes) {
            const QStringList allowed = description.allowedJigCategories(pageType, jig);
            if (allowed.isEmpty())
                continue;
            Record entry;
            entry.add(QStringLiteral("pageType"), keys(pageType)).add(QStringLiteral("categories"), allowed);
            categories.append(entry);
        }
        const bool enabled = description.supportsJigType(jig);
        const bool exactArticle = description.requiresExactArticle(jig);
        if (enabled && !exactArticle && categories.isEmpty())
            continue;
        Record record;
        record.add(QStringLiteral("jig"), keys(jig))
            .add(QStringLiteral("name"), jig.describe())
            .add(QStringLiteral("enabled"), enabled)
            .add(QStringLiteral("exactArticle"), exactArticle)
            .add(QStringLiteral("categories"), categories);
        records.append(record);
    }
    return records;
}

Record editorAbilitiesRecord(const ZRProductTypeDescription &description)
{
    const ZRProductEditorAbilities abilities = description.editorAbilities();
    const ZRUserPageTiltConfig tilt = abilities.userPageTiltConfig();
    const ZRDateRangeConstraint dateRange = description.dateRangeContraint();

    Record pageTilt;
    pageTilt.add(QStringLiteral("disabled"), tilt.isDisabled()).add(QStringLiteral("pages"), numbers(tilt.pages()));
    Record dates;
    dates.add(QStringLiteral("enforced"), dateRange.enforce())
        .add(QStringLiteral("minimumFromCurrentYear"), dateRange.minimumFromCurrentYear())
        .add(QStringLiteral("maximumFromCurrentYear"), dateRange.maximumFromCurrentYear());

    Record record;
    record.add(QStringLiteral("assistant"), description.hasAssistant())
        .add(QStringLiteral("convertable"), description.isConvertable())
        .add(QStringLiteral("pageNamingStyle"), keys(description.pageNamingStyle()))
        .add(QStringLiteral("startPage"), description.editorStartPage())
        .add(QStringLiteral("showChangeDesignButton"), description.showChangeDesignButton())
        .add(QStringLiteral("canAlignBackgrounds"), description.canAlignBackgrounds())
        .add(QStringLiteral("canRotateBackgrounds"), description.canRotateBackgrounds())
        .add(QStringLiteral("fullBackgroundOnEachPage"), description.putFullBackgroundOnEachPage())
        .add(QStringLiteral("pageTilt"), pageTilt)
        .add(QStringLiteral("dateRange"), dates)
        .add(QStringLiteral("jigs"), jigRecords(description));
    return record;
}

QVariant classificationValue(const ZRProductTypeDescription &description)
{
    const ZRProductClassification classification = description.classification();
    if (classification.group().value().isEmpty())
        return QVariant();
    Record record;
    record.add(QStringLiteral("group"), classification.group().value())
        .add(QStringLiteral("description"), classification.group().visibleDescription())
        .add(QStringLiteral("customFormat"), classification.group().canCustomFormat())
        .add(QStringLiteral("sizeCm"), classification.sizeName(ZRDistanceUnit(ZRDistanceUnitCM)))
        .add(QStringLiteral("sizeInch"), classification.sizeName(ZRDistanceUnit(ZRDistanceUnitInch)))
        .add(QStringLiteral("areaCm2"), classification.areaSize());
    return QVariant::fromValue(record);
}

QVariant preview3DValue(const ZRProductTypeDescription &description)
{
    const ZRPreview3DDescription *preview = description.preview3DDescription();
    if (preview->mesh().isEmpty())
        return QVariant();
    QList<Record> targets;
    const QList<ZRTextureTarget> textureTargets = preview->textureTargets();
    for (const ZRTextureTarget &target : textureTargets) {
        Record record;
        record.add(QStringLiteral("name"), target.name())
            .add(QStringLiteral("rect"), rectText(target.rect()))
            .add(QStringLiteral("page"), target.page());
        targets.append(record);
    }
    Record record;
    record.add(QStringLiteral("mesh"), preview->mesh())
        .add(QStringLiteral("flipX"), preview->flipX())
        .add(QStringLiteral("flipY"), preview->flipY())
        .add(QStringLiteral("textureTargets"), targets)
        .add(QStringLiteral("cupRing"), rectText(preview->cupRingRect()))
        .add(QStringLiteral("windowSize"), sizeText(preview->windowSize()))
        .add(QStringLiteral("address"), preview->url(false).toString())
        .add(QStringLiteral("addressBig"), preview->url(true).toString());
    return QVariant::fromValue(record);
}

QList<Record> extraPageRecords(const ZRProductTypeDescription &description)
{
    QList<Record> records;
    const QList<ZRProductionExtraPageGroup> groups = description.extraProductionContents().groups();
    for (const ZRProductionExtraPageGroup &group : groups) {
        Record record;
        record.add(QStringLiteral("targetPages"), numbers(group.targetPages()))
            .add(QStringLiteral("file"), group.content().filename())
            .add(QStringLiteral("type"), group.content().templateType())
            .add(QStringLiteral("layer"), group.content().targetLayer());
        records.append(record);
    }
    return records;
}
} // namespace

Table Descriptions::productTable(bool legacy)
{
    QList<std::pair<QString, QString>> columns {
        { QStringLiteral("name"), QStringLiteral("PRODUCT") },
        { QStringLiteral("articleClass"), QStringLiteral("CLASS") },
        { QStringLiteral("binding"), QStringLiteral("BINDING") },
        { QStringLiteral("abstractPages"), QStringLiteral("PAGES") },
        { QStringLiteral("valid"), QStringLiteral("VALID") },
    };
    if (legacy) {
        columns.append({ QStringLiteral("replacedBy"), QStringLiteral("REPLACED BY") });
        columns.append({ QStringLiteral("conversionStrategy"), QStringLiteral("CONVERSION") });
    }
    return Table(columns);
}

void Descriptions::addProducts(Table *table, const ZRProductTypeConfigRegistryAbstract *registry, bool legacy)
{
    QList<ZRProductType> types = registry->allProducts();
    std::sort(types.begin(), types.end());
    for (const ZRProductType &type : std::as_const(types)) {
        const ZRProductTypeDescription *description = registry->description(type);
        QVariantList row { type.name(), keys(description->articleClass()), keys(description->coverType()),
            description->countAbstractPages(), description->isValid() };
        if (legacy)
            row << description->replacedByProduct().name() << keys(description->conversionStrategy());
        table->addRow(row);
    }
}

Record Descriptions::product(const ZRProductTypeDescription &description, bool legacy)
{
    QStringList spotColors;
    const QList<ZRSpotColor> includedSpotColors = description.includedSpotColors();
    for (const ZRSpotColor &spotColor : includedSpotColors)
        spotColors.append(keys(spotColor));

    QStringList abstractPages;
    for (const ZRPageType &type : description.abstractPages())
        abstractPages.append(keys(type));
    QStringList expandedPages;
    for (const ZRPageType &type : description.pageTypes(typicalContentPages))
        expandedPages.append(keys(type));
    Record pages;
    pages.add(QStringLiteral("list"), abstractPages)
        .add(QStringLiteral("count"), description.countAbstractPages())
        .add(QStringLiteral("expandedFor"), typicalContentPages)
        .add(QStringLiteral("expanded"), expandedPages)
        .add(QStringLiteral("expandedCount"), expandedPages.size());

    Record margins;
    const QHash<ZRPageType, int> table = description.safetyMarginTable();
    for (const ZRPageType &type : { ZRPageType(ZRPageTypeAll), ZRPageType(ZRPageTypeCovers) }) {
        if (table.contains(type))
            margins.add(keys(type), table.value(type));
    }
    margins.add(QStringLiteral("fold"), description.foldSafetyMargin());

    Record pageNumbers;
    pageNumbers.add(QStringLiteral("horizontalIndent"), description.pageNumberHorizontalIndent().value())
        .add(QStringLiteral("verticalIndent"), description.pageNumberVerticalIndent().value())
        .add(QStringLiteral("unit"), keys(description.pageNumberHorizontalIndent().unit()))
        .add(QStringLiteral("fontSize"), description.pageNumberFontSize());

    QList<Record> surroundings;
    const ZRSurroundingDescriptionList surroundingList = description.surroundings();
    for (const ZRSurroundingDescription &surrounding : surroundingList)
        surroundings.append(surroundingRecord(surrounding));

    QList<Record> tiltRedirects;
    const ZRPageTiltRedirectList redirects = description.tiltRedirects();
    for (const ZRPageTiltRedirect &redirect : redirects) {
        Record record;
        record.add(QStringLiteral("from"), redirect.sourcePageNr())
            .add(QStringLiteral("to"), redirect.targetPageNr())
            .add(QStringLiteral("angleInvert"), redirect.angleInvert());
        tiltRedirects.append(record);
    }
    QList<Record> contentRedirects;
    const ZRContentDropRedirectList drops = description.contentDropRedirects();
    for (auto it = drops.cbegin(); it != drops.cend(); ++it) {
        Record record;
        record.add(QStringLiteral("from"), it.key()).add(QStringLiteral("to"), it.value());
        contentRedirects.append(record);
    }

    QList<Record> barcodes;
    const ZRBarcodeDefinitionList barcodeList = description.barcodeDefinitions();
    for (const ZRBarcodeDefinition &barcode : barcodeList) {
        Record record;
        record.add(QStringLiteral("symbology"), barcode.symbology())
            .add(QStringLiteral("area"), rectText(barcode.area()))
            .add(QStringLiteral("unit"), keys(barcode.unit()));
        barcodes.append(record);
    }

    QList<Record> variants;
    const ZRConfiguredArticleVariantList variantList = description.variants();
    for (const ZRConfiguredArticleVariant &variant : variantList) {
        Record record;
        record.add(QStringLiteral("name"), variant.name())
            .add(QStringLiteral("choices"), variant.choices())
            .add(QStringLiteral("default"), variant.defaultChoice());
        variants.append(record);
    }

    Record record;
    record.add(QStringLiteral("name"), description.productType().name())
        .add(QStringLiteral("legacy"), legacy)
        .add(QStringLiteral("valid"), description.isValid())
        .add(QStringLiteral("articleClass"), keys(description.articleClass()))
        .add(QStringLiteral("binding"), keys(description.coverType()))
        .add(QStringLiteral("replacedBy"), description.replacedByProduct().name())
        .add(QStringLiteral("conversionStrategy"), keys(description.conversionStrategy()))
        .add(QStringLiteral("vario"), description.isVario())
        .add(QStringLiteral("twoSided"), description.isTwoSided())
        .add(QStringLiteral("varioCard"), description.isVarioCard())
        .add(QStringLiteral("easyCard"), description.isEasyCard())
        .add(QStringLiteral("simplex"), description.isSimplex())
        .add(QStringLiteral("horizontalPages"), description.horizontalPages())
        .add(QStringLiteral("productAlignment"), keys(description.productAlignment()))
        .add(QStringLiteral("imageEffects"), keys(description.imageFX()))
        .add(QStringLiteral("canHaveBorder"), description.canHaveBorder())
        .add(QStringLiteral("canHaveShadow"), description.canHaveShadow())
        .add(QStringLiteral("hasSpine"), description.hasSpine())
        .add(QStringLiteral("hasTextOnSpine"), description.hasTextOnSpine())
        .add(QStringLiteral("logoOnSpine"), description.mustPaintZeRaLogoOnSpine())
        .add(QStringLiteral("spotColors"), spotColors)
        .add(QStringLiteral("priceListCategory"), description.priceListCategory())
        .add(QStringLiteral("pages"), pages)
        .add(QStringLiteral("productionNumbering"), numbers(description.productionNumbering()))
        .add(QStringLiteral("pagesWithContent"), numbers(description.pagesWithContent()))
        .add(QStringLiteral("safetyMargins"), margins)
        .add(QStringLiteral("pageNumbers"), pageNumbers)
        .add(QStringLiteral("tiltAngle"), description.tiltAngle())
        .add(QStringLiteral("tiltRedirects"), tiltRedirects)
        .add(QStringLiteral("contentRedirects"), contentRedirects)
        .add(QStringLiteral("surroundings"), surroundings)
        .add(QStringLiteral("defaultTemplates"), defaultTemplateRecords(description.defaultTemplates()))
        .add(QStringLiteral("editorAbilities"), editorAbilitiesRecord(description))
        .add(QStringLiteral("extraProductionPageCount"), description.extraProductionPageCount())
        .add(QStringLiteral("extraProductionPages"), extraPageRecords(description))
        .add(QStringLiteral("classification"), classificationValue(description))
        .add(QStringLiteral("preview3D"), preview3DValue(description))
        .add(QStringLiteral("barcodes"), barcodes)
        .add(QStringLiteral("variants"), variants);
    return record;
}

Table Descriptions::pages(const ZRProductTypeDescription &description, unsigned int count)
{
    Table table({ { QStringLiteral("index"), QStringLiteral("INDEX") },
        { QStringLiteral("pageType"), QStringLiteral("PAGE TYPE") },
        { QStringLiteral("alignment"), QStringLiteral("ALIGNMENT") },
        { QStringLiteral("safetyMargin"), QStringLiteral("MARGIN") },
        { QStringLiteral("layout"), QStringLiteral("LAYOUT") },
        { QStringLiteral("background"), QStringLiteral("BACKGROUND") },
        { QStringLiteral("design"), QStringLiteral("DESIGN") } });
    const ZRPageTypeList pageTypes = description.pageTypes(count);
    for (int index = 0; index < pageTypes.size(); ++index) {
        const ZRPageType type = pageTypes.at(index);
        const ZRPageAlignment alignment = description.pageAlignment(pageTypes, index);
        const ZRPageContext context(type, alignment);
        const auto templateName = [&](ZRDefaultTemplateType kind) {
            return description.findDefaultTemplate(ZRDefaultTemplateKey(context, kind, index, -1));
        };
        table.addRow(
            { index, keys(type), keys(alignment), description.safetyMargin(type), templateName(ZRDefaultTemplateLayout),
                templateName(ZRDefaultTemplateBackground), templateName(ZRDefaultTemplateDesign) });
    }
    return table;
}

Table Descriptions::categories(const QList<ZRThematicCategory> &categories)
{
    Table table({ { QStringLiteral("key"), QStringLiteral("KEY") },
        { QStringLiteral("internalName"), QStringLiteral("INTERNAL NAME") },
        { QStringLiteral("visibleName"), QStringLiteral("VISIBLE NAME") },
        { QStringLiteral("color"), QStringLiteral("COLOUR") },
        { QStringLiteral("colorSortKey"), QStringLiteral("SORT KEY") } });
    for (const ZRThematicCategory &category : categories) {
        const QColor color = category.color();
        table.addRow({ category.hashValue(), category.internalName(), category.visibleName(),
            color.isValid() ? QVariant(color.name(QColor::HexRgb)) : QVariant(),
            color.isValid() ? QVariant(category.colorSortKey()) : QVariant() });
    }
    return table;
}

QList<ZRThematicCategory> Descriptions::knownCategories()
{
    ZRThematicCategoryList result { ZRThematicCategory::categoryAll(), ZRThematicCategory::recycleBin(),
        ZRThematicCategory::colorsCategory(), ZRThematicCategory::newInstalledCategory(),
        ZRThematicCategory::flatColor(), ZRThematicCategory::favourites(), ZRThematicCategory::suggestedByAI(),
        ZRThematicCategory::matchingToFlyleaf(), ZRThematicCategory::layoutLargeArea(),
        ZRThematicCategory::layoutFullArea(), ZRThematicCategory::layoutTop(), ZRThematicCategory::layoutCentered(),
        ZRThematicCategory::layoutWideMargin(), ZRThematicCategory::layoutQuadratic(),
        ZRThematicCategory::layoutMiddle(), ZRThematicCategory::layoutElegant(), ZRThematicCategory::layoutClassic(),
        ZRThematicCategory::userLayouts(), ZRThematicCategory::userCliparts(), ZRThematicCategory::userMaskFrames(),
        ZRThematicCategory::userMask(), ZRThematicCategory::userBookStyles(), ZRThematicCategory::gold(),
        ZRThematicCategory::roseGold(), ZRThematicCategory::silver(), ZRThematicCategory::silverInk(),
        ZRThematicCategory::emboss(), ZRThematicCategory::fitsToSpotColor(), ZRThematicCategory::category0(),
        ZRThematicCategory::category1(), ZRThematicCategory::category2(), ZRThematicCategory::fitsToStyleV2Category(),
        ZRThematicCategory::linnenCapable(), ZRThematicCategory::pseudoCategoryInverted(),
        ZRThematicCategory::multiColor(), ZRThematicCategory::frames(), ZRThematicCategory::passpartouts() };

    QStringList colorNames = ZRThematicCategory::readColorsXML().keys();
    colorNames.sort();
    ZRThematicCategoryList colors;
    for (const QString &name : std::as_const(colorNames)) {
        const ZRThematicCategory category(name);
        if (!result.contains(category) && !colors.contains(category))
            colors.append(category);
    }
    colors.sortByColor();
    result.append(colors);
    return result;
}
