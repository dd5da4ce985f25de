#include "ZRFotoBookShape.h"

#include <QCoreApplication>

template class ZREnumWrapper<ZRFotoBookShapeEnum>;

ZRFotoBookShape::ZRFotoBookShape(ZRFotoBookShapeEnum value)
    : ZREnumWrapper(value)
{ }

ZRFotoBookShape::ZRFotoBookShape(const QString &keys)
{
    m_value = decoded(keys);
}

void ZRFotoBookShape::fillTable(Table *table) const
{
    table->insert({
        { "UNKONWN", ZRFotoBookShapeUnknown },
        { "mini", ZRFotoBookShapeMini },
        { "tiny", ZRFotoBookShapeTiny },
        { "a5-landscape", ZRFotoBookShapeA5Landscape },
        { "a5-quadratic", ZRFotoBookShapeA5Quadratic },
        { "a4", ZRFotoBookShapeA4 },
        { "a4-landscape", ZRFotoBookShapeA4Landscape },
        { "quadratic", ZRFotoBookShapeQuadratic },
        { "xl", ZRFotoBookShapeXL },
        { "xxl", ZRFotoBookShapeXXL },
        { "xxl-landscape", ZRFotoBookShapeXXLLandscape },
    });
}

ZRFotoBookShape ZRFotoBookShape::createFromArticleProperties(
    const ZRSpaceMagnitude &magnitude, const ZROrientation &orientation)
{
    switch (magnitude.value()) {
    case ZRSpaceMagnitudeXS:
        return ZRFotoBookShapeMini;
    case ZRSpaceMagnitudeS:
        return ZRFotoBookShapeTiny;
    case ZRSpaceMagnitudeMSquare:
        return orientation.isQuadratic() ? ZRFotoBookShapeA5Quadratic : ZRFotoBookShapeUnknown;
    case ZRSpaceMagnitudeMLandscape:
        return orientation.isLandscape() ? ZRFotoBookShapeA5Landscape : ZRFotoBookShapeUnknown;
    case ZRSpaceMagnitudeLSquare:
        return orientation.isQuadratic() ? ZRFotoBookShapeQuadratic : ZRFotoBookShapeUnknown;
    case ZRSpaceMagnitudeL:
        if (orientation.isLandscape())
            return ZRFotoBookShapeA4Landscape;
        return orientation.isPortrait() ? ZRFotoBookShapeA4 : ZRFotoBookShapeUnknown;
    case ZRSpaceMagnitudeXLSquare:
        return orientation.isQuadratic() ? ZRFotoBookShapeXL : ZRFotoBookShapeUnknown;
    case ZRSpaceMagnitudeXXL:
        if (orientation.isLandscape())
            return ZRFotoBookShapeXXLLandscape;
        return orientation.isPortrait() ? ZRFotoBookShapeXXL : ZRFotoBookShapeUnknown;
    default:
        return ZRFotoBookShapeUnknown;
    }
}

void ZRFotoBookShape::initSizeHash() const
{
    m_sizes = {
        { ZRFotoBookShapeUnknown, QString() },
        { ZRFotoBookShapeMini, QCoreApplication::translate("ZRFotoBookShape", "(ca. 15 x 11 cm)") },
        { ZRFotoBookShapeTiny, QCoreApplication::translate("ZRFotoBookShape", "(ca. 14 x 14 cm)") },
        { ZRFotoBookShapeA5Landscape, QCoreApplication::translate("ZRFotoBookShape", "(ca. 19 x 15 cm)") },
        { ZRFotoBookShapeA5Quadratic, QCoreApplication::translate("ZRFotoBookShape", "(ca. 15 x 15 cm)") },
        { ZRFotoBookShapeA4, QCoreApplication::translate("ZRFotoBookShape", "(ca. 21 x 28 cm)") },
        { ZRFotoBookShapeA4Landscape, QCoreApplication::translate("ZRFotoBookShape", "(ca. 28 x 21 cm)") },
        { ZRFotoBookShapeQuadratic, QCoreApplication::translate("ZRFotoBookShape", "(ca. 21 x 21 cm)") },
        { ZRFotoBookShapeXL, QCoreApplication::translate("ZRFotoBookShape", "(ca. 30 x 30 cm)") },
        { ZRFotoBookShapeXXL, QCoreApplication::translate("ZRFotoBookShape", "(ca. 28 x 36 cm)") },
        { ZRFotoBookShapeXXLLandscape, QCoreApplication::translate("ZRFotoBookShape", "(ca. 38 x 29 cm)") },
    };
}

void ZRFotoBookShape::initSizeDescriptionHash() const
{
    m_sizeDescriptions = {
        { ZRFotoBookShapeUnknown, QString() },
        { ZRFotoBookShapeMini, QCoreApplication::translate("ZRFotoBookShape", "Mini") },
        { ZRFotoBookShapeTiny, QCoreApplication::translate("ZRFotoBookShape", "Kids") },
        { ZRFotoBookShapeA5Landscape, QCoreApplication::translate("ZRFotoBookShape", "Compact Panorama") },
        { ZRFotoBookShapeA5Quadratic, QCoreApplication::translate("ZRFotoBookShape", "Compact Quadratisch") },
        { ZRFotoBookShapeA4, QCoreApplication::translate("ZRFotoBookShape", "Groß") },
        { ZRFotoBookShapeA4Landscape, QCoreApplication::translate("ZRFotoBookShape", "Groß Panorama") },
        { ZRFotoBookShapeQuadratic, QCoreApplication::translate("ZRFotoBookShape", "Quadratisch") },
        { ZRFotoBookShapeXL, QCoreApplication::translate("ZRFotoBookShape", "XL") },
        { ZRFotoBookShapeXXL, QCoreApplication::translate("ZRFotoBookShape", "XXL") },
        { ZRFotoBookShapeXXLLandscape, QCoreApplication::translate("ZRFotoBookShape", "XXL Panorama") },
    };
}

QString ZRFotoBookShape::size() const
{
    if (m_sizes.isEmpty())
        initSizeHash();
    return m_sizes.value(m_value);
}

QString ZRFotoBookShape::sizeDescription() const
{
    if (m_sizeDescriptions.isEmpty())
        initSizeDescriptionHash();
    return m_sizeDescriptions.value(m_value);
}

QString ZRFotoBookShape::completeDescription() const
{
    static const QString prefix = QCoreApplication::translate("ZRFotoBookShape", "ZERA FOTOBUCH");
    return QStringLiteral("%1 %2 %3").arg(prefix, sizeDescription(), size());
}
