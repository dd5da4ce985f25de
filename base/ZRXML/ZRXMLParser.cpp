#include "ZRXMLParser.h"

#include "ZRXMLDiagnostics.h"

#include <algorithm>
#include <limits>
#include <optional>

namespace {
QDomAttr findAttribute(const QDomNamedNodeMap &attributes, const QString &name)
{
    return attributes.namedItem(name).toAttr();
}

// A missing attribute and an empty one both read as no number and give the default, so the readers
// of an element's attribute take its value with QDomElement::attribute(), without making an
// attribute node handle for it.
int toInt(const QString &text, int defaultValue)
{
    if (text.isEmpty())
        return defaultValue;
    bool ok = false;
    const int value = QStringView(text).trimmed().toInt(&ok);
    return ok ? value : defaultValue;
}

int toInt(const QDomAttr &attr, int defaultValue)
{
    return attr.isNull() ? defaultValue : toInt(attr.value(), defaultValue);
}

/**
 * The value of the plain decimals that attributes mostly hold ("2100", "-3.5", "4.75"), or nothing
 * for any other text: an optional minus, digits, optionally a point followed by digits, at most 15
 * digits in all. Such a number and a power of ten up to 1e15 are exact doubles, so one division
 * gives the correctly rounded value, the one QStringView::toDouble() gives too, at a fraction of its
 * cost.
 */
std::optional<double> plainDecimal(QStringView text)
{
    constexpr double powersOfTen[]
        = { 1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15 };
    const bool negative = text.startsWith(u'-');
    quint64 mantissa = 0;
    int digits = 0;
    int integerDigits = -1; // digits before the point, once it is seen
    for (qsizetype i = negative ? 1 : 0; i < text.size(); ++i) {
        const char16_t c = text.at(i).unicode();
        if (c >= u'0' && c <= u'9') {
            if (++digits > 15)
                return std::nullopt;
            mantissa = mantissa * 10 + (c - u'0');
        } else if (c == u'.' && integerDigits < 0 && digits > 0) {
            integerDigits = digits;
        } else {
            return std::nullopt;
        }
    }
    if (digits == 0 || integerDigits == digits)
        return std::nullopt;
    const double value = double(mantissa) / powersOfTen[integerDigits < 0 ? 0 : digits - integerDigits];
    return negative ? -value : value;
}

double toDouble(const QString &value, double defaultValue)
{
    if (value.isEmpty())
        return defaultValue;
    const QStringView text = QStringView(value).trimmed();
    if (const std::optional<double> plain = plainDecimal(text))
        return *plain;
    bool ok = false;
    const double number = text.toDouble(&ok);
    return ok ? number : defaultValue;
}

double toDouble(const QDomAttr &attr, double defaultValue)
{
    return attr.isNull() ? defaultValue : toDouble(attr.value(), defaultValue);
}

enum class Form
{
    Integer,
    Angle,
    Decimal,
    Boolean
};

bool isWellFormed(QStringView text, Form form)
{
    bool ok = false;
    switch (form) {
    case Form::Integer:
    case Form::Angle:
        static_cast<void>(text.trimmed().toInt(&ok));
        return ok;
    case Form::Decimal:
        if (plainDecimal(text.trimmed()))
            return true;
        static_cast<void>(text.trimmed().toDouble(&ok));
        return ok;
    case Form::Boolean:
        return ZRXMLParser::toBool(text, false) == ZRXMLParser::toBool(text, true);
    }
    return false;
}

/** Reports a present value of @p node (an attribute or an element with text) that is not of @p form. */
void checkForm(const QDomNode &node, const QString &value, Form form, const QString &defaultText)
{
    if (node.isNull() || isWellFormed(value, form))
        return;
    static const char *const rules[] = { "not-a-number", "not-an-angle", "not-a-number", "not-a-boolean" };
    static const char *const kinds[] = { "a whole number", "an angle in whole degrees", "a number", "a boolean" };
    const QString name = node.isAttr() ? node.nodeName() : QLatin1Char('<') + node.nodeName() + QLatin1Char('>');
    ZRXMLDiagnostics::report(ZRXMLFinding::Warning, QLatin1String(rules[int(form)]),
        QStringLiteral("%1 '%2' is not %3; %4 is used").arg(name, value, QLatin1String(kinds[int(form)]), defaultText),
        node, form == Form::Boolean ? QStringLiteral("one of true, false, yes, no, 1, 0") : QString());
}

void checkForm(const QDomAttr &attr, Form form, const QString &defaultText)
{
    if (ZRXMLDiagnostics::isActive() && !attr.isNull())
        checkForm(attr, attr.value(), form, defaultText);
}

void checkForm(const QDomElement &element, const QString &name, Form form, const QString &defaultText)
{
    if (ZRXMLDiagnostics::isActive() && element.hasAttribute(name))
        checkForm(findAttribute(element.attributes(), name), form, defaultText);
}

QString boolText(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}
} // namespace

QString ZRXMLParser::attribute(
    const QDomElement &element, const QString &name, const QString &defaultValue, bool defaultIfMissing)
{
    return element.attribute(name, defaultIfMissing ? defaultValue : QString());
}

