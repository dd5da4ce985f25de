#ifndef ZRXMLPARSER_H
#define ZRXMLPARSER_H

#include "ZRDistance.h"
#include "zrxml_export.h"

#include <QDomElement>
#include <QDomNamedNodeMap>
#include <QRect>
#include <QRectF>
#include <QSize>
#include <QString>
#include <QVector3D>

/**
 * Lenient readers of attributes and child texts: a missing or malformed value yields the default
 * given by the caller, never an error.
 *
 * Text forms: booleans are "true"/"false", "1"/"0" or "yes"/"no" in any letter case; integers are
 * decimal with optional surrounding blanks; angles are integer degrees; distances and coordinates
 * are decimal numbers with a '.' as decimal point.
 */
class ZRXML_EXPORT ZRXMLParser
{
public:
    /**
     * The text of attribute @p name. With @p defaultIfMissing true a missing attribute gives
     * @p defaultValue; with false it gives an empty text. A present but empty attribute is empty.
     */
    static QString attribute(const QDomElement &element, const QString &name, const QString &defaultValue = QString(),
        bool defaultIfMissing = true);
    static QString attribute(const QDomNamedNodeMap &attributes, const QString &name,
        const QString &defaultValue = QString(), bool defaultIfMissing = true);

    static bool boolAttribute(const QDomElement &element, const QString &name, bool defaultValue);
    static bool boolAttribute(const QDomNamedNodeMap &attributes, const QString &name, bool defaultValue);

    static int intAttribute(const QDomElement &element, const QString &name, int defaultValue);
    static int intAttribute(const QDomNamedNodeMap &attributes, const QString &name, int defaultValue);

    /** The integer text of the first child element @p childName of @p node, or @p defaultValue. */
    static int intText(const QDomNode &node, const QString &childName, int defaultValue);

    /** An angle in degrees; @p defaultValue for a null element, a missing or malformed attribute. */
    static int readAngle(const QDomElement &element, const QString &name, int defaultValue);

    /** A distance in @p unit; the attribute holds the number, @p defaultValue when missing or malformed. */
    static ZRDistance readDistance(
        const QDomElement &element, const QString &name, double defaultValue, const ZRDistanceUnit &unit);

    /**
     * The rectangle of the attributes "x", "y", "width" and "height". A null rectangle when none of
     * them is present; a missing or malformed one of them counts as 0 otherwise.
     */
    static QRect readRect(const QDomNamedNodeMap &attributes);
    /** As readRect(), with decimal numbers. */
    static QRectF readRectF(const QDomNamedNodeMap &attributes);
    /** The size of the attributes "width" and "height"; a missing or malformed one gives -1. */
    static QSize readSize(const QDomElement &element);
    /** A vector of three decimal attributes, each with its own default. */
    static QVector3D readVector3D(const QDomNamedNodeMap &attributes, const QString &xName, const QString &yName,
        const QString &zName, double xDefault, double yDefault, double zDefault);

    /** The boolean of a text, or @p defaultValue when it is none of the accepted spellings. */
    static bool toBool(QStringView text, bool defaultValue);
};

#endif
