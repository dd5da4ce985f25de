#ifndef ZRPRODUCTCLASSIFICATION_H
#define ZRPRODUCTCLASSIFICATION_H

#include "zrproductproperties_export.h"

#include "ZRDistanceUnit.h"
#include "ZRProductClassificationGroup.h"
#include "ZRProductType.h"

#include <QDomElement>
#include <QSize>
#include <QString>

/**
 * The material group and size of one wall-decor product type. Sizes are written "<width>x<height>"
 * in centimetres and in inches.
 */
class ZRPRODUCTPROPERTIES_EXPORT ZRProductClassification
{
public:
    /** An unclassified entry: invalid product type, default group, empty sizes. */
    ZRProductClassification();
    /**
     * Reads the product type from the attribute "name" of the product element @p e and group and
     * sizes from its first "classification" child. Missing parts stay empty; a null element gives
     * an unclassified entry. Characters of the group outside Latin-1 are lost.
     */
    explicit ZRProductClassification(const QDomElement &e);
    ZRProductClassification(const ZRProductClassification &other);
    ZRProductClassification(ZRProductClassification &&other) noexcept;
    virtual ~ZRProductClassification();
    ZRProductClassification &operator=(const ZRProductClassification &other);
    ZRProductClassification &operator=(ZRProductClassification &&other) noexcept;

    ZRProductClassificationGroup group() const { return m_group; }
    ZRProductType productType() const { return m_productType; }

    /** The size name in inches for the inch unit, in centimetres for every other unit. */
    QString sizeName(const ZRDistanceUnit &unit) const;
    /** The name shown to the user; the same as sizeName(). */
    QString visibleName(const ZRDistanceUnit &unit) const;
    /** The size name followed by a blank and the unit's display name, e.g. "60x40 cm". */
    QString sizeNameWithUnit(const ZRDistanceUnit &unit) const;
    /** The parsed size in inches for the inch unit, in centimetres otherwise; 0 for what is not a number. */
    QSize dimensions(ZRDistanceUnit unit) const;
    /** Width times height in centimetres. */
    int areaSize() const;
    /** The diagonal in centimetres. */
    double sizeDiagonal() const;

    bool operator==(const ZRProductClassification &other) const;
    bool operator!=(const ZRProductClassification &other) const { return !(*this == other); }

protected:
    /** Parses both size names into their sizes. */
    void calculateSize();

private:
    ZRProductClassificationGroup m_group;
    ZRProductType m_productType;
    QString m_sizeNameCm;
    QString m_sizeNameInch;
    QSize m_sizeCm;
    QSize m_sizeInch;
};

#endif
