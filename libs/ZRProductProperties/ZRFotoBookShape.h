#ifndef ZRFOTOBOOKSHAPE_H
#define ZRFOTOBOOKSHAPE_H

#include "ZREnumWrapper.h"
#include "ZROrientation.h"
#include "ZRSpaceMagnitude.h"
#include "zrproductproperties_export.h"

/**
 * Formats of a photo book. Keys: "UNKONWN" 0, "mini" 1, "tiny" 2 (shown as "Kids"), "a5-landscape" 4,
 * "a5-quadratic" 8, "a4" 16, "a4-landscape" 32, "quadratic" 64, "xl" 128, "xxl" 256, "xxl-landscape" 512.
 */
enum ZRFotoBookShapeEnum : int
{
    ZRFotoBookShapeUnknown = 0,
    ZRFotoBookShapeMini = 1,
    ZRFotoBookShapeTiny = 2,
    ZRFotoBookShapeA5Landscape = 4,
    ZRFotoBookShapeA5Quadratic = 8,
    ZRFotoBookShapeA4 = 16,
    ZRFotoBookShapeA4Landscape = 32,
    ZRFotoBookShapeQuadratic = 64,
    ZRFotoBookShapeXL = 128,
    ZRFotoBookShapeXXL = 256,
    ZRFotoBookShapeXXLLandscape = 512,
};

extern template class ZRPRODUCTPROPERTIES_EXPORT ZREnumWrapper<ZRFotoBookShapeEnum>;

/** The format of a photo book with the texts the user sees for it, translated in the context "ZRFotoBookShape". */
class ZRPRODUCTPROPERTIES_EXPORT ZRFotoBookShape : public ZREnumWrapper<ZRFotoBookShapeEnum>
{
public:
    ZRFotoBookShape(ZRFotoBookShapeEnum value = ZRFotoBookShapeUnknown);
    explicit ZRFotoBookShape(const QString &keys);

    /** The shape of an article's size class and orientation; 0 where the two do not fit together. */
    static ZRFotoBookShape createFromArticleProperties(
        const ZRSpaceMagnitude &magnitude, const ZROrientation &orientation);

    /** The size hint, such as "(ca. 15 x 11 cm)"; empty for 0 and combinations. */
    QString size() const;
    /** The format name, such as "Groß Panorama"; empty for 0 and combinations. */
    QString sizeDescription() const;
    /** The product word, the format name and the size hint joined by single blanks (empty parts kept). */
    QString completeDescription() const;

    void initSizeHash() const;
    void initSizeDescriptionHash() const;

protected:
    void fillTable(Table *table) const override;

private:
    mutable QHash<ZRFotoBookShapeEnum, QString> m_sizes;
    mutable QHash<ZRFotoBookShapeEnum, QString> m_sizeDescriptions;
};

#endif
