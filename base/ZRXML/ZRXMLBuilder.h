#ifndef ZRXMLBUILDER_H
#define ZRXMLBUILDER_H

#include "zrxml_export.h"

#include <QDomElement>
#include <QString>

/** Writers of XML elements. */
class ZRXML_EXPORT ZRXMLBuilder
{
public:
    /** Appends to @p parent a child element @p tag whose text is @p text, and returns it. */
    static QDomElement buildDomElement(QDomNode &parent, const QString &tag, const QString &text);
};

#endif
