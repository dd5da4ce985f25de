#ifndef ZRXMLLOADER_H
#define ZRXMLLOADER_H

#include "zrxml_export.h"

#include <QByteArray>
#include <QDomDocument>
#include <QDomElement>
#include <QFileInfo>

/**
 * Loads XML documents within ZRXMLLimits: only regular files (links followed) are read, and a
 * document beyond a limit is refused like one that does not parse. The DOM is the one that
 * QDomDocument::setContent() builds without namespace processing, except that nodes carry no line
 * and column numbers.
 *
 * An element handed out keeps its subtree alive, not its document: it is detached once the
 * document is gone, so its parentNode() is null and its ownerDocument() must not be used.
 */
class ZRXML_EXPORT ZRXMLLoader
{
public:
    /** The document element of the file, or a null element when it cannot be opened, parsed or is refused. */
    static QDomElement loadDocumentElement(const QFileInfo &file);
    /** The document element of an in-memory document, or a null element when it cannot be parsed or is refused. */
    static QDomElement loadDocumentElement(const QByteArray &content);
    /** The whole document of the file, or a null document when it cannot be opened, parsed or is refused. */
    static QDomDocument loadDocument(const QFileInfo &file);
    /** The whole in-memory document, or a null document when it cannot be parsed or is refused. */
    static QDomDocument loadDocument(const QByteArray &content);
};

#endif
