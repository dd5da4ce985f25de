#include "ZRXMLParser.h"

namespace {
QDomAttr findAttribute(const QDomElement &element, const QString &name)
{
    // attributeNode() is not const, but a copy of the handle refers to the same element.
    return QDomElement(element).attributeNode(name);
}

QDomAttr findAttribute(const QDomNamedNodeMap &attributes, const QString &name)
{
    return attributes.namedItem(name).toAttr();
}

int toInt(const QDomAttr &attr, int defaultValue)
{
    if (attr.isNull())
        return defaultValue;
    bool ok = false;
    const int value = QStringView(attr.value()).trimmed().toInt(&ok);
    return ok ? value : defaultValue;
}

double toDouble(const QDomAttr &attr, double defaultValue)
{
    if (attr.isNull())
        return defaultValue;
    bool ok = false;
    const double value = QStringView(attr.value()).trimmed().toDouble(&ok);
    return ok ? value : defaultValue;
}
}

QString ZRXMLParser::attribute(const QDomElement &element, const QString &name, const QString &defaultValue,
                               bool defaultIfMissing)
{
    const QDomAttr attr = findAttribute(element, name);
    if (attr.isNull())
        return defaultIfMissing ? defaultValue : QString();
    return attr.value();
}

QString ZRXMLParser::attribute(const QDomNamedNodeMap &attributes, const QString &name, const QString &defaultValue,
                               bool defaultIfMissing)
{
    const QDomAttr attr = findAttribute(attributes, name);
    if (attr.isNull())
        return defaultIfMissing ? defaultValue : QString();
    return attr.value();
}

bool ZRXMLParser::toBool(QStringView text, bool defaultValue)
{
    const QStringView t = text.trimmed();
    if (t.compare(u"true", Qt::CaseInsensitive) == 0 || t == u"1" || t.compare(u"yes", Qt::CaseInsensitive) == 0)
        return true;
    if (t.compare(u"false", Qt::CaseInsensitive) == 0 || t == u"0" || t.compare(u"no", Qt::CaseInsensitive) == 0)
        return false;
    return defaultValue;
}

bool ZRXMLParser::boolAttribute(const QDomElement &element, const QString &name, bool defaultValue)
{
    const QDomAttr attr = findAttribute(element, name);
    return attr.isNull() ? defaultValue : toBool(attr.value(), defaultValue);
}

bool ZRXMLParser::boolAttribute(const QDomNamedNodeMap &attributes, const QString &name, bool defaultValue)
{
    const QDomAttr attr = findAttribute(attributes, name);
    return attr.isNull() ? defaultValue : toBool(attr.value(), defaultValue);
}

int ZRXMLParser::intAttribute(const QDomElement &element, const QString &name, int defaultValue)
{
    return toInt(findAttribute(element, name), defaultValue);
}

int ZRXMLParser::intAttribute(const QDomNamedNodeMap &attributes, const QString &name, int defaultValue)
{
    return toInt(findAttribute(attributes, name), defaultValue);
}

int ZRXMLParser::intText(const QDomNode &node, const QString &childName, int defaultValue)
{
    const QDomElement child = node.firstChildElement(childName);
    if (child.isNull())
        return defaultValue;
    bool ok = false;
    const int value = QStringView(child.text()).trimmed().toInt(&ok);
    return ok ? value : defaultValue;
}

int ZRXMLParser::readAngle(const QDomElement &element, const QString &name, int defaultValue)
{
    if (element.isNull())
        return defaultValue;
    return toInt(findAttribute(element, name), defaultValue);
}

ZRDistance ZRXMLParser::readDistance(const QDomElement &element, const QString &name, double defaultValue,
                                     const ZRDistanceUnit &unit)
{
    return ZRDistance(toDouble(findAttribute(element, name), defaultValue), unit);
}

QRect ZRXMLParser::readRect(const QDomNamedNodeMap &attributes)
{
    const QDomAttr x = findAttribute(attributes, QStringLiteral("x"));
    const QDomAttr y = findAttribute(attributes, QStringLiteral("y"));
    const QDomAttr w = findAttribute(attributes, QStringLiteral("width"));
    const QDomAttr h = findAttribute(attributes, QStringLiteral("height"));
    if (x.isNull() && y.isNull() && w.isNull() && h.isNull())
        return QRect();
    return QRect(toInt(x, 0), toInt(y, 0), toInt(w, 0), toInt(h, 0));
}

QRectF ZRXMLParser::readRectF(const QDomNamedNodeMap &attributes)
{
    const QDomAttr x = findAttribute(attributes, QStringLiteral("x"));
    const QDomAttr y = findAttribute(attributes, QStringLiteral("y"));
    const QDomAttr w = findAttribute(attributes, QStringLiteral("width"));
    const QDomAttr h = findAttribute(attributes, QStringLiteral("height"));
    if (x.isNull() && y.isNull() && w.isNull() && h.isNull())
        return QRectF();
    return QRectF(toDouble(x, 0.0), toDouble(y, 0.0), toDouble(w, 0.0), toDouble(h, 0.0));
}

QSize ZRXMLParser::readSize(const QDomElement &element)
{
    return QSize(toInt(findAttribute(element, QStringLiteral("width")), -1),
                 toInt(findAttribute(element, QStringLiteral("height")), -1));
}

QVector3D ZRXMLParser::readVector3D(const QDomNamedNodeMap &attributes, const QString &xName, const QString &yName,
                                    const QString &zName, double xDefault, double yDefault, double zDefault)
{
    return QVector3D(float(toDouble(findAttribute(attributes, xName), xDefault)),
                     float(toDouble(findAttribute(attributes, yName), yDefault)),
                     float(toDouble(findAttribute(attributes, zName), zDefault)));
}
