#include "ZRMargins.h"

ZRMargins::ZRMargins(int left, int top, int right, int bottom)
    : m_left(left)
    , m_top(top)
    , m_right(right)
    , m_bottom(bottom)
{ }

ZRMargins::~ZRMargins() = default;

bool ZRMargins::operator==(const ZRMargins &other) const
{
    return m_left == other.m_left && m_top == other.m_top && m_right == other.m_right && m_bottom == other.m_bottom;
}
