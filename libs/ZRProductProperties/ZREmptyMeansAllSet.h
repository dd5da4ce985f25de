#ifndef ZREMPTYMEANSALLSET_H
#define ZREMPTYMEANSALLSET_H

#include <QSet>

/**
 * A set of enumerated values in which an empty set stands for every value. Queries that apply the
 * rule say so; sharesRealKeysWith() deliberately does not.
 *
 * A new set already owns its storage, so that adding to it never detaches from a shared empty set.
 */
template<typename T> class ZREmptyMeansAllSet : public QSet<T>
{
public:
    ZREmptyMeansAllSet() { this->reserve(1); }
    ZREmptyMeansAllSet(std::initializer_list<T> values)
        : QSet<T>(values)
    {
        this->reserve(1);
    }

    /** True when both sets name values explicitly and at least one value is in both; empty sets share nothing. */
    bool sharesRealKeysWith(const ZREmptyMeansAllSet &other) const
    {
        if (this->isEmpty() || other.capacity() == 0)
            return false;
        for (const T &value : other) {
            if (this->contains(value))
                return true;
        }
        return false;
    }

    /** The single-flag values contained in @p value; empty for 0 and for values with the sign bit set. */
    static ZREmptyMeansAllSet decompose(const T &value)
    {
        ZREmptyMeansAllSet result;
        const auto bits = value.enumToStringTable()->splitToBits(value.value());
        for (const auto bit : bits)
            result.insert(T(bit));
        return result;
    }
};

#endif
