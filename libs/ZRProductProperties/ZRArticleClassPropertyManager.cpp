#include "ZRArticleClassPropertyManager.h"

ZRArticleClassPropertyManager::ZRArticleClassPropertyManager() = default;

ZRArticleClassPropertyManager::~ZRArticleClassPropertyManager()
{
    qDeleteAll(m_properties);
}

ZRArticleClassProperties *ZRArticleClassPropertyManager::articleClassProperties(
    const ZRArticleClass &articleClass) const
{
    ZRArticleClassProperties *&properties = m_properties[articleClass];
    if (!properties)
        properties = new ZRArticleClassProperties;
    return properties;
}

ZRFotoPaperType ZRArticleClassPropertyManager::paperType(const ZRArticleClass &articleClass) const
{
    return articleClassProperties(articleClass)->paperType();
}

void ZRArticleClassPropertyManager::setPaperType(const ZRArticleClass &articleClass, const ZRFotoPaperType &paperType)
{
    articleClassProperties(articleClass)->setPaperType(paperType);
}
