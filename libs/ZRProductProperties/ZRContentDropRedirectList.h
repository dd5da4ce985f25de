#ifndef ZRCONTENTDROPREDIRECTLIST_H
#define ZRCONTENTDROPREDIRECTLIST_H

#include "zrproductproperties_export.h"

#include <QDomElement>
#include <QMap>

/**
 * Where content dropped on a page really goes: a map from source page number to target page number.
 */
class ZRPRODUCTPROPERTIES_EXPORT ZRContentDropRedirectList : public QMap<int, int>
{
public:
    /** No redirects. */
    ZRContentDropRedirectList();
    /**
     * Reads the "contentredirect" children of @p element in document order. Each maps the page or
     * the inclusive range in "from" ("3" or "3-5") to the page "to"; a later child overrides an
     * earlier one for the same page. A child whose "from" is not a page or range, or whose range end
     * or "to" is negative or missing, is skipped with the warning "parse error"; a range running
     * backwards ("5-3") adds nothing. Redirects of more pages in all than ZRXMLLimits::maxListPages
     * are refused as a whole, with the warning "Page list too long in the product description.".
     */
    explicit ZRContentDropRedirectList(const QDomElement &element);
    virtual ~ZRContentDropRedirectList();

    /** The page that content dropped on @p page goes to: its target, or @p page itself when it has none. */
    int targetPage(int page) const;
};

#endif
