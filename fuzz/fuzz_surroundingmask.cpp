// The spot colour mask of a surrounding: rectangles "left top right bottom" separated by ";".

#include "FuzzSupport.h"

#include "ZRSurroundingDescription.h"

void fuzzSetUp() { }

void fuzzOneInput(const uint8_t *data, size_t size)
{
    const QString text = FuzzSupport::text(data, size);
    const QList<QRect> mask = ZRSurroundingDescription::parseMask(text);
    FuzzSupport::check(mask.size() <= text.count(QLatin1Char(';')) + 1, "at most one rectangle per part");

    // Writing the rectangles back in the same syntax reads the same rectangles.
    QStringList parts;
    for (const QRect &rect : mask)
        parts.append(
            QStringLiteral("%1 %2 %3 %4").arg(rect.left()).arg(rect.top()).arg(rect.right()).arg(rect.bottom()));
    FuzzSupport::check(ZRSurroundingDescription::parseMask(parts.join(QLatin1Char(';'))) == mask,
        "written rectangles read back the same");
}
