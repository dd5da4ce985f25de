#ifndef ZRARTICLECLASSPROPERTYMANAGER_H
#define ZRARTICLECLASSPROPERTYMANAGER_H

#include "ZRArticleClass.h"
#include "ZRArticleClassProperties.h"
#include "zrproductproperties_export.h"

#include <QMap>

/** The properties of each article class, created with their defaults on first request. Not thread-safe. */
class ZRPRODUCTPROPERTIES_EXPORT ZRArticleClassPropertyManager
{
public:
    ZRArticleClassPropertyManager();
    virtual ~ZRArticleClassPropertyManager();
    ZRArticleClassPropertyManager(const ZRArticleClassPropertyManager &) = delete;
    ZRArticleClassPropertyManager &operator=(const ZRArticleClassPropertyManager &) = delete;

    /** The properties of @p articleClass; default properties are stored on the first request. */
    ZRArticleClassProperties *articleClassProperties(const ZRArticleClass &articleClass) const;
    ZRFotoPaperType paperType(const ZRArticleClass &articleClass) const;
    void setPaperType(const ZRArticleClass &articleClass, const ZRFotoPaperType &paperType);

private:
    mutable QMap<ZRArticleClass, ZRArticleClassProperties *> m_properties;
};

#endif
