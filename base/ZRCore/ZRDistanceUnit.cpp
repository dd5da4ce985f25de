#include "ZRDistanceUnit.h"

#include <QCoreApplication>

template class ZREnumWrapper<ZRDistanceUnitEnum>;

ZRDistanceUnit::ZRDistanceUnit(ZRDistanceUnitEnum value)
    : ZREnumWrapper(value)
{ }

ZRDistanceUnit::ZRDistanceUnit(const QString &keys)
{
    m_value = decoded(keys);
}

void ZRDistanceUnit::fillTable(Table *table) const
{
    table->insert({
        { "tenth_mm", ZRDistanceUnitTenthMM },
        { "mm", ZRDistanceUnitMM },
        { "inch", ZRDistanceUnitInch },
        { "cm", ZRDistanceUnitCM },
        { "pt", ZRDistanceUnitPoint },
    });
}

QString ZRDistanceUnit::humanReadableName() const
{
    switch (m_value) {
    case ZRDistanceUnitTenthMM:
        return QCoreApplication::translate("ZRDistanceUnit", "1/10 mm");
    case ZRDistanceUnitMM:
        return QCoreApplication::translate("ZRDistanceUnit", "mm");
    case ZRDistanceUnitInch:
        return QCoreApplication::translate("ZRDistanceUnit", "Zoll");
    case ZRDistanceUnitCM:
        return QCoreApplication::translate("ZRDistanceUnit", "cm");
    case ZRDistanceUnitPoint:
        return QCoreApplication::translate("ZRDistanceUnit", "pt");
    }
    return QString();
}
