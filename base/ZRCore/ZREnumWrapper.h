#ifndef ZRENUMWRAPPER_H
#define ZRENUMWRAPPER_H

#include "ZREnumToStringTable.h"

#include <QMutex>
#include <QMutexLocker>

#include <atomic>
#include <type_traits>

/**
 * True for enumerations declared with a fixed underlying type ("enum ZRFooEnum : int"): only
 * those can be list-initialised from their underlying type.
 */
template<typename E, typename = void> struct ZRHasFixedUnderlyingType : std::false_type
{
};
template<typename E>
struct ZRHasFixedUnderlyingType<E, std::void_t<decltype(E { std::underlying_type_t<E> {} })>> : std::true_type
{
};

/**
 * Base of every enumerated value class: one flag value of @p E with flag arithmetic, comparisons
 * and the process-wide key table of @p E, which each value class fills by overriding fillTable().
 *
 * enumToStringTable() keeps its table in a function-local static, so every instantiation must have
 * one home: the header of a value class declares
 * `extern template class EXPORT ZREnumWrapper<ZRFooEnum>;` and its source file instantiates it.
 */
template<typename E> class ZREnumWrapper
{
    // Values are flag sets of any bits, including the sign bit; an enumeration without a fixed
    // underlying type only has the values of its named flags, and holding any other is undefined.
    static_assert(ZRHasFixedUnderlyingType<E>::value, "declare the flag enumeration with a fixed underlying type");

public:
    using Enum = E;
    using Table = ZREnumToStringTable<E>;
    using Underlying = typename Table::Underlying;
    using Signed = typename Table::Signed;

    explicit ZREnumWrapper(E value = static_cast<E>(0))
        : m_value(value)
    { }
    ZREnumWrapper(const ZREnumWrapper &) = default;
    ZREnumWrapper &operator=(const ZREnumWrapper &) = default;
    virtual ~ZREnumWrapper() = default;

    virtual bool operator<(const ZREnumWrapper &other) const { return signedValue() < other.signedValue(); }
    virtual bool operator<=(const ZREnumWrapper &other) const { return signedValue() <= other.signedValue(); }
    virtual bool operator>(const ZREnumWrapper &other) const { return signedValue() > other.signedValue(); }
    virtual bool operator==(const ZREnumWrapper &other) const { return m_value == other.m_value; }
    virtual bool operator==(E other) const { return m_value == other; }
    virtual bool operator!=(const ZREnumWrapper &other) const { return m_value != other.m_value; }
    virtual bool operator!=(E other) const { return m_value != other; }
    virtual ZREnumWrapper &operator|=(const ZREnumWrapper &other) { return *this |= other.m_value; }
    virtual ZREnumWrapper &operator|=(E other)
    {
        m_value = static_cast<E>(raw(m_value) | raw(other));
        return *this;
    }
    virtual ZREnumWrapper &operator&=(const ZREnumWrapper &other) { return *this &= other.m_value; }
    virtual ZREnumWrapper &operator&=(E other)
    {
        m_value = static_cast<E>(raw(m_value) & raw(other));
        return *this;
    }
    virtual E operator&(const ZREnumWrapper &other) const { return static_cast<E>(raw(m_value) & raw(other.m_value)); }
    virtual E operator|(const ZREnumWrapper &other) const { return static_cast<E>(raw(m_value) | raw(other.m_value)); }
    virtual ZREnumWrapper &exclude(const ZREnumWrapper &other) { return exclude(other.m_value); }
    virtual ZREnumWrapper &exclude(E other)
    {
        m_value = static_cast<E>(raw(m_value) & ~raw(other));
        return *this;
    }
    /** Goes through the overridable expandTo(E), so a value class that widens differently does so here too. */
    virtual ZREnumWrapper &expandTo(const ZREnumWrapper &other) { return expandTo(other.m_value); }
    virtual ZREnumWrapper &expandTo(E other)
    {
        m_value = static_cast<E>(raw(m_value) | raw(other));
        return *this;
    }
    virtual ZREnumWrapper &reduceTo(E other)
    {
        m_value = static_cast<E>(raw(m_value) & raw(other));
        return *this;
    }
    virtual E reducedTo(E other) const { return static_cast<E>(raw(m_value) & raw(other)); }
    virtual bool isValid() const { return raw(m_value) != 0; }

    E value() const { return m_value; }
    /** True when this value and @p other share at least one flag. */
    bool intersects(E other) const { return (raw(m_value) & raw(other)) != 0; }

    /** The process-wide key table of E, built on first use. */
    const Table *enumToStringTable() const;
    /** The key registered for exactly this value, or the table's unknown text. */
    QString encode() const { return enumToStringTable()->keyOf(m_value); }
    /** The keys of the set flags joined by ", ". */
    QString encodeCSV() const { return enumToStringTable()->encodeCSV(m_value); }

protected:
    /** Registers the rows of E; every value class of E registers the same rows. */
    virtual void fillTable(Table *table) const = 0;
    /** Decodes comma-separated keys through this object's table (used by the value classes' text constructors). */
    E decoded(const QString &text) const { return enumToStringTable()->decodeCSV(text); }

    static constexpr Underlying raw(E value) { return static_cast<Underlying>(value); }
    Signed signedValue() const { return static_cast<Signed>(m_value); }

    E m_value;
};

template<typename E> const ZREnumToStringTable<E> *ZREnumWrapper<E>::enumToStringTable() const
{
    static std::atomic<Table *> myTable { nullptr };
    if (Table *published = myTable.load(std::memory_order_acquire))
        return published;
    static QMutex theMutex;
    QMutexLocker locker(&theMutex);
    Table *table = myTable.load(std::memory_order_relaxed);
    if (!table) {
        table = new Table;
        fillTable(table);
        myTable.store(table, std::memory_order_release);
    }
    return table;
}

/** Hash of any value class built on ZREnumWrapper, by its value. The seed has no default: a
 * one-argument form would make Qt's own seed adaptor ambiguous. */
template<typename W, std::enable_if_t<std::is_base_of_v<ZREnumWrapper<typename W::Enum>, W>, bool> = true>
inline size_t qHash(const W &wrapper, size_t seed) noexcept
{
    return qHash(static_cast<std::underlying_type_t<typename W::Enum>>(wrapper.value()), seed);
}

#endif
