#include "ZRPageListDecoder.h"

#include "ZRXMLLimits.h"

#include <QDebug>

#include <algorithm>

namespace {
int toInt(QStringView text, bool *ok)
{
    return text.trimmed().toInt(ok, 10);
}
} // namespace

QList<int> ZRPageListDecoder::decode(const QString &text, RangeRule rule)
{
    QList<int> pages;
    const QString simplified = text.simplified();
    for (const QStringView part : QStringView(simplified).split(u',', Qt::SkipEmptyParts)) {
        if (rule == LenientRanges && part.contains(u'-')) {
            const QList<QStringView> pieces = part.split(u'-');
            // A piece that is not a number reads as 0, which is what an open range end means.
            const int a = toInt(pieces.first(), nullptr);
            const int b = toInt(pieces.last(), nullptr);
            const ZRPageRange range { std::min(a, b), std::max(a, b) };
            if (!isWithinLimit(pages.size() + range.size()))
                return {};
            // Counted in 64 bits so that a range ending at the largest int still terminates.
            for (qint64 page = range.first; page <= range.last; ++page)
                pages.append(int(page));
            continue;
        }
        bool ok = false;
        const int page = toInt(part, &ok);
        if (!ok)
            continue;
        if (!isWithinLimit(pages.size() + 1))
            return {};
        pages.append(page);
    }
    return pages;
}

std::optional<ZRPageRange> ZRPageListDecoder::decodeRange(QStringView text)
{
    bool firstOk = false;
    bool lastOk = false;
    if (!text.contains(u'-')) {
        const int page = toInt(text, &firstOk);
        return firstOk ? std::optional<ZRPageRange>(ZRPageRange { page, page }) : std::nullopt;
    }
    const QList<QStringView> pieces = text.split(u'-');
    const int first = toInt(pieces.at(0), &firstOk);
    const int last = toInt(pieces.at(1), &lastOk);
    if (!firstOk || !lastOk)
        return std::nullopt;
    return ZRPageRange { first, last };
}

bool ZRPageListDecoder::isWithinLimit(qint64 pages)
{
    if (pages <= ZRXMLLimits::maxListPages)
        return true;
    qWarning("Page list too long in the product description.");
    return false;
}
