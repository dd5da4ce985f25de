// The page list syntaxes of product descriptions, all fed the same text: production extra pages
// ("1, 3-4, 10", with ranges), user page tilt and production numbering ("1,3,10") and page type lists
// ("cover_front, contentpages").

#include "FuzzSupport.h"

#include "ZRPageTypeList.h"
#include "ZRProductionExtraPageGroup.h"
#include "ZRUserPageTiltConfig.h"

#include <QDomDocument>

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    FuzzSupport::quietMessages();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString text = FuzzSupport::text(data, size);
    const qsizetype parts = text.count(QLatin1Char(',')) + 1;

    QDomDocument document;
    QDomElement targetPages = document.createElement(QStringLiteral("target_pages"));
    targetPages.appendChild(document.createTextNode(text));
    document.appendChild(targetPages);
    ZRProductionExtraPageGroup().decodeIntList(targetPages);

    const QList<int> tiltPages = ZRUserPageTiltConfig::decodeIntList(text);
    FuzzSupport::check(tiltPages.size() <= parts, "at most one tilt page per part");

    ZRPageTypeList pageTypes(text);
    FuzzSupport::check(pageTypes.size() == parts, "one page type per part, empty parts kept");
    pageTypes.containsPanoPageType();
    for (const ZRPageType &type : pageTypes.pageTypes())
        FuzzSupport::check(!type.isValid() || pageTypes.containsMatch(type), "a list matches its own entries");
    pageTypes.toString();
    return 0;
}
