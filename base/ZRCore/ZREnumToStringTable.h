#ifndef ZRENUMTOSTRINGTABLE_H
#define ZRENUMTOSTRINGTABLE_H

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

#include <initializer_list>
#include <type_traits>
#include <utility>

/** Hash of a plain enumeration by its underlying integer, so that enumerations can key QHash and QSet. */
template<typename E, std::enable_if_t<std::is_enum_v<E>, bool> = true>
inline size_t qHash(E value, size_t seed) noexcept
{
    return qHash(static_cast<std::underlying_type_t<E>>(value), seed);
}

/**
 * Two-way dictionary between the text keys of one flag enumeration and its values.
 *
 * Keys are matched without regard to case; the first key registered for a value is the one written
 * out. Values are flag sets: decoding ORs the values of a comma-separated key list, encoding lists
 * the keys of the set bits, lowest bit first.
 */
template<typename E> class ZREnumToStringTable
{
public:
    using Underlying = std::underlying_type_t<E>;
    /** Values are compared as signed integers: a value with the top bit set counts as below 1. */
    using Signed = std::make_signed_t<Underlying>;
    using Unsigned = std::make_unsigned_t<Underlying>;
    static constexpr int bitCount = int(sizeof(E) * 8);

    /** Registers one row; a later row with the same lower-case key replaces the value, never the output key. */
    void insert(const QString &key, E value)
    {
        const QString lowerKey = key.toLower();
        if (!m_stringToValue.contains(lowerKey))
            m_keys.append(key);
        m_stringToValue.insert(lowerKey, value);
        if (!m_valueToString.contains(value))
            m_valueToString.insert(value, key);
    }

    /** Registers rows in order; see insert(const QString &, E). */
    void insert(std::initializer_list<std::pair<const char *, E>> rows)
    {
        for (const auto &row : rows)
            insert(QString::fromUtf8(row.first), row.second);
    }

    /** The OR of the values of the comma-separated keys in @p text; unknown keys contribute unknownValue(). */
    E decodeCSV(const QString &text) const
    {
        Underlying result = 0;
        qsizetype start = 0;
        for (;;) {
            const qsizetype comma = text.indexOf(u',', start);
            const qsizetype end = comma < 0 ? text.size() : comma;
            result |= static_cast<Underlying>(valueOfKey(QStringView(text).sliced(start, end - start)));
            if (comma < 0)
                return static_cast<E>(result);
            start = comma + 1;
        }
    }

    /** The key of every set bit, lowest first; empty for 0 and for any value with the sign bit set. */
    QStringList encodeAsList(E value) const
    {
        QStringList result;
        if (static_cast<Signed>(value) < 1)
            return result;
        Unsigned remaining = static_cast<Unsigned>(value);
        for (int bit = 0; bit < bitCount && remaining != 0; ++bit) {
            const Unsigned flag = Unsigned(1) << bit;
            if (!(remaining & flag))
                continue;
            remaining &= ~flag;
            result.append(m_valueToString.value(static_cast<E>(flag), m_unknownText));
        }
        return result;
    }

    /** encodeAsList() joined by ", ", or unknownText() when that list is empty. */
    QString encodeCSV(E value) const
    {
        const QStringList keys = encodeAsList(value);
        return keys.isEmpty() ? m_unknownText : keys.join(QLatin1String(", "));
    }

    /** The single-bit values contained in @p value, keyed or not; empty for values below 1 (signed). */
    QSet<E> splitToBits(E value) const
    {
        QSet<E> result;
        forEachBit(value, [&result](E flag) { result.insert(flag); });
        return result;
    }

    /** Calls @p function with each single-bit value contained in @p value, lowest bit first; none for
     * values below 1 (signed). splitToBits() without building a set. */
    template<typename Function> static void forEachBit(E value, Function &&function)
    {
        if (static_cast<Signed>(value) < 1)
            return;
        const Unsigned bits = static_cast<Unsigned>(value);
        for (int bit = 0; bit < bitCount; ++bit) {
            const Unsigned flag = Unsigned(1) << bit;
            if (bits & flag)
                function(static_cast<E>(flag));
        }
    }

    /** The key registered for exactly @p value (no bit splitting), or unknownText(). */
    QString keyOf(E value) const { return m_valueToString.value(value, m_unknownText); }
    bool containsKey(const QString &key) const { return m_stringToValue.contains(key.toLower()); }
    /** Every key, synonyms included, spelt as first registered, in the order of registration. */
    const QStringList &keys() const { return m_keys; }

    const QHash<QString, E> &stringToValue() const { return m_stringToValue; }
    const QHash<E, QString> &valueToString() const { return m_valueToString; }
    QString unknownText() const { return m_unknownText; }
    void setUnknownText(const QString &text) { m_unknownText = text; }
    E unknownValue() const { return m_unknownValue; }
    void setUnknownValue(E value) { m_unknownValue = value; }

private:
    /** The value of one key of a list, blanks around it ignored; unknownValue() when it is not in the table. */
    E valueOfKey(QStringView part) const
    {
        const QStringView key = part.trimmed();
        // Decoding runs for every enumerated attribute of every description: the key is looked up in
        // place, and only a key that is not yet in lower case is copied to be converted.
        const QString lowerKey = QString::fromRawData(key.data(), key.size()).toLower();
        const auto found = m_stringToValue.constFind(lowerKey);
        return found != m_stringToValue.constEnd() ? *found : m_unknownValue;
    }

    QHash<QString, E> m_stringToValue;
    QHash<E, QString> m_valueToString;
    QStringList m_keys;
    QString m_unknownText;
    E m_unknownValue = static_cast<E>(0);
};

#endif
