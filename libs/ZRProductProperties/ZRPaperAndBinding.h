#ifndef ZRPAPERANDBINDING_H
#define ZRPAPERANDBINDING_H

#include "ZRPageBinding.h"
#include "ZRPaperType.h"
#include "zrproductproperties_export.h"

/** The paper of a product's pages together with their binding. */
class ZRPRODUCTPROPERTIES_EXPORT ZRPaperAndBinding
{
public:
    ZRPaperAndBinding();
    ZRPaperAndBinding(const ZRPaperType &paperType, const ZRPageBinding &binding);
    ZRPaperAndBinding(const ZRPaperAndBinding &other);
    ZRPaperAndBinding(ZRPaperAndBinding &&other) noexcept;
    virtual ~ZRPaperAndBinding();
    ZRPaperAndBinding &operator=(const ZRPaperAndBinding &other);
    ZRPaperAndBinding &operator=(ZRPaperAndBinding &&other) noexcept;

    ZRPaperType paperType() const { return m_paperType; }
    ZRPageBinding binding() const { return m_binding; }
    /** True for the photo and premium papers (0xC3) bound lay-flat (binding flag 2). */
    bool isIndigoLayFlat() const;
    /** "<binding> / <paper>", each by its display name. */
    QString describe() const;

    bool operator==(const ZRPaperAndBinding &other) const;
    bool operator!=(const ZRPaperAndBinding &other) const { return !(*this == other); }

private:
    ZRPaperType m_paperType;
    ZRPageBinding m_binding;
};

#endif
