#ifndef ZRXMLSTRINGPOOL_H
#define ZRXMLSTRINGPOOL_H

#include "zrxml_export.h"

#include <QSet>
#include <QString>

/**
 * Makes equal texts read during a load share one buffer. While a pool exists it is active on its
 * thread (pools nest, the innermost one is used): share() gives the string the pool was first given
 * with the same text. A catalogue repeats template names, picture paths and category names across
 * its products; each copy read from a document has a buffer of its own until it is shared.
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

private:
    QSet<QString> m_strings;
    ZRXMLStringPool *m_outer;
};

#endif
