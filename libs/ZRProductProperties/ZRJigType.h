#ifndef ZRJIGTYPE_H
#define ZRJIGTYPE_H

#include "ZRDlpType.h"
#include "ZREnumWrapper.h"
#include "zrproductproperties_export.h"

/**
 * Kinds of design element (jig). Keys, read in any letter case, with their synonyms:
 * "unknown" 0; "background", "background_refinement", "backgrounds", "Hintergrund" 1; "clipart",
 * "cliparts" 2; "content", "contents" 4; "layout", "Layouts" 8; "passepartout", "fading", "masks" 16;
 * "frame", "Rahmen" 128; "frame_passepartout" 256; "frame_glas" 512; "wallholder" 1024; "styles_v2" 2048;
 * "storybook" 4096; "variant_template" 8192.
 */
enum ZRJigTypeEnum : int
{
    ZRJigTypeUnknown = 0,
    ZRJigTypeBackground = 1,
    ZRJigTypeClipart = 2,
    ZRJigTypeContent = 4,
    ZRJigTypeLayout = 8,
    ZRJigTypeMask = 16,
    ZRJigTypeFrame = 128,
    ZRJigTypeFramePassepartout = 256,
    ZRJigTypeFrameGlas = 512,
    ZRJigTypeWallholder = 1024,
    ZRJigTypeStylesV2 = 2048,
    ZRJigTypeStorybook = 4096,
    ZRJigTypeVariantTemplate = 8192,
};

extern template class ZRPRODUCTPROPERTIES_EXPORT ZREnumWrapper<ZRJigTypeEnum>;

/** A jig type flag set; built from comma-separated keys, case and blanks ignored. */
class ZRPRODUCTPROPERTIES_EXPORT ZRJigType : public ZREnumWrapper<ZRJigTypeEnum>
{
public:
    ZRJigType(ZRJigTypeEnum value = ZRJigTypeUnknown);
    explicit ZRJigType(const QString &keys);

    /**
     * The display name, translated in the context "ZRJigType": "Hintergrund", "Clipart", "Design"
     * (content), "Layout", "Maske" (the "passepartout" key), "Rahmen", "Passepartout"
     * ("frame_passepartout"), "Glas", "Wandhalterung", "Stil", "Buchvorlage"; empty for 0, 8192 and
     * combinations.
     */
    QString describe() const;
    /** True when the value is exactly one of ZRJigTypeList::allDownloadableElementTypes(). */
    bool isDownloadable() const;
    /** The download package type of this exact value, or 0 when it has none. */
    ZRDlpType dlpType() const;

    /** Jig type to download package type, built once. */
    static QHash<ZRJigTypeEnum, ZRDlpTypeEnum> jigToDlpEnumHash();
    /** The jig type whose download package type is @p type, or 0. */
    static ZRJigType createFromDlpType(const ZRDlpType &type);
    /**
     * The keys that name a jig type, synonyms included and spelt as registered ("unknown", which
     * names none, left out): the tag names of the jig elements of a product's editor abilities.
     */
    static QStringList elementNames();

protected:
    void fillTable(Table *table) const override;
};

#endif
