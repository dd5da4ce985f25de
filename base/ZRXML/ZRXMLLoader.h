#ifndef ZRXMLLOADER_H
#define ZRXMLLOADER_H

#include "zrxml_export.h"

#include <QByteArray>
#include <QDomElement>
#include <QFileInfo>

/** Loads XML documents; the document stays alive as long as an element of it is held. */
class ZRXML_EXPORT ZRXMLLoader
{
public:
    /** The document element of the file, or a null element when it cannot be opened or parsed. */
    static QDomElement loadDocumentElement(const QFileInfo &file);
    /** The document element of an in-memory document, or a null element when it cannot be parsed. */
    static QDomElement loadDocumentElement(const QByteArray &content);
};

#endif
