#ifndef ZRPAGETILTREDIRECTLIST_H
#define ZRPAGETILTREDIRECTLIST_H

#include "ZRPageTiltRedirect.h"
#include "zrproductproperties_export.h"

#include <QDomElement>
#include <QList>

/**
 * The tilt redirects of a product, in document order.
 */
class ZRPRODUCTPROPERTIES_EXPORT ZRPageTiltRedirectList : public QList<ZRPageTiltRedirect>
{
public:
    /** No redirects. */
    ZRPageTiltRedirectList();
    explicit ZRPageTiltRedirectList(const QList<ZRPageTiltRedirect> &redirects);
    /**
     * Reads the "rotationredirect" children of @p element: integer attributes "from", "to" and
     * "angleinvert" (default 1). A child whose "from" or "to" is missing or below -1 is skipped.
     */
    explicit ZRPageTiltRedirectList(const QDomElement &element);
    virtual ~ZRPageTiltRedirectList();

    /** The redirects whose source page is @p page, in list order. */
    ZRPageTiltRedirectList filterBySourcePage(int page) const;
    /** The redirects whose target page is @p page, in list order. */
    ZRPageTiltRedirectList filterByTargetPage(int page) const;
};

#endif
