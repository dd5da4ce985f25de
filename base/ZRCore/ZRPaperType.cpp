#include "ZRPaperType.h"

#include <QCoreApplication>

template class ZREnumWrapper<ZRPaperTypeEnum>;

ZRPaperType::ZRPaperType(ZRPaperTypeEnum value)
    : ZREnumWrapper(value)
{ }

ZRPaperType::ZRPaperType(const QString &keys)
{
    m_value = decoded(keys);
}

void ZRPaperType::fillTable(Table *table) const
{
    table->insert({
        { "photo_matt", ZRPaperTypePhotoMatt },
        { "photo_glossy", ZRPaperTypePhotoGlossy },
        { "digital_matt", ZRPaperTypeDigitalMatt },
        { "digital_glossy", ZRPaperTypeDigitalGlossy },
        { "recycled", ZRPaperTypeRecycled },
        { "premium_matt", ZRPaperTypePremiumMatt },
        { "premium_glossy", ZRPaperTypePremiumGlossy },
    });
}

QString ZRPaperType::humanReadableName() const
{
    switch (m_value) {
    case ZRPaperTypePhotoMatt:
        return QCoreApplication::translate("ZRPaperType", "Fotopapier matt");
    case ZRPaperTypePhotoGlossy:
        return QCoreApplication::translate("ZRPaperType", "Fotopapier glänzend");
    case ZRPaperTypeDigitalMatt:
        return QCoreApplication::translate("ZRPaperType", "Digitaldruck matt");
    case ZRPaperTypeDigitalGlossy:
        return QCoreApplication::translate("ZRPaperType", "Digitaldruck glänzend");
    case ZRPaperTypeRecycled:
        return QCoreApplication::translate("ZRPaperType", "Recyclingpapier");
    case ZRPaperTypePremiumMatt:
        return QCoreApplication::translate("ZRPaperType", "Premium-Fotopapier matt");
    case ZRPaperTypePremiumGlossy:
        return QCoreApplication::translate("ZRPaperType", "Premium-Fotopapier glänzend");
    }
    return QString();
}
