#include "ZRPageTiltRedirectList.h"

#include "ZRXMLParser.h"

ZRPageTiltRedirectList::ZRPageTiltRedirectList() = default;

ZRPageTiltRedirectList::ZRPageTiltRedirectList(const QList<ZRPageTiltRedirect> &redirects)
    : m_redirects(redirects)
{ }

ZRPageTiltRedirectList::ZRPageTiltRedirectList(const QDomElement &element)
{
    for (QDomElement redirect = element.firstChildElement(QStringLiteral("rotationredirect")); !redirect.isNull();
         redirect = redirect.nextSiblingElement(QStringLiteral("rotationredirect"))) {
        // -2 marks a missing page; -1 is a real page number here.
        const int from = ZRXMLParser::intAttribute(redirect, QStringLiteral("from"), -2);
        const int to = ZRXMLParser::intAttribute(redirect, QStringLiteral("to"), -2);
        const int angleInvert = ZRXMLParser::intAttribute(redirect, QStringLiteral("angleinvert"), 1);
        if (from < -1 || to < -1)
            continue;
        m_redirects.append(ZRPageTiltRedirect(from, to, angleInvert));
    }
}

ZRPageTiltRedirectList::~ZRPageTiltRedirectList() = default;

ZRPageTiltRedirectList ZRPageTiltRedirectList::filterBySourcePage(int page) const
{
    QList<ZRPageTiltRedirect> result;
    for (const ZRPageTiltRedirect &redirect : m_redirects) {
        if (redirect.sourcePageNr() == page)
            result.append(redirect);
    }
    return ZRPageTiltRedirectList(result);
}

ZRPageTiltRedirectList ZRPageTiltRedirectList::filterByTargetPage(int page) const
{
    QList<ZRPageTiltRedirect> result;
    for (const ZRPageTiltRedirect &redirect : m_redirects) {
        if (redirect.targetPageNr() == page)
            result.append(redirect);
    }
    return ZRPageTiltRedirectList(result);
}

bool ZRPageTiltRedirectList::operator==(const ZRPageTiltRedirectList &other) const
{
    return m_redirects == other.m_redirects;
}

bool ZRPageTiltRedirectList::operator!=(const ZRPageTiltRedirectList &other) const
{
    return !(*this == other);
}
