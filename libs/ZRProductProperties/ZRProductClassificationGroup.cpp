#include "ZRProductClassificationGroup.h"

#include <QCoreApplication>

ZRProductClassificationGroup::ZRProductClassificationGroup() = default;

ZRProductClassificationGroup::ZRProductClassificationGroup(const QString &value)
    : m_value(value)
{ }

ZRProductClassificationGroup::ZRProductClassificationGroup(const ZRProductClassificationGroup &other) = default;
ZRProductClassificationGroup::ZRProductClassificationGroup(ZRProductClassificationGroup &&other) noexcept = default;
ZRProductClassificationGroup::~ZRProductClassificationGroup() = default;
ZRProductClassificationGroup &ZRProductClassificationGroup::operator=(const ZRProductClassificationGroup &other)
    = default;
ZRProductClassificationGroup &ZRProductClassificationGroup::operator=(
    ZRProductClassificationGroup &&other) noexcept = default;

QString ZRProductClassificationGroup::visibleDescription() const
{
    // Filled once per process, in the language active on first use.
    static const ZRLookUpTable<QString, QString> descriptions = [this] {
        ZRLookUpTable<QString, QString> table;
        initDescriptions(&table);
        return table;
    }();
    return descriptions.value(m_value);
}

bool ZRProductClassificationGroup::canCustomFormat(const QString &name) const
{
    return customFormatProductWhiteList().contains(name.isEmpty() ? m_value : name);
}

void ZRProductClassificationGroup::initDescriptions(ZRLookUpTable<QString, QString> *table) const
{
    static const struct
    {
        const char *group;
        const char *description;
    } descriptions[] = {
        { "Poster", QT_TRANSLATE_NOOP("ZRProductClassificationGroup", "Poster") },
        { "Deko-Poster", QT_TRANSLATE_NOOP("ZRProductClassificationGroup", "Poster") },
        { "Leinwand", QT_TRANSLATE_NOOP("ZRProductClassificationGroup", "Fotoleinwand") },
        { "Foto auf Alu-Dibond", QT_TRANSLATE_NOOP("ZRProductClassificationGroup", "Foto auf Alu-Dibond") },
        { "Poster hinter Acryl-Glas", QT_TRANSLATE_NOOP("ZRProductClassificationGroup", "Foto hinter Acrylglas") },
        { "Foto auf Alu-Dibond digital",
            QT_TRANSLATE_NOOP("ZRProductClassificationGroup", "Foto auf Alu-Dibond (Direktdruck)") },
        { "Poster hinter Acryl-Glas digital",
            QT_TRANSLATE_NOOP("ZRProductClassificationGroup", "Foto hinter Acrylglas (Direktdruck)") },
        { "Premium Poster digital",
            QT_TRANSLATE_NOOP("ZRProductClassificationGroup", "Premium Poster Digitaldruck Matt") },
        { "Foto auf Hartschaumplatte digital",
            QT_TRANSLATE_NOOP("ZRProductClassificationGroup", "Foto auf Hartschaum (Direktdruck)") },
        { "Gallery Print digital", QT_TRANSLATE_NOOP("ZRProductClassificationGroup", "Foto als Gallery Print") },
        { "Premium Poster (glossy)",
            QT_TRANSLATE_NOOP("ZRProductClassificationGroup", "Premium Poster Fotopapier Glänzend") },
        { "Premium Poster (matt recycelt)",
            QT_TRANSLATE_NOOP("ZRProductClassificationGroup", "Premium Poster Digitaldruck Matt (100% recycelt)") },
        { "Premium Poster (matt)",
            QT_TRANSLATE_NOOP("ZRProductClassificationGroup", "Premium Poster Fotopapier Matt") },
        { "Premium Poster (silk)",
            QT_TRANSLATE_NOOP("ZRProductClassificationGroup", "Premium Poster Fotopapier Seidenraster") },
        { "Premium Poster (pearl)",
            QT_TRANSLATE_NOOP("ZRProductClassificationGroup", "Premium Poster Fotopapier Perlmutt") },
        { "Premium Poster (fine art matt)",
            QT_TRANSLATE_NOOP("ZRProductClassificationGroup", "Premium Poster Digitaldruck Fine Art Matt") },
        { "PGAP", QT_TRANSLATE_NOOP("ZRProductClassificationGroup", "Fotoleiste als Gallery Print (Direktdruck)") },
        { "PADP", QT_TRANSLATE_NOOP("ZRProductClassificationGroup", "Fotoleiste auf Alu-Dibond (Direktdruck)") },
        { "PAGP", QT_TRANSLATE_NOOP("ZRProductClassificationGroup", "Fotoleiste hinter Acrylglas (Direktdruck)") },
        { "PFSP", QT_TRANSLATE_NOOP("ZRProductClassificationGroup", "Fotoleiste auf Hartschaum (Direktdruck)") },
        { "DFAM", QT_TRANSLATE_NOOP("ZRProductClassificationGroup", "Fine Art Print") },
        { "PWP", QT_TRANSLATE_NOOP("ZRProductClassificationGroup", "Foto auf Holz (Direktdruck)") },
        { "PF", QT_TRANSLATE_NOOP("ZRProductClassificationGroup", "Foto im Rahmen") },
        { "MLP", QT_TRANSLATE_NOOP("ZRProductClassificationGroup", "Photo Streetmap Poster") },
    };
    for (const auto &entry : descriptions)
        table->insert(QString::fromUtf8(entry.group),
            QCoreApplication::translate("ZRProductClassificationGroup", entry.description));
}

QSet<QString> ZRProductClassificationGroup::customFormatProductWhiteList()
{
    return {
        QStringLiteral("Foto auf Alu-Dibond"),
        QStringLiteral("Foto auf Alu-Dibond digital"),
        QStringLiteral("Poster hinter Acryl-Glas"),
        QStringLiteral("Poster hinter Acryl-Glas digital"),
        QStringLiteral("Foto auf Hartschaumplatte digital"),
        QStringLiteral("Gallery Print digital"),
    };
}
