#ifndef ZRBARCODEDEFINITIONLIST_H
#define ZRBARCODEDEFINITIONLIST_H

#include "ZRBarcodeDefinition.h"
#include "zrproductbase_export.h"

#include <QDomElement>
#include <QList>

/** The barcodes that production prints on a product. */
class ZRPRODUCTBASE_EXPORT ZRBarcodeDefinitionList : public QList<ZRBarcodeDefinition>
{
public:
    ZRBarcodeDefinitionList() = default;

    /**
     * Reads the "barcode" children of a "barcodes" element: attribute "type" (the symbology,
     * default "ean13") and the area "x", "y", "width", "height" in @p unit. A null element gives
     * an empty list.
     */
    static ZRBarcodeDefinitionList createFromProductsXML(const QDomElement &barcodes, const ZRDistanceUnit &unit);
};

#endif
