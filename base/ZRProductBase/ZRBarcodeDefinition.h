#ifndef ZRBARCODEDEFINITION_H
#define ZRBARCODEDEFINITION_H

#include "ZRDistanceUnit.h"
#include "zrproductbase_export.h"

#include <QImage>
#include <QRectF>
#include <QString>

/** Where production prints a barcode: its symbology, its area on the page and an optional pictogram. */
class ZRPRODUCTBASE_EXPORT ZRBarcodeDefinition
{
public:
    ZRBarcodeDefinition() = default;
    ZRBarcodeDefinition(
        const QString &symbology, const QRectF &area, const ZRDistanceUnit &unit, const QImage &image = QImage());
    virtual ~ZRBarcodeDefinition();
    ZRBarcodeDefinition(const ZRBarcodeDefinition &) = default;
    ZRBarcodeDefinition &operator=(const ZRBarcodeDefinition &) = default;

    QString symbology() const { return m_symbology; }
    QRectF area() const { return m_area; }
    ZRDistanceUnit unit() const { return m_unit; }
    QImage image() const { return m_image; }
    bool operator==(const ZRBarcodeDefinition &other) const;

private:
    QString m_symbology;
    QRectF m_area;
    ZRDistanceUnit m_unit;
    QImage m_image;
};

#endif
