#include "ZRPageBinding.h"

#include <QCoreApplication>

template class ZREnumWrapper<ZRPageBindingEnum>;

ZRPageBinding::ZRPageBinding(ZRPageBindingEnum value)
    : ZREnumWrapper(value)
{ }

ZRPageBinding::ZRPageBinding(const QString &keys)
{
    m_value = decoded(keys);
}

void ZRPageBinding::fillTable(Table *table) const
{
    table->insert({
        { "glued", ZRPageBindingGlued },
        { "layflat", ZRPageBindingLayflat },
        { "stitched", ZRPageBindingStitched },
        { "spiral", ZRPageBindingSpiral },
        { "wire_o", ZRPageBindingWireO },
    });
}

QString ZRPageBinding::humanReadableName() const
{
    switch (m_value) {
    case ZRPageBindingGlued:
        return QCoreApplication::translate("ZRPageBinding", "Klebebindung");
    case ZRPageBindingLayflat:
        return QCoreApplication::translate("ZRPageBinding", "Layflat-Bindung");
    case ZRPageBindingStitched:
        return QCoreApplication::translate("ZRPageBinding", "Rückstichheftung");
    case ZRPageBindingSpiral:
        return QCoreApplication::translate("ZRPageBinding", "Spiralbindung");
    case ZRPageBindingWireO:
        return QCoreApplication::translate("ZRPageBinding", "Wire-O-Bindung");
    }
    return QString();
}
