#include "ZRPageTiltRedirectList.h"

#include "ZRXMLDiagnostics.h"
#include "ZRXMLParser.h"
#include "ZRXMLVocabulary.h"

#include <algorithm>
#include <iterator>

namespace {
const ZRXMLVocabulary vocabulary(QStringLiteral("rotationredirects"), {}, { QStringLiteral("rotationredirect") });
const ZRXMLVocabulary redirectVocabulary(QStringLiteral("rotationredirect"),
    { QStringLiteral("from"), QStringLiteral("to"), QStringLiteral("angleinvert") }, {});
} // namespace

ZRPageTiltRedirectList::ZRPageTiltRedirectList() = default;

ZRPageTiltRedirectList::ZRPageTiltRedirectList(const QList<ZRPageTiltRedirect> &redirects)
    : QList<ZRPageTiltRedirect>(redirects)
{ }

ZRPageTiltRedirectList::ZRPageTiltRedirectList(const QDomElement &element)
{
    vocabulary.check(element);
    for (QDomElement redirect = element.firstChildElement(redirectVocabulary.element()); !redirect.isNull();
         redirect = redirect.nextSiblingElement(redirectVocabulary.element())) {
        redirectVocabulary.check(redirect);
        // -2 marks a missing page; -1 is a real page number here.
        const int from = ZRXMLParser::intAttribute(redirect, QStringLiteral("from"), -2);
        const int to = ZRXMLParser::intAttribute(redirect, QStringLiteral("to"), -2);
        const int angleInvert = ZRXMLParser::intAttribute(redirect, QStringLiteral("angleinvert"), 1);
        if (from < -1 || to < -1) {
            if (ZRXMLDiagnostics::isActive()) {
                ZRXMLDiagnostics::report(ZRXMLFinding::Warning, QStringLiteral("ignored-element"),
                    QStringLiteral("<rotationredirect> without a 'from' and a 'to' page of at least -1 is ignored"),
                    redirect);
            }
            continue;
        }
        append(ZRPageTiltRedirect(from, to, angleInvert));
    }
}

ZRPageTiltRedirectList::~ZRPageTiltRedirectList() = default;

ZRPageTiltRedirectList ZRPageTiltRedirectList::filterBySourcePage(int page) const
{
    ZRPageTiltRedirectList result;
    std::copy_if(cbegin(), cend(), std::back_inserter(result),
        [page](const ZRPageTiltRedirect &redirect) { return redirect.sourcePageNr() == page; });
    return result;
}

ZRPageTiltRedirectList ZRPageTiltRedirectList::filterByTargetPage(int page) const
{
    ZRPageTiltRedirectList result;
    std::copy_if(cbegin(), cend(), std::back_inserter(result),
        [page](const ZRPageTiltRedirect &redirect) { return redirect.targetPageNr() == page; });
    return result;
}
