#ifndef ZRPRODUCTS_SCHEMA_H
#define ZRPRODUCTS_SCHEMA_H

#include <QString>

/**
 * The XML Schema of product description files, the one installed with the library
 * (schema/ZRProductDescription.xsd, embedded when the program is built).
 */
QString productDescriptionSchema();

#endif
