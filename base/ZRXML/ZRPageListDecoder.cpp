#include "ZRPageListDecoder.h"

#include "ZRXMLDiagnostics.h"
#include "ZRXMLLimits.h"

#include <QDebug>

#include <algorithm>

namespace {
int toInt(QStringView text, bool *ok)
{
    return text.trimmed().toInt(ok, 10);
}

/** The number of one end of the range @p part; a piece that is not a number reads as 0. */
int rangeEnd(QStringView piece, QStringView part, const QDomNode &node)
{
    bool ok = false;
    const int value = toInt(piece, &ok);
    // An empty piece is an open range end; anything else that does not read is reported.
    if (!ok && !piece.trimmed().isEmpty() && ZRXMLDiagnostics::isActive()) {
        ZRXMLDiagnostics::report(ZRXMLFinding::Warning, QStringLiteral("not-a-number"),
            QStringLiteral("'%1' in the page range '%2' is not a number and counts as 0")
                .arg(piece.trimmed().toString(), part.trimmed().toString()),
            node);
    }
    return value;
}
} // namespace

QList<int> ZRPageListDecoder::decode(const QString &text, RangeRule rule, const QDomNode &node)
{
    QList<int> pages;
    const QString simplified = text.simplified();
    for (const QStringView part : QStringView(simplified).split(u',', Qt::SkipEmptyParts)) {
        if (rule == LenientRanges && part.contains(u'-')) {
            const QList<QStringView> pieces = part.split(u'-');
            // A piece that is not a number reads as 0, which is what an open range end means.
            const int a = rangeEnd(pieces.first(), part, node);
            const int b = rangeEnd(pieces.last(), part, node);
            const ZRPageRange range { std::min(a, b), std::max(a, b) };
            if (!isWithinLimit(pages.size() + range.size(), node))
                return {};
            // Counted in 64 bits so that a range ending at the largest int still terminates.
            for (qint64 page = range.first; page <= range.last; ++page)
                pages.append(int(page));
            continue;
        }
        bool ok = false;
        const int page = toInt(part, &ok);
        if (!ok) {
            if (ZRXMLDiagnostics::isActive()) {
                ZRXMLDiagnostics::report(ZRXMLFinding::Warning, QStringLiteral("dropped-page"),
                    QStringLiteral("'%1' in the page list is not a page and is dropped").arg(part.trimmed().toString()),
                    node);
            }
            continue;
        }
        if (!isWithinLimit(pages.size() + 1, node))
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

bool ZRPageListDecoder::isWithinLimit(qint64 pages, const QDomNode &node)
{
    if (pages <= ZRXMLLimits::maxListPages)
        return true;
    qWarning("Page list too long in the product description.");
    if (ZRXMLDiagnostics::isActive()) {
        ZRXMLDiagnostics::report(ZRXMLFinding::Warning, QStringLiteral("list-too-long"),
            QStringLiteral("the list has more than %1 pages (maxListPages) and is dropped")
                .arg(ZRXMLLimits::maxListPages),
            node);
    }
    return false;
}
