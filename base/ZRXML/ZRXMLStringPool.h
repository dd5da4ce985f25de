#ifndef ZRXMLSTRINGPOOL_H
#define ZRXMLSTRINGPOOL_H

#include "zrxml_export.h"

#include <QHash>
#include <QMetaType>
#include <QSet>
#include <QString>
#include <QVariant>

#include <utility>

/**
 * Makes equal texts read during a load share one buffer. While a pool exists it is active on its
 * thread (pools nest, the innermost one is used): share() gives the string the pool was first given
 * with the same text, shareRecord() the record first read from the same text. A catalogue repeats
 * template names, picture paths, category names and variants across its products; each copy read
 * from a document has a buffer of its own until it is shared.
 */
class ZRXML_EXPORT ZRXMLStringPool
{
public:
    ZRXMLStringPool();
    ~ZRXMLStringPool();
    ZRXMLStringPool(const ZRXMLStringPool &) = delete;
    ZRXMLStringPool &operator=(const ZRXMLStringPool &) = delete;

    /** The pooled string equal to @p text, or @p text itself when no pool is active. */
    static QString share(const QString &text);

    /**
     * The record of type @p T that @p make reads from @p text, made once per text while the pool is
     * active, so that equal records read from equal texts share their data; without a pool, make(text).
     */
    template<typename T, typename Make> static T shareRecord(const QString &text, Make make)
    {
        QVariant *slot = recordSlot(QMetaType::fromType<T>(), text);
        if (!slot)
            return make(text);
        if (!slot->isValid())
            *slot = QVariant::fromValue(make(text));
        return slot->value<T>();
    }

private:
    /** Where the record of @p type read from @p text is kept; null without a pool. */
    static QVariant *recordSlot(QMetaType type, const QString &text);

    QSet<QString> m_strings;
    QHash<std::pair<int, QString>, QVariant> m_records;
    ZRXMLStringPool *m_outer;
};

#endif
