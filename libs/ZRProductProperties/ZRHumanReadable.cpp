#include "ZRHumanReadable.h"

template class ZRSingleton<ZRHumanReadable>;

ZRHumanReadable::ZRHumanReadable()
    : QObject(nullptr)
{
    initTemplateNames();
}

ZRHumanReadable::~ZRHumanReadable() = default;

QString ZRHumanReadable::templateName(const QString &key) const
{
    return templateNames.value(key, key);
}

void ZRHumanReadable::initTemplateNames()
{
    // Older templates are keyed by their German name, newer ones by an English technical key.
    templateNames.insert(QStringLiteral("canvas_without_frame"), tr("Leinwand Ohne Rahmen"));
    templateNames.insert(QStringLiteral("Havanna Frame Creme"), tr("Havanna Frame Creme"));
    templateNames.insert(QStringLiteral("Havanna Frame Rot"), tr("Havanna Frame Rot"));
    templateNames.insert(QStringLiteral("Havanna Frame Blau"), tr("Havanna Frame Blau"));
    templateNames.insert(QStringLiteral("Art silber"), tr("Art silber"));
    templateNames.insert(QStringLiteral("Art schwarz"), tr("Art schwarz"));
    templateNames.insert(QStringLiteral("Art hellgold"), tr("Art hellgold"));
    templateNames.insert(QStringLiteral("Poster Ohne Rahmen"), tr("Poster Ohne Rahmen"));
    templateNames.insert(QStringLiteral("Home Gruen"), tr("Home Grün"));
    templateNames.insert(QStringLiteral("Home Kirsche"), tr("Home Kirsche"));
    templateNames.insert(QStringLiteral("Home Schwarz"), tr("Home Schwarz"));
    templateNames.insert(QStringLiteral("Home Gelb"), tr("Home Gelb"));
    templateNames.insert(QStringLiteral("Home Blau"), tr("Home Blau"));
    templateNames.insert(QStringLiteral("Home Kiefer"), tr("Home Kiefer"));
    templateNames.insert(QStringLiteral("Home Ahorn"), tr("Home Ahorn"));
    templateNames.insert(QStringLiteral("Home Rotbuche"), tr("Home Rotbuche"));
    templateNames.insert(QStringLiteral("Style Silber-Gold"), tr("Style Silber-Gold"));
    templateNames.insert(QStringLiteral("Style Gold"), tr("Style Gold"));
    templateNames.insert(QStringLiteral("Style Silber"), tr("Style Silber"));
    templateNames.insert(QStringLiteral("Style Bronze"), tr("Style Bronze"));
    templateNames.insert(QStringLiteral("Style Natur"), tr("Style Natur"));
    templateNames.insert(QStringLiteral("Style Gelb"), tr("Style Gelb"));
    templateNames.insert(QStringLiteral("Style Blau"), tr("Style Blau"));
    templateNames.insert(QStringLiteral("Style Rot"), tr("Style Rot"));
    templateNames.insert(QStringLiteral("Style Creme"), tr("Style Creme"));
    templateNames.insert(QStringLiteral("bigposter_without_frame"), tr("Premium Poster digital Ohne Rahmen"));
    templateNames.insert(QStringLiteral("luxor_pine"), tr("Luxor Kiefer"));
    templateNames.insert(QStringLiteral("confetti_black"), tr("Confetti Schwarz"));
    templateNames.insert(QStringLiteral("confetti_white"), tr("Confetti Weiß"));
    templateNames.insert(QStringLiteral("natura_walnut"), tr("Natura Nussbaum"));
    templateNames.insert(QStringLiteral("sento_goldgreen"), tr("Sento"));
    templateNames.insert(QStringLiteral("designer_metalblack"), tr("Designer Schwarz Metall"));
    templateNames.insert(QStringLiteral("designer_metalsilver"), tr("Designer Silber Metall"));
    templateNames.insert(QStringLiteral("designer_metalcopper"), tr("Designer Kupfer Metall"));
    templateNames.insert(QStringLiteral("designer_metalgold"), tr("Designer Gold Metall"));
    templateNames.insert(QStringLiteral("lancaster_driftwooddark"), tr("Lancaster Treibholz dunkel"));
    templateNames.insert(QStringLiteral("unique_precioussilver"), tr("Unique Silber edel"));
    templateNames.insert(QStringLiteral("plastic_black"), tr("Kunststoff Schwarz"));
    templateNames.insert(QStringLiteral("plastic_white"), tr("Kunststoff Weiß"));
    templateNames.insert(QStringLiteral("passepartout_white"), tr("Weiß"));
    templateNames.insert(QStringLiteral("passepartout_black"), tr("Schwarz"));
    templateNames.insert(QStringLiteral("passepartout_gray"), tr("Grau"));
    templateNames.insert(QStringLiteral("passepartout_cream"), tr("Cremeweiß"));
    templateNames.insert(QStringLiteral("premiumposter_glas"), tr("Glas"));
    templateNames.insert(QStringLiteral("premiumposter_laminated"), tr("Kaschierung"));
}
