#ifndef ZRPRODUCTEDITORABILITIES_H
#define ZRPRODUCTEDITORABILITIES_H

#include "ZRDateRangeConstraint.h"
#include "ZRJigType.h"
#include "ZRPageNamingStyle.h"
#include "ZRPageType.h"
#include "ZRUserPageTiltConfig.h"
#include "zrproductproperties_export.h"

#include <QDomElement>
#include <QSharedDataPointer>
#include <QStringList>

class ZRProductEditorAbilitiesImpl;

/**
 * What the editor may do with one product type: assistant, conversion, page naming, page tilt,
 * calendar start range, start page, the change-base-design button, and per jig type the
 * ZRJigEditorAbilities. Copies share their data.
 */
class ZRPRODUCTPROPERTIES_EXPORT ZRProductEditorAbilities
{
public:
    /**
     * No assistant, convertable, page naming style 0, default page tilt, start page 0, default date
     * range, change-base-design button hidden, and default abilities for every jig type.
     */
    ZRProductEditorAbilities();
    /**
     * Reads an "editorAbilities" element. Missing or malformed parts keep their defaults; any other
     * tag name, a null element included, gives the defaults without a message. Each child of "jigs"
     * is named after its jig type key (any letter case, synonyms allowed); the last one for a jig type
     * wins.
     */
    explicit ZRProductEditorAbilities(const QDomElement &element);
    ZRProductEditorAbilities(const ZRProductEditorAbilities &other);
    ZRProductEditorAbilities(ZRProductEditorAbilities &&other) noexcept;
    virtual ~ZRProductEditorAbilities();
    ZRProductEditorAbilities &operator=(const ZRProductEditorAbilities &other);
    ZRProductEditorAbilities &operator=(ZRProductEditorAbilities &&other) noexcept;

    ZRPageNamingStyle pageNamingStyle() const;
    ZRUserPageTiltConfig userPageTiltConfig() const;
    bool hasAssistant() const;
    bool isConvertable() const;
    bool showChangeBaseDesignButton() const;
    /** The page the editor opens first; 0 by default. */
    int editorStartPage() const;
    ZRDateRangeConstraint dateRangeConstraint() const;

    /** True for a jig type without an entry. */
    bool isJigEnabled(const ZRJigType &jigType) const;
    /** False for a jig type without an entry. */
    bool requiresExactArticle(const ZRJigType &jigType) const;
    /** The category keys of @p jigType on exactly @p pageType; empty when either has no entry. */
    QStringList allowedCategories(const ZRJigType &jigType, const ZRPageType &pageType) const;
    /** Whether backgrounds may be aligned; true without a background entry. */
    bool canAlignBackgrounds() const;
    /** Whether backgrounds may be rotated; false without a background entry. */
    bool canRotateBackgrounds() const;
    /** Whether a background fills every page; true without a background entry. */
    bool fullBackgroundOnEachPage() const;

    /**
     * True at once for copies sharing one data object; otherwise compares everything except the page
     * tilt and the date range constraint.
     */
    bool operator==(const ZRProductEditorAbilities &other) const;
    bool operator!=(const ZRProductEditorAbilities &other) const;

private:
    QSharedDataPointer<ZRProductEditorAbilitiesImpl> d;
};

#endif
