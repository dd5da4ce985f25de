#include "ZRBarcodeDefinitionList.h"

#include "ZRXMLParser.h"

ZRBarcodeDefinitionList ZRBarcodeDefinitionList::createFromProductsXML(const QDomElement &barcodes,
                                                                       const ZRDistanceUnit &unit)
{
    ZRBarcodeDefinitionList result;
    for (QDomElement barcode = barcodes.firstChildElement(QStringLiteral("barcode")); !barcode.isNull();
         barcode = barcode.nextSiblingElement(QStringLiteral("barcode"))) {
        result.append(ZRBarcodeDefinition(
            ZRXMLParser::attribute(barcode, QStringLiteral("type"), QStringLiteral("ean13")),
            ZRXMLParser::readRectF(barcode.attributes()), unit));
    }
    return result;
}
