#ifndef ZRJIGEDITORABILITIESIMPL_H
#define ZRJIGEDITORABILITIESIMPL_H

#include "ZRCompactMap.h"
#include "ZRPageType.h"
#include "zrproductproperties_export.h"

#include <QDomElement>
#include <QList>
#include <QSharedData>
#include <QString>
#include <QStringList>

/** Shared body of ZRJigEditorAbilities; used only inside the library. */
class ZRPRODUCTPROPERTIES_EXPORT ZRJigEditorAbilitiesImpl : public QSharedData
{
public:
    ZRJigEditorAbilitiesImpl();
    explicit ZRJigEditorAbilitiesImpl(const QDomElement &element);
    ZRJigEditorAbilitiesImpl(const ZRJigEditorAbilitiesImpl &other);
    virtual ~ZRJigEditorAbilitiesImpl();

    bool isEnabled() const { return m_enabled; }
    bool alignable() const { return m_alignable; }
    bool rotatable() const { return m_rotatable; }
    bool fullOnEachPage() const { return m_fullOnEachPage; }
    bool requiresExactArticle() const { return m_exactArticle; }
    QStringList allowedCategories(const ZRPageType &pageType) const;

    bool operator==(const ZRJigEditorAbilitiesImpl &other) const;
    bool operator!=(const ZRJigEditorAbilitiesImpl &other) const;

private:
    bool m_enabled = true;
    bool m_alignable = true;
    bool m_rotatable = false;
    bool m_fullOnEachPage = true;
    bool m_exactArticle = false;
    // By page type value: a jig has categories for a few page types.
    ZRCompactMap<int, QStringList> m_categories;
};

#endif
