#ifndef ZRMARGINS_H
#define ZRMARGINS_H

#include "zrcore_export.h"

/** Four integer margins. */
class ZRCORE_EXPORT ZRMargins
{
public:
    ZRMargins() = default;
    ZRMargins(int left, int top, int right, int bottom);
    virtual ~ZRMargins();
    ZRMargins(const ZRMargins &) = default;
    ZRMargins &operator=(const ZRMargins &) = default;

    int left() const { return m_left; }
    int top() const { return m_top; }
    int right() const { return m_right; }
    int bottom() const { return m_bottom; }
    bool operator==(const ZRMargins &other) const;
    bool operator!=(const ZRMargins &other) const { return !(*this == other); }

private:
    int m_left = 0;
    int m_top = 0;
    int m_right = 0;
    int m_bottom = 0;
};

#endif
