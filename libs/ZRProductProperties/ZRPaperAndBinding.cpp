#include "ZRPaperAndBinding.h"

ZRPaperAndBinding::ZRPaperAndBinding() = default;

ZRPaperAndBinding::ZRPaperAndBinding(const ZRPaperType &paperType, const ZRPageBinding &binding)
    : m_paperType(paperType)
    , m_binding(binding)
{ }

ZRPaperAndBinding::ZRPaperAndBinding(const ZRPaperAndBinding &other) = default;
ZRPaperAndBinding::ZRPaperAndBinding(ZRPaperAndBinding &&other) noexcept = default;
ZRPaperAndBinding::~ZRPaperAndBinding() = default;
ZRPaperAndBinding &ZRPaperAndBinding::operator=(const ZRPaperAndBinding &other) = default;
ZRPaperAndBinding &ZRPaperAndBinding::operator=(ZRPaperAndBinding &&other) noexcept = default;

bool ZRPaperAndBinding::isIndigoLayFlat() const
{
    return m_paperType.intersects(ZRPaperTypeEnum(0xC3)) && m_binding.intersects(ZRPageBindingLayflat);
}

QString ZRPaperAndBinding::describe() const
{
    return QStringLiteral("%1 / %2").arg(m_binding.humanReadableName(), m_paperType.humanReadableName());
}

bool ZRPaperAndBinding::operator==(const ZRPaperAndBinding &other) const
{
    return m_paperType == other.m_paperType && m_binding == other.m_binding;
}
