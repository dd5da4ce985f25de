#include "ZRProductionExtraPageGroup.h"

#include <QStringList>

#include <algorithm>

ZRProductionExtraPageGroup::ZRProductionExtraPageGroup() = default;

ZRProductionExtraPageGroup::ZRProductionExtraPageGroup(const QDomElement &element)
    : m_targetPages(decodeIntList(element.firstChildElement(QStringLiteral("target_pages"))))
    , m_content(element.firstChildElement(QStringLiteral("pdf")))
{ }

ZRProductionExtraPageGroup::~ZRProductionExtraPageGroup() = default;

QList<int> ZRProductionExtraPageGroup::decodeIntList(const QDomElement &element) const
{
    QList<int> result;
    const QStringList parts = element.text().simplified().split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString &part : parts) {
        if (part.contains(QLatin1Char('-'))) {
            const QStringList pieces = part.split(QLatin1Char('-'));
            // toInt() gives 0 for a piece that is not a number, which is what an open range end means.
            const int a = pieces.first().trimmed().toInt(nullptr, 10);
            const int b = pieces.last().trimmed().toInt(nullptr, 10);
            // Counted in 64 bits so that a range ending at the largest int still terminates.
            for (qint64 page = std::min(a, b); page <= std::max(a, b); ++page)
                result.append(int(page));
        } else {
            bool ok = false;
            const int page = part.trimmed().toInt(&ok, 10);
            if (ok)
                result.append(page);
        }
    }
    return result;
}

bool ZRProductionExtraPageGroup::operator==(const ZRProductionExtraPageGroup &other) const
{
    return m_targetPages == other.m_targetPages && m_content == other.m_content;
}

bool ZRProductionExtraPageGroup::operator!=(const ZRProductionExtraPageGroup &other) const
{
    return !(*this == other);
}
