#ifndef ZRPRODUCTCHECKER_H
#define ZRPRODUCTCHECKER_H

#include "ZRArticleVariants.h"
#include "ZRProductType.h"
#include "zrproductbase_export.h"

/** Kinds of product checker, as flags; a mask of them selects checkers in ZRProductCheckerRegistry. */
enum ZRProductCheckerType
{
    ZRProductCheckerNone = 0,
    ZRProductCheckerArticle = 1,
    ZRProductCheckerPrice = 2,
    ZRProductCheckerProductType = 4,
    ZRProductCheckerAll = 7,
};

/** Something that can tell whether a product type may be offered. */
class ZRPRODUCTBASE_EXPORT ZRProductChecker
{
public:
    virtual ~ZRProductChecker();
    virtual bool isValid(const ZRProductType &type) const = 0;
    /** The ZRProductCheckerType flag of this checker. */
    virtual int type() const = 0;
    virtual bool isValidBoxStyle(const ZRProductType &type, const ZRArticleVariants &variants) const = 0;
};

#endif
