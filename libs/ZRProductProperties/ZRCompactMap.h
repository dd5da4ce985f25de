#ifndef ZRCOMPACTMAP_H
#define ZRCOMPACTMAP_H

#include <QList>

#include <algorithm>
#include <utility>

/**
 * A map for a handful of entries, held as one array sorted by key. A QHash reserves room for dozens
 * of entries with its first one; a description keeps many tables of one to five entries, and this
 * holds exactly those. Lookups search the sorted keys, which for a handful is as fast as hashing.
 */
template<typename Key, typename T> class ZRCompactMap
{
public:
    /** Stores @p value under @p key, replacing what was stored there. */
    void insert(const Key &key, const T &value)
    {
        const auto it = lowerBound(m_entries.begin(), m_entries.end(), key);
        if (it != m_entries.end() && it->first == key)
            it->second = value;
        else
            m_entries.insert(it, { key, value });
    }

    T value(const Key &key, const T &defaultValue = T()) const
    {
        const auto it = lowerBound(m_entries.cbegin(), m_entries.cend(), key);
        return it != m_entries.cend() && it->first == key ? it->second : defaultValue;
    }

    /** Frees the room kept for entries that were never added; called once a table is filled. */
    void squeeze() { m_entries.squeeze(); }

    bool operator==(const ZRCompactMap &other) const { return m_entries == other.m_entries; }
    bool operator!=(const ZRCompactMap &other) const { return m_entries != other.m_entries; }

private:
    template<typename Iterator> static Iterator lowerBound(Iterator begin, Iterator end, const Key &key)
    {
        return std::lower_bound(
            begin, end, key, [](const std::pair<Key, T> &entry, const Key &k) { return entry.first < k; });
    }

    QList<std::pair<Key, T>> m_entries;
};

#endif
