#include "ZRContentDropRedirectList.h"

#include "ZRPageListDecoder.h"
#include "ZRXMLParser.h"

ZRContentDropRedirectList::ZRContentDropRedirectList() = default;

ZRContentDropRedirectList::ZRContentDropRedirectList(const QDomElement &element)
{
    qint64 pages = 0;
    for (QDomElement redirect = element.firstChildElement(QStringLiteral("contentredirect")); !redirect.isNull();
         redirect = redirect.nextSiblingElement(QStringLiteral("contentredirect"))) {
        const std::optional<ZRPageRange> range
            = ZRPageListDecoder::decodeRange(ZRXMLParser::attribute(redirect, QStringLiteral("from"), QString(), true));
        const int to = ZRXMLParser::intAttribute(redirect, QStringLiteral("to"), -1);
        if (!range || range->last < 0 || to < 0) {
            // The source location names the class, as the product data maintainers' tools expect.
            QMessageLogger("libs/ZRProductProperties/ZRContentDropRedirectList", __LINE__, Q_FUNC_INFO)
                .warning("parse error");
            continue;
        }
        pages += range->size();
        if (!ZRPageListDecoder::isWithinLimit(pages)) {
            clear();
            return;
        }
        for (qint64 page = range->first; page <= range->last; ++page)
            insert(int(page), to);
    }
}

ZRContentDropRedirectList::~ZRContentDropRedirectList() = default;

int ZRContentDropRedirectList::targetPage(int page) const
{
    return value(page, page);
}
