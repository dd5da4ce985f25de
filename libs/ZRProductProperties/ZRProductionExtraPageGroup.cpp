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
    // A range such as "1-2000000000" would otherwise take minutes and gigabytes to list.
    const auto fits = [&result](qint64 pages) {
        if (result.size() + pages <= maxPages)
            return true;
        qWarning("Page list too long in the product description.");
        return false;
    };
    const QStringList parts = element.text().simplified().split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString &part : parts) {
        if (part.contains(QLatin1Char('-'))) {
            const QStringList pieces = part.split(QLatin1Char('-'));
            // toInt() gives 0 for a piece that is not a number, which is what an open range end means.
            const int a = pieces.first().trimmed().toInt(nullptr, 10);
            const int b = pieces.last().trimmed().toInt(nullptr, 10);
            const qint64 first = std::min(a, b);
            const qint64 last = std::max(a, b);
            if (!fits(last - first + 1))
                break;
            // Counted in 64 bits so that a range ending at the largest int still terminates.
            for (qint64 page = first; page <= last; ++page)
                result.append(int(page));
        } else {
            bool ok = false;
            const int page = part.trimmed().toInt(&ok, 10);
            if (!ok)
                continue;
            if (!fits(1))
                break;
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
