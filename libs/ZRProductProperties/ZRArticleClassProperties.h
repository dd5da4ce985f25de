#ifndef ZRARTICLECLASSPROPERTIES_H
#define ZRARTICLECLASSPROPERTIES_H

#include "ZRFotoPaperType.h"
#include "zrproductproperties_export.h"

/** Properties shared by all products of one article class; the paper type starts as 0. */
class ZRPRODUCTPROPERTIES_EXPORT ZRArticleClassProperties
{
public:
    ZRArticleClassProperties();
    virtual ~ZRArticleClassProperties();

    ZRFotoPaperType paperType() const { return m_paperType; }
    void setPaperType(const ZRFotoPaperType &paperType) { m_paperType = paperType; }

private:
    ZRFotoPaperType m_paperType;
};

#endif
