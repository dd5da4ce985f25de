#ifndef ZRDEFAULTTEMPLATEKEY_H
#define ZRDEFAULTTEMPLATEKEY_H

#include "ZRDefaultTemplateType.h"
#include "ZRPageContext.h"
#include "zrproductproperties_export.h"

#include <QtGlobal>

/**
 * Describes one page for the look-up of its default template: page context, kind of template,
 * page number and number of pages in the scene, where -1 stands for any.
 */
class ZRPRODUCTPROPERTIES_EXPORT ZRDefaultTemplateKey
{
public:
    /** A layout key for the default page context, any page and any scene page count. */
    ZRDefaultTemplateKey();
    ZRDefaultTemplateKey(const ZRPageContext &pageContext, ZRDefaultTemplateType defaultTemplateType,
        int pageNumber = -1, int scenePageCount = -1);
    ZRDefaultTemplateKey(const ZRDefaultTemplateKey &other);
    virtual ~ZRDefaultTemplateKey();
    ZRDefaultTemplateKey &operator=(const ZRDefaultTemplateKey &other);

    ZRPageContext pageContext() const { return ZRPageContext(pageType(), pageAlignment()); }
    ZRPageType pageType() const { return ZRPageType(m_pageType); }
    ZRPageAlignment pageAlignment() const { return ZRPageAlignment(m_alignment); }
    ZRDefaultTemplateType defaultTemplateType() const { return ZRDefaultTemplateType(m_defaultTemplateType); }
    int pageNumber() const { return m_pageNumber; }
    int scenePageCount() const { return m_scenePageCount; }

    bool operator==(const ZRDefaultTemplateKey &other) const;
    bool operator!=(const ZRDefaultTemplateKey &other) const { return !(*this == other); }

private:
    friend ZRPRODUCTPROPERTIES_EXPORT size_t qHash(const ZRDefaultTemplateKey &key, size_t seed) noexcept;

    // A product keeps about 150 keys: the context is held as its two values, rebuilt when asked for.
    ZRPageTypeEnum m_pageType;
    ZRPageAlignmentEnum m_alignment;
    int m_pageNumber = -1;
    int m_scenePageCount = -1;
    quint8 m_defaultTemplateType = ZRDefaultTemplateLayout;
};

/**
 * Hash of the template kind, alignment and page type; keys that differ only in page number or
 * scene page count share a hash.
 */
ZRPRODUCTPROPERTIES_EXPORT size_t qHash(const ZRDefaultTemplateKey &key, size_t seed = 0) noexcept;

#endif
