#include "ZRContentDropRedirectList.h"

#include "ZRXMLParser.h"

ZRContentDropRedirectList::ZRContentDropRedirectList() = default;

ZRContentDropRedirectList::ZRContentDropRedirectList(const QDomElement &element)
{
    for (QDomElement redirect = element.firstChildElement(QStringLiteral("contentredirect")); !redirect.isNull();
         redirect = redirect.nextSiblingElement(QStringLiteral("contentredirect"))) {
        const QString from = ZRXMLParser::attribute(redirect, QStringLiteral("from"), QString(), true);
        bool firstOk = false;
        bool lastOk = false;
        int first = 0;
        int last = 0;
        if (from.contains(QLatin1Char('-'))) {
            const QStringList pieces = from.split(QLatin1Char('-'));
            first = pieces.at(0).toInt(&firstOk, 10);
            last = pieces.at(1).toInt(&lastOk, 10);
        } else {
            first = from.toInt(&firstOk, 10);
            last = first;
            lastOk = firstOk;
        }
        const int to = ZRXMLParser::intAttribute(redirect, QStringLiteral("to"), -1);

        if (!firstOk || !lastOk || last < 0 || to < 0) {
            // The source location names the class, as the product data maintainers' tools expect.
            QMessageLogger("libs/ZRProductProperties/ZRContentDropRedirectList", __LINE__, Q_FUNC_INFO)
                .warning("parse error");
            continue;
        }
        // Counted in 64 bits so that a range ending at the largest int still terminates.
        for (qint64 page = first; page <= last; ++page)
            m_redirects.insert(int(page), to);
    }
}

ZRContentDropRedirectList::~ZRContentDropRedirectList() = default;

int ZRContentDropRedirectList::targetPage(int page) const
{
    return m_redirects.value(page, page);
}

bool ZRContentDropRedirectList::operator==(const ZRContentDropRedirectList &other) const
{
    return m_redirects == other.m_redirects;
}

bool ZRContentDropRedirectList::operator!=(const ZRContentDropRedirectList &other) const
{
    return !(*this == other);
}
