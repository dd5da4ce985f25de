#include "ZRJigType.h"

#include "ZRJigTypeList.h"

#include <QCoreApplication>

template class ZREnumWrapper<ZRJigTypeEnum>;

ZRJigType::ZRJigType(ZRJigTypeEnum value)
    : ZREnumWrapper(value)
{ }

ZRJigType::ZRJigType(const QString &keys)
{
    m_value = decoded(keys);
}

void ZRJigType::fillTable(Table *table) const
{
    table->insert({
        { "unknown", ZRJigTypeUnknown },
        { "background", ZRJigTypeBackground },
        { "background_refinement", ZRJigTypeBackground },
        { "backgrounds", ZRJigTypeBackground },
        { "Hintergrund", ZRJigTypeBackground },
        { "content", ZRJigTypeContent },
        { "contents", ZRJigTypeContent },
        { "clipart", ZRJigTypeClipart },
        { "cliparts", ZRJigTypeClipart },
        { "layout", ZRJigTypeLayout },
        { "Layouts", ZRJigTypeLayout },
        { "passepartout", ZRJigTypeMask },
        { "fading", ZRJigTypeMask },
        { "masks", ZRJigTypeMask },
        { "styles_v2", ZRJigTypeStylesV2 },
        { "frame", ZRJigTypeFrame },
        { "Rahmen", ZRJigTypeFrame },
        { "frame_passepartout", ZRJigTypeFramePassepartout },
        { "frame_glas", ZRJigTypeFrameGlas },
        { "wallholder", ZRJigTypeWallholder },
        { "storybook", ZRJigTypeStorybook },
        { "variant_template", ZRJigTypeVariantTemplate },
    });
}

QString ZRJigType::describe() const
{
    switch (m_value) {
    case ZRJigTypeBackground:
        return QCoreApplication::translate("ZRJigType", "Hintergrund");
    case ZRJigTypeContent:
        return QCoreApplication::translate("ZRJigType", "Design");
    case ZRJigTypeClipart:
        return QCoreApplication::translate("ZRJigType", "Clipart");
    case ZRJigTypeLayout:
        return QCoreApplication::translate("ZRJigType", "Layout");
    case ZRJigTypeMask:
        return QCoreApplication::translate("ZRJigType", "Maske");
    case ZRJigTypeStylesV2:
        return QCoreApplication::translate("ZRJigType", "Stil");
    case ZRJigTypeFrame:
        return QCoreApplication::translate("ZRJigType", "Rahmen");
    case ZRJigTypeFramePassepartout:
        return QCoreApplication::translate("ZRJigType", "Passepartout");
    case ZRJigTypeFrameGlas:
        return QCoreApplication::translate("ZRJigType", "Glas");
    case ZRJigTypeWallholder:
        return QCoreApplication::translate("ZRJigType", "Wandhalterung");
    case ZRJigTypeStorybook:
        return QCoreApplication::translate("ZRJigType", "Buchvorlage");
    default:
        return QString();
    }
}

bool ZRJigType::isDownloadable() const
{
    return ZRJigTypeList::allDownloadableElementTypes().contains(*this);
}

QHash<ZRJigTypeEnum, ZRDlpTypeEnum> ZRJigType::jigToDlpEnumHash()
{
    // The last two rows name jig values without a key of their own; they are kept for old packages.
    static const QHash<ZRJigTypeEnum, ZRDlpTypeEnum> result {
        { ZRJigTypeClipart, ZRDlpTypeClipart },
        { ZRJigTypeBackground, ZRDlpTypeBackground },
        { ZRJigTypeContent, ZRDlpTypeDesign },
        { ZRJigTypeMask, ZRDlpTypeMask },
        { ZRJigTypeStylesV2, ZRDlpTypeStyle },
        { ZRJigTypeStorybook, ZRDlpTypeStorybook },
        { ZRJigTypeEnum(ZRJigTypeStylesV2 | ZRJigTypeStorybook), ZRDlpTypeEnum(ZRDlpTypeStorybook | ZRDlpTypeStyle) },
        { ZRJigTypeLayout, ZRDlpTypeLayout },
        { ZRJigTypeEnum(16384), ZRDlpTypeColorPalette },
        { ZRJigTypeEnum(32768), ZRDlpTypeTexture },
    };
    return result;
}

QStringList ZRJigType::elementNames()
{
    const Table *table = ZRJigType().enumToStringTable();
    QStringList names;
    for (const QString &key : table->keys()) {
        if (table->stringToValue().value(key.toLower()) != ZRJigTypeUnknown)
            names.append(key);
    }
    return names;
}

ZRDlpType ZRJigType::dlpType() const
{
    return ZRDlpType(jigToDlpEnumHash().value(m_value, ZRDlpTypeEnum(0)));
}

ZRJigType ZRJigType::createFromDlpType(const ZRDlpType &type)
{
    const QHash<ZRJigTypeEnum, ZRDlpTypeEnum> mapping = jigToDlpEnumHash();
    for (auto it = mapping.cbegin(); it != mapping.cend(); ++it) {
        if (it.value() == type.value())
            return ZRJigType(it.key());
    }
    return ZRJigType();
}
