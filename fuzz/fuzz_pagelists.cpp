// The page list syntaxes of product descriptions, read through the classes that read them from a small
// "product" element. The input is split into lines. The first line is the text of every comma-separated
// list: the target pages of production extra pages ("1, 3-4, 10", with ranges), the user page tilt pages
// and the product's production numbering and pages with content ("1,3,10"), and the page types
// ("cover_front, content_pages"). Then every line is the target pages of one extra production page, the
// lines in pairs are the "from" and "to" of content redirects ("0-5", "1"), and the lines in threes the
// "from", "to" and "angleinvert" of tilt redirects; a missing last line leaves its attribute out.

#include "FuzzSupport.h"

#include "ZRContentDropRedirectList.h"
#include "ZRJigType.h"
#include "ZRPageTiltRedirectList.h"
#include "ZRPageTypeList.h"
#include "ZRProductTypeDescription.h"
#include "ZRProductionExtraPageGroupList.h"
#include "ZRUserPageTiltConfig.h"

#include <QDomDocument>

namespace {
// The most pages any list may expand to, whatever the numbers in it; the content redirects of a
// product count as one list, and so do all target pages of its extra production pages.
constexpr int maxPages = 10000;
// Page counts the product is numbered for: none, a card, a calendar, a thick book.
constexpr int pageCounts[] = { 0, 1, 13, 120 };

QDomElement appendElement(QDomNode parent, const QString &name, const QString &text = QString())
{
    QDomElement element = parent.ownerDocument().createElement(name);
    if (!text.isNull())
        element.appendChild(parent.ownerDocument().createTextNode(text));
    parent.appendChild(element);
    return element;
}

/** One child @p name of @p parent per @p attributes.size() lines, its attributes taken from the lines in turn. */
void appendRecords(QDomElement parent, const QString &name, const QStringList &attributes, const QStringList &lines)
{
    for (qsizetype first = 0; first < lines.size(); first += attributes.size()) {
        QDomElement record = appendElement(parent, name);
        for (qsizetype i = 0; i < attributes.size() && first + i < lines.size(); ++i)
            record.setAttribute(attributes.at(i), lines.at(first + i));
    }
}

void checkIntegerLists(const ZRProductTypeDescription &description, const QList<int> &tiltPages, qsizetype parts)
{
    // The product's integer lists have the syntax of the tilt pages: numbers only, no ranges.
    FuzzSupport::check(tiltPages.size() <= qMin<qsizetype>(parts, maxPages), "at most one tilt page per part");
    FuzzSupport::check(description.productionNumbering() == tiltPages, "production numbering reads like tilt pages");
    FuzzSupport::check(description.pagesWithContent() == tiltPages, "pages with content read like tilt pages");
    const bool contentJigs = description.supportsJigType(ZRJigType(ZRJigTypeContent));
    for (int page : tiltPages) {
        FuzzSupport::check(!description.userPageTiltAllowed(page), "a listed page cannot be tilted");
        FuzzSupport::check(description.contentAllowedOnPage(page) == contentJigs, "a listed page takes content");
    }
    for (int count : pageCounts) {
        const QList<int> numbers = description.productionNumberingList(count);
        FuzzSupport::check(numbers.size() == count, "one production number per file");
        const QList<int> listed = tiltPages.isEmpty() ? QList<int> { 1 } : tiltPages;
        FuzzSupport::check(numbers.mid(0, listed.size()) == listed.mid(0, count), "listed numbers come first");
    }
}

void checkRedirects(const ZRProductTypeDescription &description, const QDomElement &product)
{
    const ZRContentDropRedirectList content(product.firstChildElement(QStringLiteral("contentredirects")));
    FuzzSupport::check(content.size() <= maxPages, "content redirects of a bounded number of pages");
    for (auto it = content.cbegin(); it != content.cend(); ++it) {
        FuzzSupport::check(it.value() >= 0, "content goes to a page");
        FuzzSupport::check(description.contentDropRedirect(it.key()) == it.value(), "the product redirects alike");
    }

    const QDomElement tiltElement = product.firstChildElement(QStringLiteral("rotationredirects"));
    const ZRPageTiltRedirectList tilt(tiltElement);
    FuzzSupport::check(tilt.size() <= tiltElement.childNodes().size(), "at most one tilt redirect per element");
    for (const ZRPageTiltRedirect &redirect : tilt) {
        FuzzSupport::check(redirect.sourcePageNr() >= -1 && redirect.targetPageNr() >= -1, "tilt between pages");
        FuzzSupport::check(description.tiltRedirectForSourcePage(redirect.sourcePageNr()).contains(redirect),
            "a redirect is found by its source page");
    }

    const ZRProductionExtraPageGroupList extraPages(
        product.firstChildElement(QStringLiteral("extra_production_pages")));
    FuzzSupport::check(extraPages.totalPages() <= maxPages, "extra production pages at a bounded number of pages");
    for (const ZRProductionExtraPageGroup &group : extraPages.groups())
        FuzzSupport::check(group.targetPages().size() <= maxPages, "a bounded number of target pages");
}

void checkPageTypes(const QString &text, qsizetype parts)
{
    ZRPageTypeList pageTypes(text);
    FuzzSupport::check(pageTypes.size() == parts, "one page type per part, empty parts kept");
    pageTypes.containsPanoPageType();
    for (const ZRPageType &type : pageTypes.pageTypes())
        FuzzSupport::check(!type.isValid() || pageTypes.containsMatch(type), "a list matches its own entries");
    pageTypes.toString();
}
} // namespace

void fuzzSetUp() { }

void fuzzOneInput(const uint8_t *data, size_t size)
{
    const QStringList lines = FuzzSupport::text(data, size).split(QLatin1Char('\n'));
    const QString &list = lines.first();
    const qsizetype parts = list.count(QLatin1Char(',')) + 1;

    QDomDocument document;
    QDomElement product = document.createElement(QStringLiteral("product"));
    document.appendChild(product);
    product.setAttribute(QStringLiteral("name"), QStringLiteral("p"));
    product.setAttribute(QStringLiteral("class"), QStringLiteral("photobook"));
    product.setAttribute(QStringLiteral("binding"), QStringLiteral("hardcover"));
    appendElement(product, QStringLiteral("pages"), list);
    appendElement(product, QStringLiteral("productionnumbering"), list);
    appendElement(product, QStringLiteral("pageswithcontent"), list);
    QDomElement pageTilt
        = appendElement(appendElement(product, QStringLiteral("editorAbilities")), QStringLiteral("pageTilt"));
    pageTilt.setAttribute(QStringLiteral("disabled"), QStringLiteral("true"));
    pageTilt.setAttribute(QStringLiteral("pages"), list);
    QDomElement extraPages = appendElement(product, QStringLiteral("extra_production_pages"));
    for (const QString &line : lines)
        appendElement(appendElement(extraPages, QStringLiteral("item")), QStringLiteral("target_pages"), line);
    appendRecords(appendElement(product, QStringLiteral("contentredirects")), QStringLiteral("contentredirect"),
        { QStringLiteral("from"), QStringLiteral("to") }, lines);
    appendRecords(appendElement(product, QStringLiteral("rotationredirects")), QStringLiteral("rotationredirect"),
        { QStringLiteral("from"), QStringLiteral("to"), QStringLiteral("angleinvert") }, lines);

    const ZRProductTypeDescription description(product);
    checkIntegerLists(description, ZRUserPageTiltConfig(pageTilt).pages(), parts);
    checkRedirects(description, product);
    checkPageTypes(list, parts);
}
