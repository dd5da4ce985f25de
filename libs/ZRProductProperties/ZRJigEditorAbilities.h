#ifndef ZRJIGEDITORABILITIES_H
#define ZRJIGEDITORABILITIES_H

#include "ZRPageType.h"
#include "zrproductproperties_export.h"

#include <QDomElement>
#include <QSharedDataPointer>
#include <QStringList>

class ZRJigEditorAbilitiesImpl;

/**
 * What the editor may do with one jig type of one product: whether it is offered, aligned, rotated,
 * fills every page, needs the exact article, and which content categories each page type allows.
 * Copies share their data.
 */
class ZRPRODUCTPROPERTIES_EXPORT ZRJigEditorAbilities
{
public:
    /** Enabled, alignable and full on each page; not rotatable, no exact article, no categories. */
    ZRJigEditorAbilities();
    /**
     * Reads the boolean attributes "enabled", "alignable", "rotatable", "fullOnEachPage" and
     * "exactArticle" and the "categories" children of @p element; whatever is missing or malformed
     * keeps its default, and a null element gives the defaults.
     */
    explicit ZRJigEditorAbilities(const QDomElement &element);
    ZRJigEditorAbilities(const ZRJigEditorAbilities &other);
    ZRJigEditorAbilities(ZRJigEditorAbilities &&other) noexcept;
    virtual ~ZRJigEditorAbilities();
    ZRJigEditorAbilities &operator=(const ZRJigEditorAbilities &other);
    ZRJigEditorAbilities &operator=(ZRJigEditorAbilities &&other) noexcept;

    bool isEnabled() const;
    bool alignable() const;
    bool rotatable() const;
    bool fullOnEachPage() const;
    bool requiresExactArticle() const;
    /**
     * The category keys allowed on exactly @p pageType, as written in the product description. A
     * compound page type matches only an entry of the same value; no entry gives an empty list.
     */
    QStringList allowedCategories(const ZRPageType &pageType) const;

    /** True at once for copies sharing one data object, otherwise compares all fields. */
    bool operator==(const ZRJigEditorAbilities &other) const;
    bool operator!=(const ZRJigEditorAbilities &other) const;

private:
    QSharedDataPointer<ZRJigEditorAbilitiesImpl> d;
};

#endif
