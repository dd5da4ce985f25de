#include "ZRBarcodeDefinitionList.h"

#include "ZRXMLParser.h"
#include "ZRXMLVocabulary.h"

namespace {
const ZRXMLVocabulary vocabulary(QStringLiteral("barcodes"), {}, { QStringLiteral("barcode") });
const ZRXMLVocabulary barcodeVocabulary(QStringLiteral("barcode"),
    { QStringLiteral("type"), QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("width"),
        QStringLiteral("height") },
    {});
} // namespace

ZRBarcodeDefinitionList ZRBarcodeDefinitionList::createFromProductsXML(
    const QDomElement &barcodes, const ZRDistanceUnit &unit)
{
    ZRBarcodeDefinitionList result;
    vocabulary.check(barcodes);
    for (QDomElement barcode = barcodes.firstChildElement(barcodeVocabulary.element()); !barcode.isNull();
         barcode = barcode.nextSiblingElement(barcodeVocabulary.element())) {
        barcodeVocabulary.check(barcode);
        result.append(
            ZRBarcodeDefinition(ZRXMLParser::attribute(barcode, QStringLiteral("type"), QStringLiteral("ean13")),
                ZRXMLParser::readRectF(barcode.attributes()), unit));
    }
    return result;
}
