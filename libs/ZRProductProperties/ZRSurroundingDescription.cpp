#include "ZRSurroundingDescription.h"

#include "ZRPageContext.h"
#include "ZRSurroundingKey.h"
#include "ZRXMLDiagnostics.h"
#include "ZRXMLParser.h"
#include "ZRXMLStringPool.h"
#include "ZRXMLVocabulary.h"

#include <QDomElement>
#include <QDomNamedNodeMap>
#include <QHashFunctions>
#include <QStringList>

#include <algorithm>
#include <limits>

namespace {
// A frame is printed on every page, whatever the description says.
constexpr auto framePageTypes = ZRPageTypeEnum(0xF03F9);
constexpr auto frameAlignments = ZRPageAlignmentEnum(0x7F);

const ZRXMLVocabulary vocabulary(QStringLiteral("surrounding"),
    { QStringLiteral("type"), QStringLiteral("pageType"), QStringLiteral("alignment"), QStringLiteral("pageNr"),
        QStringLiteral("paintOnTop"), QStringLiteral("canBeHiddenByUser"), QStringLiteral("hideGrafikInPreview"),
        QStringLiteral("image"), QStringLiteral("imageSpotColor"), QStringLiteral("spotColor"),
        QStringLiteral("spotColorMask"), QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("width"),
        QStringLiteral("height"), QStringLiteral("hasbindingshade"), QStringLiteral("hasspinefold"),
        QStringLiteral("spinefoldwidth"), QStringLiteral("variant"), QStringLiteral("tileHeight"),
        QStringLiteral("tileWidth") },
    { QStringLiteral("hole"), QStringLiteral("spirals") });

/** Reports the parts of the enumerated attributes and of the mask that decode to nothing. */
void checkValues(const QDomNamedNodeMap &attributes)
{
    ZRXMLDiagnostics::checkKeys<ZRSurroundingType>(
        attributes.namedItem(QStringLiteral("type")), QStringLiteral("surrounding type"));
    ZRXMLDiagnostics::checkKeys<ZRPageType>(
        attributes.namedItem(QStringLiteral("pageType")), QStringLiteral("page type"));
    ZRXMLDiagnostics::checkKeys<ZRPageAlignment>(
        attributes.namedItem(QStringLiteral("alignment")), QStringLiteral("alignment"));
    ZRXMLDiagnostics::checkKeys<ZRSpotColor>(
        attributes.namedItem(QStringLiteral("spotColor")), QStringLiteral("spot colour"));

    const QDomNode mask = attributes.namedItem(QStringLiteral("spotColorMask"));
    ZRSurroundingDescription::parseMask(mask.nodeValue(), mask);
}
} // namespace

ZRSurroundingDescription::ZRSurroundingDescription() = default;

ZRSurroundingDescription::ZRSurroundingDescription(const ZRProductType &productType, const QDomElement &element)
    : ZRSurroundingDescription(productType, element, element.attributes())
{ }

ZRSurroundingDescription::ZRSurroundingDescription(
    const ZRProductType &productType, const QDomElement &element, const QDomNamedNodeMap &attributes)
    : m_productType(productType)
    , m_surroundingType(ZRXMLParser::attribute(attributes, QStringLiteral("type"), QStringLiteral("book"), true))
    , m_pageTypes(ZRXMLParser::attribute(attributes, QStringLiteral("pageType"), QStringLiteral("all"), true))
    , m_alignments(ZRXMLParser::attribute(
          attributes, QStringLiteral("alignment"), QStringLiteral("left,right,top,bottom,center,middle"), true))
    , m_pageNr(ZRXMLParser::intAttribute(attributes, QStringLiteral("pageNr"), -1))
    , m_paintOnTop(ZRXMLParser::boolAttribute(attributes, QStringLiteral("paintOnTop"), true))
    , m_canBeHiddenByUser(ZRXMLParser::boolAttribute(attributes, QStringLiteral("canBeHiddenByUser"), false))
    , m_hideGrafikInPreview(ZRXMLParser::boolAttribute(attributes, QStringLiteral("hideGrafikInPreview"), false))
    , m_imageResource(
          ZRXMLStringPool::share(ZRXMLParser::attribute(attributes, QStringLiteral("image"), QString(), true)))
    , m_imageResourceSpotColor(
          ZRXMLStringPool::share(ZRXMLParser::attribute(attributes, QStringLiteral("imageSpotColor"), QString(), true)))
    , m_spotColor(ZRXMLParser::attribute(attributes, QStringLiteral("spotColor"), QString(), true))
    , m_spotColorMask(parseMask(ZRXMLParser::attribute(attributes, QStringLiteral("spotColorMask"), QString(), true)))
    , m_editableArea(ZRXMLParser::readRect(attributes))
    , m_hasBindingShade(ZRXMLParser::boolAttribute(attributes, QStringLiteral("hasbindingshade"), false))
    , m_hasSpineFold(ZRXMLParser::boolAttribute(attributes, QStringLiteral("hasspinefold"), false))
    , m_spineFoldWidth(ZRXMLParser::intAttribute(attributes, QStringLiteral("spinefoldwidth"), 0))
    , m_calendarHoleConfig(element.firstChildElement(QStringLiteral("hole")))
    , m_spiralConfig(element.firstChildElement(QStringLiteral("spirals")))
    , m_variant(ZRXMLStringPool::shareRecord<ZRArticleVariants>(
          ZRXMLParser::attribute(attributes, QStringLiteral("variant"), QString(), true),
          [](const QString &text) { return ZRArticleVariants(text); }))
    , m_tileSize(ZRXMLParser::intAttribute(attributes, QStringLiteral("tileWidth"), -1),
          ZRXMLParser::intAttribute(attributes, QStringLiteral("tileHeight"), -1))
{
    vocabulary.check(element);
    if (ZRXMLDiagnostics::isActive())
        checkValues(attributes);
    if (m_surroundingType == ZRSurroundingTypeFrame) {
        m_pageTypes = ZRPageType(framePageTypes);
        m_alignments = ZRPageAlignment(frameAlignments);
        m_pageNr = -1;
    }
}

