#include "ZRProductClassification.h"

#include "ZRXMLParser.h"

#include <QStringList>

#include <cmath>

namespace {
// "60x40" and "60 x 40" give the same size; a part that is not a number gives 0.
QSize parseSize(const QString &name)
{
    const QStringList parts = name.split(QLatin1Char('x'));
    const int width = parts.value(0).trimmed().toInt();
    const int height = parts.value(1).trimmed().toInt();
    return QSize(width, height);
}
} // namespace

ZRProductClassification::ZRProductClassification() = default;

ZRProductClassification::ZRProductClassification(const QDomElement &e)
    : m_productType(ZRXMLParser::attribute(e, QStringLiteral("name"), QString(), true))
{
    const QDomElement classification = e.firstChildElement(QStringLiteral("classification"));
    m_sizeNameCm = ZRXMLParser::attribute(classification, QStringLiteral("cm"), QString(), true);
    m_sizeNameInch = ZRXMLParser::attribute(classification, QStringLiteral("inch"), QString(), true);
    // Group names are Latin-1 throughout the product data.
    const QString group = ZRXMLParser::attribute(classification, QStringLiteral("group"), QString(), true);
    m_group = ZRProductClassificationGroup(QString::fromLatin1(group.toLatin1()));
    calculateSize();
}

ZRProductClassification::ZRProductClassification(const ZRProductClassification &other) = default;
ZRProductClassification::ZRProductClassification(ZRProductClassification &&other) noexcept = default;
ZRProductClassification::~ZRProductClassification() = default;
ZRProductClassification &ZRProductClassification::operator=(const ZRProductClassification &other) = default;
ZRProductClassification &ZRProductClassification::operator=(ZRProductClassification &&other) noexcept = default;

void ZRProductClassification::calculateSize()
{
    m_sizeCm = parseSize(m_sizeNameCm);
    m_sizeInch = parseSize(m_sizeNameInch);
}

QString ZRProductClassification::sizeName(const ZRDistanceUnit &unit) const
{
    return unit == ZRDistanceUnitInch ? m_sizeNameInch : m_sizeNameCm;
}

QString ZRProductClassification::visibleName(const ZRDistanceUnit &unit) const
{
    return sizeName(unit);
}

QString ZRProductClassification::sizeNameWithUnit(const ZRDistanceUnit &unit) const
{
    return QStringLiteral("%1 %2").arg(sizeName(unit), unit.humanReadableName());
}

QSize ZRProductClassification::dimensions(ZRDistanceUnit unit) const
{
    return unit == ZRDistanceUnitInch ? m_sizeInch : m_sizeCm;
}

int ZRProductClassification::areaSize() const
{
    return m_sizeCm.width() * m_sizeCm.height();
}

double ZRProductClassification::sizeDiagonal() const
{
    const double width = m_sizeCm.width();
    const double height = m_sizeCm.height();
    return std::sqrt(width * width + height * height);
}

bool ZRProductClassification::operator==(const ZRProductClassification &other) const
{
    return m_group == other.m_group && m_productType == other.m_productType && m_sizeNameCm == other.m_sizeNameCm
        && m_sizeNameInch == other.m_sizeNameInch;
}
