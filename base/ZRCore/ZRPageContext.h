#ifndef ZRPAGECONTEXT_H
#define ZRPAGECONTEXT_H

#include "ZRPageAlignment.h"
#include "ZRPageType.h"
#include "zrcore_export.h"

class QDebug;

/** One page type with one alignment: where a concrete page sits in a product. */
class ZRCORE_EXPORT ZRPageContext
{
public:
    ZRPageContext() = default;
    ZRPageContext(const ZRPageType &pageType, const ZRPageAlignment &alignment);
    virtual ~ZRPageContext();
    ZRPageContext(const ZRPageContext &) = default;
    ZRPageContext &operator=(const ZRPageContext &) = default;

    ZRPageType pageType() const { return m_pageType; }
    ZRPageAlignment alignment() const { return m_alignment; }

    /** True when the page types share a flag and the alignments share a flag. */
    bool matchesWith(const ZRPageContext &other) const;
    bool operator==(const ZRPageContext &other) const;
    bool operator!=(const ZRPageContext &other) const { return !(*this == other); }

private:
    ZRPageType m_pageType;
    ZRPageAlignment m_alignment;
};

ZRCORE_EXPORT QDebug operator<<(QDebug debug, const ZRPageContext &context);

#endif
