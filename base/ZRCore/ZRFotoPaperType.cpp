#include "ZRFotoPaperType.h"

#include <QCoreApplication>

template class ZREnumWrapper<ZRFotoPaperTypeEnum>;

ZRFotoPaperType::ZRFotoPaperType(ZRFotoPaperTypeEnum value)
    : ZREnumWrapper(value)
{ }

ZRFotoPaperType::ZRFotoPaperType(const QString &keys)
{
    m_value = decoded(keys);
}

void ZRFotoPaperType::fillTable(Table *table) const
{
    table->insert({
        { "matt", ZRFotoPaperTypeMatt },
        { "glossy", ZRFotoPaperTypeGlossy },
        { "silk", ZRFotoPaperTypeSilk },
        { "pearl", ZRFotoPaperTypePearl },
        { "fineart", ZRFotoPaperTypeFineArt },
    });
}

QString ZRFotoPaperType::humanReadableName() const
{
    switch (m_value) {
    case ZRFotoPaperTypeMatt:
        return QCoreApplication::translate("ZRFotoPaperType", "Matt");
    case ZRFotoPaperTypeGlossy:
        return QCoreApplication::translate("ZRFotoPaperType", "Glänzend");
    case ZRFotoPaperTypeSilk:
        return QCoreApplication::translate("ZRFotoPaperType", "Seidenraster");
    case ZRFotoPaperTypePearl:
        return QCoreApplication::translate("ZRFotoPaperType", "Perlmutt");
    case ZRFotoPaperTypeFineArt:
        return QCoreApplication::translate("ZRFotoPaperType", "Fine Art");
    }
    return QString();
}
