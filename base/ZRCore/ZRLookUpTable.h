#ifndef ZRLOOKUPTABLE_H
#define ZRLOOKUPTABLE_H

#include <QHash>

/** A table from keys to values that answers a fixed default value for a key it does not hold. */
template<typename K, typename V> class ZRLookUpTable
{
public:
    explicit ZRLookUpTable(const V &defaultValue = V())
        : m_defaultValue(defaultValue)
    { }
    virtual ~ZRLookUpTable() = default;

    void insert(const K &key, const V &value) { m_table.insert(key, value); }
    V value(const K &key) const { return m_table.value(key, m_defaultValue); }
    bool contains(const K &key) const { return m_table.contains(key); }
    V defaultValue() const { return m_defaultValue; }
    int size() const { return int(m_table.size()); }
    bool isEmpty() const { return m_table.isEmpty(); }

private:
    QHash<K, V> m_table;
    V m_defaultValue;
};

#endif
