#include "ZRContentDropRedirectList.h"

#include "ZRPageListDecoder.h"
#include "ZRXMLDiagnostics.h"
#include "ZRXMLParser.h"
#include "ZRXMLVocabulary.h"

namespace {
const ZRXMLVocabulary vocabulary(QStringLiteral("contentredirects"), {}, { QStringLiteral("contentredirect") });
const ZRXMLVocabulary redirectVocabulary(
    QStringLiteral("contentredirect"), { QStringLiteral("from"), QStringLiteral("to") }, {});

/** Reports why @p redirect, whose pages @p range are or its target @p to is not usable, is ignored. */
void reportIgnored(const QDomElement &redirect, const std::optional<ZRPageRange> &range)
{
    if (!range || range->last < 0) {
        const QDomNode from = redirect.attributes().namedItem(QStringLiteral("from"));
        ZRXMLDiagnostics::report(ZRXMLFinding::Warning, QStringLiteral("not-a-page-range"),
            from.isNull() ? QStringLiteral("<contentredirect> without a 'from' is ignored")
                          : QStringLiteral("'%1' in 'from' is not a page or a page range; the redirect is ignored")
                                .arg(from.nodeValue()),
            from.isNull() ? redirect : from, QStringLiteral("a page such as '3' or a range such as '3-5'"));
        return;
    }
    const QDomNode to = redirect.attributes().namedItem(QStringLiteral("to"));
    ZRXMLDiagnostics::report(ZRXMLFinding::Warning, QStringLiteral("ignored-element"),
        to.isNull() ? QStringLiteral("<contentredirect> without a 'to' is ignored")
                    : QStringLiteral("'%1' in 'to' is not a page; the redirect is ignored").arg(to.nodeValue()),
        to.isNull() ? redirect : to);
}
} // namespace

ZRContentDropRedirectList::ZRContentDropRedirectList() = default;

ZRContentDropRedirectList::ZRContentDropRedirectList(const QDomElement &element)
{
    vocabulary.check(element);
    qint64 pages = 0;
    for (QDomElement redirect = element.firstChildElement(redirectVocabulary.element()); !redirect.isNull();
         redirect = redirect.nextSiblingElement(redirectVocabulary.element())) {
        redirectVocabulary.check(redirect);
        const std::optional<ZRPageRange> range
            = ZRPageListDecoder::decodeRange(ZRXMLParser::attribute(redirect, QStringLiteral("from"), QString(), true));
        const int to = ZRXMLParser::intAttribute(redirect, QStringLiteral("to"), -1);
        if (!range || range->last < 0 || to < 0) {
            // The source location names the class, as the product data maintainers' tools expect.
            QMessageLogger("libs/ZRProductProperties/ZRContentDropRedirectList", __LINE__, Q_FUNC_INFO)
                .warning("parse error");
            if (ZRXMLDiagnostics::isActive())
                reportIgnored(redirect, range);
            continue;
        }
        if (range->size() == 0 && ZRXMLDiagnostics::isActive()) {
            ZRXMLDiagnostics::report(ZRXMLFinding::Warning, QStringLiteral("not-a-page-range"),
                QStringLiteral("the range '%1' in 'from' runs backwards and redirects no page")
                    .arg(redirect.attribute(QStringLiteral("from"))),
                redirect.attributes().namedItem(QStringLiteral("from")));
        }
        pages += range->size();
        if (!ZRPageListDecoder::isWithinLimit(pages, element)) {
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
