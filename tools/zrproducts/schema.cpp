#include "schema.h"

#include <QFile>

QString productDescriptionSchema()
{
    QFile file(QStringLiteral(":/zrproducts/ZRProductDescription.xsd"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}