ZRSurroundingDescription::ZRSurroundingDescription(const ZRSurroundingDescription &other) = default;
ZRSurroundingDescription::ZRSurroundingDescription(ZRSurroundingDescription &&other) = default;
ZRSurroundingDescription::~ZRSurroundingDescription() = default;
ZRSurroundingDescription &ZRSurroundingDescription::operator=(const ZRSurroundingDescription &other) = default;
ZRSurroundingDescription &ZRSurroundingDescription::operator=(ZRSurroundingDescription &&other) = default;

bool ZRSurroundingDescription::isValid() const
{
    return m_surroundingType.value() != 0;
}

bool ZRSurroundingDescription::hasSpineFold() const
{
    return m_hasSpineFold && m_spineFoldWidth > 0;
}

int ZRSurroundingDescription::spineFoldWithSafetyMargins() const
{
    // Held to the range of int, so that a huge fold width in a file gives the largest int, not an overflow.
    return int(std::clamp(
        m_spineFoldWidth * 1.2, double(std::numeric_limits<int>::min()), double(std::numeric_limits<int>::max())));
}

size_t ZRSurroundingDescription::hashValue() const
{
    return size_t(uint(m_surroundingType.value())) ^ size_t(uint(m_pageTypes.value()))
        ^ size_t(uint(m_alignments.value())) ^ qHash(m_pageNr, 0);
}

bool ZRSurroundingDescription::isSuitable(const ZRSurroundingKey &key) const
{
    const ZRSurroundingKey ownKey(ZRPageContext(m_pageTypes, m_alignments), m_pageNr, m_variant);
    return ownKey.isOkayFor(key);
}

QList<QRect> ZRSurroundingDescription::parseMask(const QString &text, const QDomNode &node)
{
    const bool reporting = ZRXMLDiagnostics::isActive() && !node.isNull();
    QList<QRect> result;
    const QList<QStringView> parts = QStringView(text).split(u';', Qt::SkipEmptyParts);
    for (const QStringView part : parts) {
        const QList<QStringView> fields = part.split(u' ', Qt::SkipEmptyParts);
        if (fields.size() != 4) {
            if (reporting) {
                ZRXMLDiagnostics::report(ZRXMLFinding::Warning, QStringLiteral("not-a-rectangle"),
                    QStringLiteral("'%1' in the mask is not four numbers; it and the rest of the mask are ignored")
                        .arg(part.toString()),
                    node, QStringLiteral("left top right bottom, rectangles separated by ';'"));
            }
            break;
        }
        int corners[4];
        for (int i = 0; i < 4; ++i) {
            bool ok = false;
            corners[i] = fields.at(i).toInt(&ok);
            if (!ok && reporting) {
                ZRXMLDiagnostics::report(ZRXMLFinding::Warning, QStringLiteral("not-a-number"),
                    QStringLiteral("'%1' in the mask is not a whole number; 0 is used").arg(fields.at(i).toString()),
                    node);
            }
        }
        result.append(QRect(QPoint(corners[0], corners[1]), QPoint(corners[2], corners[3])));
    }
    return result;
}

bool ZRSurroundingDescription::operator==(const ZRSurroundingDescription &other) const
{
    return m_productType == other.m_productType && m_surroundingType == other.m_surroundingType
        && m_pageTypes == other.m_pageTypes && m_alignments == other.m_alignments && m_pageNr == other.m_pageNr
        && m_paintOnTop == other.m_paintOnTop && m_canBeHiddenByUser == other.m_canBeHiddenByUser
        && m_hideGrafikInPreview == other.m_hideGrafikInPreview && m_editableArea == other.m_editableArea
        && m_hasBindingShade == other.m_hasBindingShade && m_hasSpineFold == other.m_hasSpineFold
        && m_spineFoldWidth == other.m_spineFoldWidth && m_calendarHoleConfig == other.m_calendarHoleConfig
        && m_spiralConfig == other.m_spiralConfig && m_variant == other.m_variant && m_tileSize == other.m_tileSize
        && m_spotColor == other.m_spotColor && m_spotColorMask == other.m_spotColorMask
        && m_imageResource == other.m_imageResource && m_imageResourceSpotColor == other.m_imageResourceSpotColor;
}
