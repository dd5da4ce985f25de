#ifndef ZRDATERANGE_H
#define ZRDATERANGE_H

#include "zrcore_export.h"

#include <QDate>

/** A range of dates from a first to a last day. */
class ZRCORE_EXPORT ZRDateRange
{
public:
    ZRDateRange() = default;
    ZRDateRange(const QDate &from, const QDate &to);
    virtual ~ZRDateRange();
    ZRDateRange(const ZRDateRange &) = default;
    ZRDateRange &operator=(const ZRDateRange &) = default;

    QDate from() const { return m_from; }
    QDate to() const { return m_to; }
    bool contains(const QDate &date) const { return date >= m_from && date <= m_to; }
    bool operator==(const ZRDateRange &other) const { return m_from == other.m_from && m_to == other.m_to; }
    bool operator!=(const ZRDateRange &other) const { return !(*this == other); }

private:
    QDate m_from;
    QDate m_to;
};

#endif
