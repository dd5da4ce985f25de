#ifndef ZRPAGEBINDING_H
#define ZRPAGEBINDING_H

#include "ZREnumWrapper.h"
#include "zrcore_export.h"

/** How the pages of a product are bound. Keys: "glued" 1, "layflat" 2, "stitched" 4, "spiral" 8, "wire_o" 16. */
enum ZRPageBindingEnum : int
{
    ZRPageBindingGlued = 1,
    ZRPageBindingLayflat = 2,
    ZRPageBindingStitched = 4,
    ZRPageBindingSpiral = 8,
    ZRPageBindingWireO = 16,
};

extern template class ZRCORE_EXPORT ZREnumWrapper<ZRPageBindingEnum>;

/** ZRPageBinding: a ZRPageBindingEnum flag set; built from comma-separated keys, case and blanks ignored. */
class ZRCORE_EXPORT ZRPageBinding : public ZREnumWrapper<ZRPageBindingEnum>
{
public:
    ZRPageBinding(ZRPageBindingEnum value = ZRPageBindingEnum(0));
    explicit ZRPageBinding(const QString &keys);
    /** The display name, translated in the context "ZRPageBinding"; empty for 0 and combinations. */
    QString humanReadableName() const;

protected:
    void fillTable(Table *table) const override;
};

#endif
