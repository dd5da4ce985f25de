#ifndef ZRSURROUNDINGDESCRIPTION_H
#define ZRSURROUNDINGDESCRIPTION_H

#include "ZRArticleVariants.h"
#include "ZRCalendarHoleConfig.h"
#include "ZRPageAlignment.h"
#include "ZRPageType.h"
#include "ZRProductType.h"
#include "ZRSpiralConfig.h"
#include "ZRSpotColor.h"
#include "ZRSurroundingType.h"
#include "zrproductproperties_export.h"

#include <QDomNode>
#include <QList>
#include <QRect>
#include <QSize>
#include <QString>

class QDomElement;
class QDomNamedNodeMap;
class ZRSurroundingKey;

/**
 * A printed decoration around or over the pages of a product (book border, frame, calendar grid
 * with holes, spiral binding, tiled pattern) and the pages it is meant for.
 */
class ZRPRODUCTPROPERTIES_EXPORT ZRSurroundingDescription
{
public:
    /** An invalid description: no type, no pages, any page number, painted on top, tile size (-1, -1). */
    ZRSurroundingDescription();
    /** Reads a "surrounding" element of @p productType; see the constructor with an attribute map. */
    ZRSurroundingDescription(const ZRProductType &productType, const QDomElement &element);
    /**
     * Reads a "surrounding" element with its attributes @p attributes: "type" (default "book"),
     * "pageType" ("all"), "alignment" (all six), "pageNr" (-1), "paintOnTop" (true),
     * "canBeHiddenByUser", "hideGrafikInPreview", "hasbindingshade", "hasspinefold" (false),
     * "spinefoldwidth" (0), "image", "imageSpotColor", "spotColor", "spotColorMask", "variant"
     * (empty), "tileWidth" and "tileHeight" (-1), the editable area from the rectangle attributes,
     * and the "hole" and "spirals" children. Missing or malformed values take their defaults. A
     * FRAME always applies to every page: all page types, all alignments and any page number.
     */
    ZRSurroundingDescription(
        const ZRProductType &productType, const QDomElement &element, const QDomNamedNodeMap &attributes);
    ZRSurroundingDescription(const ZRSurroundingDescription &other);
    ZRSurroundingDescription(ZRSurroundingDescription &&other);
    virtual ~ZRSurroundingDescription();
    ZRSurroundingDescription &operator=(const ZRSurroundingDescription &other);
    ZRSurroundingDescription &operator=(ZRSurroundingDescription &&other);

    ZRProductType productType() const { return m_productType; }
    ZRSurroundingType surroundingType() const { return m_surroundingType; }
    ZRPageType pageTypes() const { return m_pageTypes; }
    ZRPageAlignment alignments() const { return m_alignments; }
    /** The one page index the surrounding is for; -1 for any page. */
    int pageNr() const { return m_pageNr; }
    bool paintOnTop() const { return m_paintOnTop; }
    bool canBeHiddenByUser() const { return m_canBeHiddenByUser; }
    bool hideGrafikInPreview() const { return m_hideGrafikInPreview; }
    QString imageResource() const { return m_imageResource; }
    QString imageResourceSpotColor() const { return m_imageResourceSpotColor; }
    ZRSpotColor spotColor() const { return m_spotColor; }
    QList<QRect> spotColorMask() const { return m_spotColorMask; }
    QRect editableArea() const { return m_editableArea; }
    bool hasBindingShade() const { return m_hasBindingShade; }
    int spineFoldWidth() const { return m_spineFoldWidth; }
    ZRCalendarHoleConfig calendarHoleConfig() const { return m_calendarHoleConfig; }
    ZRSpiralConfig spiralConfig() const { return m_spiralConfig; }
    ZRArticleVariants variant() const { return m_variant; }
    QSize tileSize() const { return m_tileSize; }

    /** False for a surrounding of type 0. */
    bool isValid() const;
    /** True when the spine fold is switched on and has a width above 0. */
    bool hasSpineFold() const;
    /** The spine fold width with 20 % added, truncated. */
    int spineFoldWithSafetyMargins() const;
    size_t hashValue() const;
    /** Whether the surrounding fits the page @p key; see ZRSurroundingKey::isOkayFor(). */
    bool isSuitable(const ZRSurroundingKey &key) const;

    /**
     * The rectangles of a mask text "l t r b;l t r b;...": corner coordinates, blank-separated,
     * parts separated by ';' (empty parts skipped). Reading stops at the first part without
     * exactly four fields; a field that is no number counts as 0. Both are reported to a diagnostics
     * collector on @p node, the attribute the text is from.
     */
    static QList<QRect> parseMask(const QString &text, const QDomNode &node = QDomNode());

    bool operator==(const ZRSurroundingDescription &other) const;
    bool operator!=(const ZRSurroundingDescription &other) const { return !(*this == other); }

private:
    ZRProductType m_productType;
    ZRSurroundingType m_surroundingType;
    ZRPageType m_pageTypes;
    ZRPageAlignment m_alignments;
    int m_pageNr = -1;
    bool m_paintOnTop = true;
    bool m_canBeHiddenByUser = false;
    bool m_hideGrafikInPreview = false;
    QString m_imageResource;
    QString m_imageResourceSpotColor;
    ZRSpotColor m_spotColor;
    QList<QRect> m_spotColorMask;
    QRect m_editableArea;
    bool m_hasBindingShade = false;
    bool m_hasSpineFold = false;
    int m_spineFoldWidth = 0;
    ZRCalendarHoleConfig m_calendarHoleConfig;
    ZRSpiralConfig m_spiralConfig;
    ZRArticleVariants m_variant;
    QSize m_tileSize { -1, -1 };
};

#endif
