#ifndef ZRTHEMATICCATEGORY_H
#define ZRTHEMATICCATEGORY_H

#include "ZRSpotColor.h"
#include "zrproductproperties_export.h"

#include <QColor>
#include <QHash>
#include <QString>

class QDebug;

/**
 * The label under which content is filed. Holds only the key that ZRThematicCategoryRegistry hands
 * out for its internal name, so copying, comparing and hashing never touch strings; the names live
 * in the registry. Also knows the special categories the editor tests for, the finishing spot
 * colours' categories and the colours of colour categories ("colors.xml" of the resources).
 */
class ZRPRODUCTPROPERTIES_EXPORT ZRThematicCategory
{
public:
    /** The empty category (key 0); it differs from the category of the empty name. */
    ZRThematicCategory();
    /** The category of @p internalName; names that differ only in case are one category. */
    explicit ZRThematicCategory(const QString &internalName);
    ZRThematicCategory(const ZRThematicCategory &other);
    ZRThematicCategory(ZRThematicCategory &&other) noexcept;
    virtual ~ZRThematicCategory();
    ZRThematicCategory &operator=(const ZRThematicCategory &other);
    ZRThematicCategory &operator=(ZRThematicCategory &&other) noexcept;

    /** The name as content files spell it (the form the registry saw first). */
    QString internalName() const;
    /** The name shown to the user, translated when the category was first seen. */
    QString visibleName() const;
    /** Renames the category for all its copies; an empty @p name restores the translated name. */
    void setVisibleName(const QString &name);
    /** True for the empty category and for the category of the empty name. */
    bool isEmpty() const;
    /** The registry key; valid only in this process and never written to files. */
    int hashValue() const { return m_key; }

    bool operator==(const ZRThematicCategory &other) const { return m_key == other.m_key; }
    bool operator!=(const ZRThematicCategory &other) const { return m_key != other.m_key; }
    /** Orders by key, that is by the order in which the registry first saw the names. */
    bool operator<(const ZRThematicCategory &other) const { return m_key < other.m_key; }

    /** The show-all category, keyed by allText() in the language of the first call, for good. */
    static ZRThematicCategory categoryAll();
    static ZRThematicCategory recycleBin();
    static ZRThematicCategory colorsCategory();
    static ZRThematicCategory newInstalledCategory();
    static ZRThematicCategory flatColor();
    static ZRThematicCategory favourites();
    static ZRThematicCategory suggestedByAI();
    static ZRThematicCategory matchingToFlyleaf();
    static ZRThematicCategory layoutLargeArea();
    static ZRThematicCategory layoutFullArea();
    static ZRThematicCategory layoutTop();
    static ZRThematicCategory layoutCentered();
    static ZRThematicCategory layoutWideMargin();
    static ZRThematicCategory layoutQuadratic();
    static ZRThematicCategory layoutMiddle();
    static ZRThematicCategory layoutElegant();
    static ZRThematicCategory layoutClassic();
    static ZRThematicCategory userLayouts();
    static ZRThematicCategory userCliparts();
    static ZRThematicCategory userMaskFrames();
    static ZRThematicCategory userMask();
    static ZRThematicCategory userBookStyles();
    static ZRThematicCategory gold();
    static ZRThematicCategory roseGold();
    static ZRThematicCategory silver();
    static ZRThematicCategory silverInk();
    static ZRThematicCategory emboss();
    static ZRThematicCategory fitsToSpotColor();
    static ZRThematicCategory category0();
    static ZRThematicCategory category1();
    static ZRThematicCategory category2();
    static ZRThematicCategory fitsToStyleV2Category();
    static ZRThematicCategory linnenCapable();
    static ZRThematicCategory pseudoCategoryInverted();
    static ZRThematicCategory multiColor();
    /** The internal frame category. */
    static ZRThematicCategory frames();
    /** The internal passe-partout (mask) category. */
    static ZRThematicCategory passpartouts();

    /** "Alle anzeigen" in the current language. */
    static QString allText();
    static QString multiColorBackgroundCategoryName();
    static QString framesInternalCategoryName();
    static QString passepartoutInternalCategoryName();
    /** The human-readable name of colorsCategory() in the current language. */
    static QString flatColorBackgroundCategoryName();

    bool isCategoryAll() const;
    bool isRecycleBin() const;
    bool isFavourite() const;
    bool isSuggestedByAI() const;
    /** True for the categories of the user's own layouts, cliparts, frames, masks and book styles. */
    bool isUserCategory() const;
    /** True for gold, rose gold, silver, silver ink and emboss varnish. */
    bool isSpotColorCategory() const;
    /** True for the categories of ZRThematicCategorySet::allSmartLayoutCategories(). */
    bool isSmartLayoutCategory() const;
    /** True for the internal frame and passe-partout categories. */
    bool isPrimaryCategory() const;

    /** The spot colours 0, 1, 2, 4, 8 and 16 and their categories (the empty one for 0). */
    static const QHash<ZRSpotColor, ZRThematicCategory> &spotColorHash();
    /** The category of @p spotColor; the empty category for a value not in spotColorHash(). */
    static ZRThematicCategory fromSpotColor(const ZRSpotColor &spotColor);
    /** The spot colour of this category; value 0 when it is no spot colour category. */
    ZRSpotColor toSpotColor() const;

    /**
     * Reads the "color" elements ("name", "rgb") of the resource "colors.xml"; a later name replaces
     * an earlier one. Empty when the file is missing or unreadable.
     */
    static QHash<QString, QColor> readColorsXML();
    /**
     * The colour of the colour category @p name, from "colors.xml" read once per process. A name
     * not found that is longer than nine characters is looked up again without its last nine (the
     * "_metallic" variants). Invalid when nothing is found.
     */
    static QColor color(const QString &name);
    /** color() of the internal name. */
    QColor color() const;
    /**
     * Key that sorts colour categories by hue: group ("1" achromatic, "2" washed out, "3" saturated),
     * then hue, saturation and value in hexadecimal, each at least two characters, blank-padded.
     */
    QString colorSortKey() const;

    /**
     * Whether @p a goes before @p b in lists shown to the user: visible names compared
     * case-sensitively by code units, the user's own categories first.
     */
    static bool compareAlphabetically(const ZRThematicCategory &a, const ZRThematicCategory &b);

private:
    int m_key = 0;
};

/** Hashes by the registry key. */
inline size_t qHash(const ZRThematicCategory &category, size_t seed = 0) noexcept
{
    return qHash(category.hashValue(), seed);
}

/** Writes "Category name: <internal name> visible name: <visible name>". */
ZRPRODUCTPROPERTIES_EXPORT QDebug operator<<(QDebug debug, const ZRThematicCategory &category);

#endif