QString ZRXMLParser::attribute(
    const QDomNamedNodeMap &attributes, const QString &name, const QString &defaultValue, bool defaultIfMissing)
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
    checkForm(element, name, Form::Boolean, boolText(defaultValue));
    // A missing attribute reads as an empty text, which is no boolean either.
    return toBool(element.attribute(name), defaultValue);
}

bool ZRXMLParser::boolAttribute(const QDomNamedNodeMap &attributes, const QString &name, bool defaultValue)
{
    const QDomAttr attr = findAttribute(attributes, name);
    checkForm(attr, Form::Boolean, boolText(defaultValue));
    return attr.isNull() ? defaultValue : toBool(attr.value(), defaultValue);
}

int ZRXMLParser::intAttribute(const QDomElement &element, const QString &name, int defaultValue)
{
    checkForm(element, name, Form::Integer, QString::number(defaultValue));
    return toInt(element.attribute(name), defaultValue);
}

int ZRXMLParser::intAttribute(const QDomNamedNodeMap &attributes, const QString &name, int defaultValue)
{
    const QDomAttr attr = findAttribute(attributes, name);
    checkForm(attr, Form::Integer, QString::number(defaultValue));
    return toInt(attr, defaultValue);
}

int ZRXMLParser::intText(const QDomNode &node, const QString &childName, int defaultValue)
{
    const QDomElement child = node.firstChildElement(childName);
    if (child.isNull())
        return defaultValue;
    bool ok = false;
    const QString text = child.text();
    const int value = QStringView(text).trimmed().toInt(&ok);
    if (!ok && ZRXMLDiagnostics::isActive())
        checkForm(child, text, Form::Integer, QString::number(defaultValue));
    return ok ? value : defaultValue;
}

int ZRXMLParser::readAngle(const QDomElement &element, const QString &name, int defaultValue)
{
    if (element.isNull())
        return defaultValue;
    checkForm(element, name, Form::Angle, QString::number(defaultValue));
    return toInt(element.attribute(name), defaultValue);
}

ZRDistance ZRXMLParser::readDistance(
    const QDomElement &element, const QString &name, double defaultValue, const ZRDistanceUnit &unit)
{
    checkForm(element, name, Form::Decimal, QString::number(defaultValue));
    return ZRDistance(toDouble(element.attribute(name), defaultValue), unit);
}

QRect ZRXMLParser::readRect(const QDomNamedNodeMap &attributes)
{
    const QDomAttr x = findAttribute(attributes, QStringLiteral("x"));
    const QDomAttr y = findAttribute(attributes, QStringLiteral("y"));
    const QDomAttr w = findAttribute(attributes, QStringLiteral("width"));
    const QDomAttr h = findAttribute(attributes, QStringLiteral("height"));
    if (x.isNull() && y.isNull() && w.isNull() && h.isNull())
        return QRect();
    for (const QDomAttr &attr : { x, y, w, h })
        checkForm(attr, Form::Integer, QStringLiteral("0"));
    // The far edges are counted in 64 bits and held to the range of int, so that huge sizes cannot overflow.
    const auto farEdge = [](int origin, int size) {
        return int(std::clamp<qint64>(
            qint64(origin) + size - 1, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
    };
    const int left = toInt(x, 0);
    const int top = toInt(y, 0);
    return QRect(QPoint(left, top), QPoint(farEdge(left, toInt(w, 0)), farEdge(top, toInt(h, 0))));
}

QRectF ZRXMLParser::readRectF(const QDomNamedNodeMap &attributes)
{
    const QDomAttr x = findAttribute(attributes, QStringLiteral("x"));
    const QDomAttr y = findAttribute(attributes, QStringLiteral("y"));
    const QDomAttr w = findAttribute(attributes, QStringLiteral("width"));
    const QDomAttr h = findAttribute(attributes, QStringLiteral("height"));
    if (x.isNull() && y.isNull() && w.isNull() && h.isNull())
        return QRectF();
    for (const QDomAttr &attr : { x, y, w, h })
        checkForm(attr, Form::Decimal, QStringLiteral("0"));
    return QRectF(toDouble(x, 0.0), toDouble(y, 0.0), toDouble(w, 0.0), toDouble(h, 0.0));
}

QSize ZRXMLParser::readSize(const QDomElement &element)
{
    checkForm(element, QStringLiteral("width"), Form::Integer, QStringLiteral("-1"));
    checkForm(element, QStringLiteral("height"), Form::Integer, QStringLiteral("-1"));
    return QSize(
        toInt(element.attribute(QStringLiteral("width")), -1), toInt(element.attribute(QStringLiteral("height")), -1));
}

QVector3D ZRXMLParser::readVector3D(const QDomNamedNodeMap &attributes, const QString &xName, const QString &yName,
    const QString &zName, double xDefault, double yDefault, double zDefault)
{
    checkForm(findAttribute(attributes, xName), Form::Decimal, QString::number(xDefault));
    checkForm(findAttribute(attributes, yName), Form::Decimal, QString::number(yDefault));
    checkForm(findAttribute(attributes, zName), Form::Decimal, QString::number(zDefault));
    return QVector3D(float(toDouble(findAttribute(attributes, xName), xDefault)),
        float(toDouble(findAttribute(attributes, yName), yDefault)),
        float(toDouble(findAttribute(attributes, zName), zDefault)));
}
