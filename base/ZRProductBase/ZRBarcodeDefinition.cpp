#include "ZRBarcodeDefinition.h"

ZRBarcodeDefinition::ZRBarcodeDefinition(
    const QString &symbology, const QRectF &area, const ZRDistanceUnit &unit, const QImage &image)
    : m_symbology(symbology)
    , m_area(area)
    , m_unit(unit)
    , m_image(image)
{ }

ZRBarcodeDefinition::~ZRBarcodeDefinition() = default;

bool ZRBarcodeDefinition::operator==(const ZRBarcodeDefinition &other) const
{
    return m_symbology == other.m_symbology && m_area == other.m_area && m_unit == other.m_unit
        && m_image == other.m_image;
}
