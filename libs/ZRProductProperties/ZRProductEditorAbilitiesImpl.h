#ifndef ZRPRODUCTEDITORABILITIESIMPL_H
#define ZRPRODUCTEDITORABILITIESIMPL_H

#include "ZRCompactMap.h"
#include "ZRDateRangeConstraint.h"
#include "ZRJigEditorAbilities.h"
#include "ZRJigType.h"
#include "ZRPageNamingStyle.h"
#include "ZRPageType.h"
#include "ZRUserPageTiltConfig.h"
#include "zrproductproperties_export.h"

#include <QDomElement>
#include <QSharedData>
#include <QStringList>

/** Shared body of ZRProductEditorAbilities; used only inside the library. */
class ZRPRODUCTPROPERTIES_EXPORT ZRProductEditorAbilitiesImpl : public QSharedData
{
public:
    ZRProductEditorAbilitiesImpl();
    explicit ZRProductEditorAbilitiesImpl(const QDomElement &element);
    ZRProductEditorAbilitiesImpl(const ZRProductEditorAbilitiesImpl &other);
    virtual ~ZRProductEditorAbilitiesImpl();

    ZRPageNamingStyle pageNamingStyle() const { return m_pageNamingStyle; }
    ZRUserPageTiltConfig userPageTiltConfig() const { return m_userPageTiltConfig; }
    bool hasAssistant() const { return m_hasAssistant; }
    bool isConvertable() const { return m_convertable; }
    bool showChangeBaseDesignButton() const { return m_showChangeBaseDesignButton; }
    int editorStartPage() const { return m_editorStartPage; }
    ZRDateRangeConstraint dateRangeConstraint() const { return m_dateRangeConstraint; }

    ZRJigEditorAbilities jigAbilities(const ZRJigType &jigType) const;
    bool isJigEnabled(const ZRJigType &jigType) const;
    bool requiresExactArticle(const ZRJigType &jigType) const;
    QStringList allowedCategories(const ZRJigType &jigType, const ZRPageType &pageType) const;
    bool canAlignBackgrounds() const;
    bool canRotateBackgrounds() const;
    bool fullBackgroundOnEachPage() const;

    bool operator==(const ZRProductEditorAbilitiesImpl &other) const;
    bool operator!=(const ZRProductEditorAbilitiesImpl &other) const;

private:
    bool m_hasAssistant = false;
    bool m_convertable = true;
    ZRPageNamingStyle m_pageNamingStyle;
    ZRUserPageTiltConfig m_userPageTiltConfig;
    int m_editorStartPage = 0;
    ZRDateRangeConstraint m_dateRangeConstraint;
    bool m_showChangeBaseDesignButton = false;
    // By jig type value: a product names a few jig types.
    ZRCompactMap<int, ZRJigEditorAbilities> m_jigs;
};

#endif
