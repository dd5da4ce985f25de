#ifndef ZRSURROUNDINGKEY_H
#define ZRSURROUNDINGKEY_H

#include "ZRArticleVariants.h"
#include "ZRPageContext.h"
#include "zrproductproperties_export.h"

class QDebug;

/** One concrete page in a surrounding query: its page context, its index and the article variant. */
class ZRPRODUCTPROPERTIES_EXPORT ZRSurroundingKey
{
public:
    /** A content page aligned left, any page index, no variant. */
    ZRSurroundingKey();
    /** @p pageIndex -1 stands for any page. */
    ZRSurroundingKey(
        const ZRPageContext &pageContext, int pageIndex, const ZRArticleVariants &variant = ZRArticleVariants());
    ZRSurroundingKey(const ZRSurroundingKey &other);
    virtual ~ZRSurroundingKey();
    ZRSurroundingKey &operator=(const ZRSurroundingKey &other);

    ZRPageContext pageContext() const { return m_pageContext; }
    ZRPageType pageType() const { return m_pageContext.pageType(); }
    ZRPageAlignment alignment() const { return m_pageContext.alignment(); }
    int pageIndex() const { return m_pageIndex; }
    ZRArticleVariants variant() const { return m_variant; }

    /**
     * Whether a surrounding described by this key fits the page @p other. A key bound to a page
     * index fits exactly that page, whatever the page contexts; when the contexts do not match,
     * only equal page indexes fit. A key for any page whose context matches fits pages of the same
     * variant, and any page when @p other asks for no page index either.
     */
    bool isOkayFor(const ZRSurroundingKey &other) const;

    bool operator==(const ZRSurroundingKey &other) const;
    bool operator!=(const ZRSurroundingKey &other) const { return !(*this == other); }

private:
    ZRPageContext m_pageContext { ZRPageTypeContent, ZRPageAlignmentLeft };
    int m_pageIndex = -1;
    ZRArticleVariants m_variant;
};

ZRPRODUCTPROPERTIES_EXPORT QDebug operator<<(QDebug debug, const ZRSurroundingKey &key);

#endif
