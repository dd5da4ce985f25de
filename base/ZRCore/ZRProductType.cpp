#include "ZRProductType.h"

#include <QDebug>
#include <QHashFunctions>

ZRProductType::ZRProductType(const QString &name)
    : m_name(name)
    , m_hash(name.isEmpty() ? 0 : qHash(name))
{ }

ZRProductType::~ZRProductType() = default;

QDebug operator<<(QDebug debug, const ZRProductType &type)
{
    QDebugStateSaver saver(debug);
    debug.nospace() << "ZRProductType(" << type.name() << ')';
    return debug;
}
