#ifndef ZRPRODUCTIONEXTRAPAGEGROUP_H
#define ZRPRODUCTIONEXTRAPAGEGROUP_H

#include "ZRProductionExtraPage.h"
#include "zrproductproperties_export.h"

#include <QDomElement>
#include <QList>

/**
 * One extra page and the page positions production inserts it at.
 */
class ZRPRODUCTPROPERTIES_EXPORT ZRProductionExtraPageGroup
{
public:
    /** No target pages and an empty extra page. */
    ZRProductionExtraPageGroup();
    /**
     * Reads an "item" element: the target pages from its first "target_pages" child (see
     * decodeIntList()) and the extra page from its first "pdf" child. A missing child gives no
     * pages, respectively an empty extra page.
     */
    explicit ZRProductionExtraPageGroup(const QDomElement &element);
    virtual ~ZRProductionExtraPageGroup();

    /** The target page positions in the order the list gives them, duplicates kept. */
    QList<int> targetPages() const { return m_targetPages; }
    ZRProductionExtraPage content() const { return m_content; }

    /**
     * The pages of a list such as "1, 3-4, 10" in the text of @p element. Unlike the tilt page
     * lists, this syntax has ranges: "7-5" gives 5, 6, 7, and a range end that is not a number
     * counts as 0, so "-3" gives 0 to 3 and "x-2" gives 0 to 2. A single entry that is not a number
     * is dropped. A list of more than ZRXMLLimits::maxListPages pages gives none, with the warning
     * "Page list too long in the product description.".
     */
    QList<int> decodeIntList(const QDomElement &element) const;

    bool operator==(const ZRProductionExtraPageGroup &other) const;
    bool operator!=(const ZRProductionExtraPageGroup &other) const;

private:
    QList<int> m_targetPages;
    ZRProductionExtraPage m_content;
};

#endif
