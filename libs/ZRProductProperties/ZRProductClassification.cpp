#include "ZRProductClassification.h"

#include "ZRXMLDiagnostics.h"
#include "ZRXMLParser.h"
#include "ZRXMLVocabulary.h"

#include <QStringList>

#include <cmath>

namespace {
const ZRXMLVocabulary vocabulary(
    QStringLiteral("classification"), { QStringLiteral("cm"), QStringLiteral("inch"), QStringLiteral("group") }, {});

// "60x40" and "60 x 40" give the same size; a part that is not a number gives 0. A text that is not
// two numbers is reported to a diagnostics collector on @p node, the attribute it is from.
QSize parseSize(const QString &name, const QDomNode &node = QDomNode())
{
    const QStringList parts = name.split(QLatin1Char('x'));
    bool widthOk = false;
    bool heightOk = false;
    const int width = parts.value(0).trimmed().toInt(&widthOk);
    const int height = parts.value(1).trimmed().toInt(&heightOk);
    if ((!widthOk || !heightOk || parts.size() > 2) && !node.isNull()) {
        ZRXMLDiagnostics::report(ZRXMLFinding::Warning, QStringLiteral("not-a-size"),
            QStringLiteral("'%1' in '%2' is not a size; it is read as %3 x %4")
                .arg(name, node.nodeName())
                .arg(width)
                .arg(height),
            node, QStringLiteral("width x height in whole numbers, such as '60x40'"));
    }
    return QSize(width, height);
}
} // namespace

ZRProductClassification::ZRProductClassification() = default;

ZRProductClassification::ZRProductClassification(const QDomElement &e)
    : m_productType(ZRXMLParser::attribute(e, QStringLiteral("name"), QString(), true))
{
    const QDomElement classification = e.firstChildElement(vocabulary.element());
    vocabulary.check(classification);
    m_sizeNameCm = ZRXMLParser::attribute(classification, QStringLiteral("cm"), QString(), true);
    m_sizeNameInch = ZRXMLParser::attribute(classification, QStringLiteral("inch"), QString(), true);
    // Group names are Latin-1 throughout the product data.
    const QString group = ZRXMLParser::attribute(classification, QStringLiteral("group"), QString(), true);
    m_group = ZRProductClassificationGroup(QString::fromLatin1(group.toLatin1()));
    calculateSize();

    if (ZRXMLDiagnostics::isActive()) {
        parseSize(m_sizeNameCm, classification.attributes().namedItem(QStringLiteral("cm")));
        parseSize(m_sizeNameInch, classification.attributes().namedItem(QStringLiteral("inch")));
        if (m_group.value() != group) {
            ZRXMLDiagnostics::report(ZRXMLFinding::Warning, QStringLiteral("changed-value"),
                QStringLiteral("the group '%1' has characters outside Latin-1; it is read as '%2'")
                    .arg(group, m_group.value()),
                classification.attributes().namedItem(QStringLiteral("group")));
        }
    }
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
