#ifndef ZRPAGEALIGNMENT_H
#define ZRPAGEALIGNMENT_H

#include "ZREnumWrapper.h"
#include "zrcore_export.h"

/** Where a page lies in its spread. Keys: "left", "right", "center", "top", "bottom", "middle", "all". */
enum ZRPageAlignmentEnum : int
{
    ZRPageAlignmentNone = 0,
    ZRPageAlignmentLeft = 1,
    ZRPageAlignmentRight = 2,
    ZRPageAlignmentCenter = 4,
    ZRPageAlignmentTop = 16,
    ZRPageAlignmentBottom = 32,
    ZRPageAlignmentMiddle = 64,
    ZRPageAlignmentAll = 0x7F,
};

extern template class ZRCORE_EXPORT ZREnumWrapper<ZRPageAlignmentEnum>;

/** A page alignment flag set; built from comma-separated keys, case and blanks ignored. */
class ZRCORE_EXPORT ZRPageAlignment : public ZREnumWrapper<ZRPageAlignmentEnum>
{
public:
    ZRPageAlignment(ZRPageAlignmentEnum value = ZRPageAlignmentNone);
    explicit ZRPageAlignment(const QString &keys);

protected:
    void fillTable(Table *table) const override;
};

#endif
