#include "ZRThematicCategory.h"

#include "ZRDirectoryConfig.h"
#include "ZRThematicCategoryRegistry.h"
#include "ZRThematicCategorySet.h"
#include "ZRThematicCategoryTranslationRegistry.h"
#include "ZRXMLLoader.h"
#include "ZRXMLParser.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDomNodeList>
#include <QFileInfo>

namespace {
ZRThematicCategoryRegistry *registry()
{
    return ZRSingleton<ZRThematicCategoryRegistry>::instance();
}

// The length of "_metallic", the suffix of the metallic variants of colour categories.
constexpr int metallicSuffixLength = 9;
} // namespace

ZRThematicCategory::ZRThematicCategory() = default;

ZRThematicCategory::ZRThematicCategory(const QString &internalName)
    : m_key(registry()->key(internalName))
{ }

ZRThematicCategory::ZRThematicCategory(const ZRThematicCategory &other) = default;
ZRThematicCategory::ZRThematicCategory(ZRThematicCategory &&other) noexcept = default;
ZRThematicCategory::~ZRThematicCategory() = default;
ZRThematicCategory &ZRThematicCategory::operator=(const ZRThematicCategory &other) = default;
ZRThematicCategory &ZRThematicCategory::operator=(ZRThematicCategory &&other) noexcept = default;

QString ZRThematicCategory::internalName() const
{
    return registry()->internalName(m_key);
}

QString ZRThematicCategory::visibleName() const
{
    return registry()->visibleName(m_key);
}

void ZRThematicCategory::setVisibleName(const QString &name)
{
    registry()->setVisibleName(m_key, name);
}

bool ZRThematicCategory::isEmpty() const
{
    return internalName().isEmpty();
}

// The show-all category keeps the key of the text translated at the first call, even after a change of language.
ZRThematicCategory ZRThematicCategory::categoryAll()
{
    static const ZRThematicCategory category(allText());
    return category;
}

ZRThematicCategory ZRThematicCategory::recycleBin()
{
    static const ZRThematicCategory category(QStringLiteral("Papierkorb"));
    return category;
}

ZRThematicCategory ZRThematicCategory::colorsCategory()
{
    static const ZRThematicCategory category(QStringLiteral("Farben"));
    return category;
}

ZRThematicCategory ZRThematicCategory::newInstalledCategory()
{
    static const ZRThematicCategory category(QStringLiteral("category-last-downloaded"));
    return category;
}

ZRThematicCategory ZRThematicCategory::flatColor()
{
    static const ZRThematicCategory category(QStringLiteral("category-colours"));
    return category;
}

ZRThematicCategory ZRThematicCategory::favourites()
{
    static const ZRThematicCategory category(QStringLiteral("Favoriten"));
    return category;
}

ZRThematicCategory ZRThematicCategory::suggestedByAI()
{
    static const ZRThematicCategory category(QStringLiteral("Passend zu Ihren Fotos"));
    return category;
}

ZRThematicCategory ZRThematicCategory::matchingToFlyleaf()
{
    static const ZRThematicCategory category(QStringLiteral("Passend zur Einband-Innenseite"));
    return category;
}

ZRThematicCategory ZRThematicCategory::layoutLargeArea()
{
    return ZRThematicCategory(QStringLiteral("large"));
}

ZRThematicCategory ZRThematicCategory::layoutFullArea()
{
    return ZRThematicCategory(QStringLiteral("full"));
}

ZRThematicCategory ZRThematicCategory::layoutTop()
{
    return ZRThematicCategory(QStringLiteral("Oben"));
}

ZRThematicCategory ZRThematicCategory::layoutCentered()
{
    return ZRThematicCategory(QStringLiteral("Zentriert"));
}

ZRThematicCategory ZRThematicCategory::layoutWideMargin()
{
    return ZRThematicCategory(QStringLiteral("Breiter Rand"));
}

ZRThematicCategory ZRThematicCategory::layoutQuadratic()
{
    return ZRThematicCategory(QStringLiteral("Quadratisch"));
}

ZRThematicCategory ZRThematicCategory::layoutMiddle()
{
    return ZRThematicCategory(QStringLiteral("Mittig"));
}

ZRThematicCategory ZRThematicCategory::layoutElegant()
{
    return ZRThematicCategory(QStringLiteral("Elegant"));
}

ZRThematicCategory ZRThematicCategory::layoutClassic()
{
    return ZRThematicCategory(QStringLiteral("Klassisch"));
}

ZRThematicCategory ZRThematicCategory::userLayouts()
{
    static const ZRThematicCategory category(QStringLiteral("Meine Layouts"));
    return category;
}

ZRThematicCategory ZRThematicCategory::userCliparts()
{
    static const ZRThematicCategory category(QStringLiteral("Meine Cliparts"));
    return category;
}

ZRThematicCategory ZRThematicCategory::userMaskFrames()
{
    static const ZRThematicCategory category(QStringLiteral("Meine Rahmen"));
    return category;
}

ZRThematicCategory ZRThematicCategory::userMask()
{
    static const ZRThematicCategory category(QStringLiteral("Meine Masken"));
    return category;
}

ZRThematicCategory ZRThematicCategory::userBookStyles()
{
    static const ZRThematicCategory category(QStringLiteral("Meine Buchvorlagen"));
    return category;
}

ZRThematicCategory ZRThematicCategory::gold()
{
    static const ZRThematicCategory category(QStringLiteral("Gold"));
    return category;
}

ZRThematicCategory ZRThematicCategory::roseGold()
{
    static const ZRThematicCategory category(QStringLiteral("Roségold"));
    return category;
}

ZRThematicCategory ZRThematicCategory::silver()
{
    static const ZRThematicCategory category(QStringLiteral("Silber"));
    return category;
}

ZRThematicCategory ZRThematicCategory::silverInk()
{
    static const ZRThematicCategory category(QStringLiteral("Metallic Effekt"));
    return category;
}

ZRThematicCategory ZRThematicCategory::emboss()
{
    static const ZRThematicCategory category(QStringLiteral("Effektlack"));
    return category;
}

ZRThematicCategory ZRThematicCategory::fitsToSpotColor()
{
    static const ZRThematicCategory category(QStringLiteral("Stile mit gewählter Veredelung"));
    return category;
}

ZRThematicCategory ZRThematicCategory::category0()
{
    static const ZRThematicCategory category(QStringLiteral("0"));
    return category;
}

ZRThematicCategory ZRThematicCategory::category1()
{
    static const ZRThematicCategory category(QStringLiteral("1"));
    return category;
}

ZRThematicCategory ZRThematicCategory::category2()
{
    static const ZRThematicCategory category(QStringLiteral("2"));
    return category;
}

ZRThematicCategory ZRThematicCategory::fitsToStyleV2Category()
{
    return ZRThematicCategory(QStringLiteral("category-fits-to-styleV2"));
}

ZRThematicCategory ZRThematicCategory::linnenCapable()
{
    return ZRThematicCategory(QStringLiteral("feature-linnen-capable"));
}

ZRThematicCategory ZRThematicCategory::pseudoCategoryInverted()
{
    return ZRThematicCategory(QStringLiteral("pseudo-category-inverted"));
}

ZRThematicCategory ZRThematicCategory::multiColor()
{
    static const ZRThematicCategory category(multiColorBackgroundCategoryName());
    return category;
}

ZRThematicCategory ZRThematicCategory::frames()
{
    static const ZRThematicCategory category(framesInternalCategoryName());
    return category;
}

ZRThematicCategory ZRThematicCategory::passpartouts()
{
    static const ZRThematicCategory category(passepartoutInternalCategoryName());
    return category;
}

QString ZRThematicCategory::allText()
{
    return QCoreApplication::translate("ZRThematicCategory", "Alle anzeigen", nullptr, -1);
}

QString ZRThematicCategory::multiColorBackgroundCategoryName()
{
    return QStringLiteral("Multicolor");
}

QString ZRThematicCategory::framesInternalCategoryName()
{
    return QStringLiteral("InterneRahmen");
}

QString ZRThematicCategory::passepartoutInternalCategoryName()
{
    return QStringLiteral("InterneMasken");
}

QString ZRThematicCategory::flatColorBackgroundCategoryName()
{
    return ZRSingleton<ZRThematicCategoryTranslationRegistry>::instance()->humanReadable(colorsCategory());
}

bool ZRThematicCategory::isCategoryAll() const
{
    return *this == categoryAll();
}

bool ZRThematicCategory::isRecycleBin() const
{
    return *this == recycleBin();
}

bool ZRThematicCategory::isFavourite() const
{
    return *this == favourites();
}

bool ZRThematicCategory::isSuggestedByAI() const
{
    return *this == suggestedByAI();
}

bool ZRThematicCategory::isUserCategory() const
{
    return *this == userLayouts() || *this == userCliparts() || *this == userMaskFrames() || *this == userMask()
        || *this == userBookStyles();
}

bool ZRThematicCategory::isSpotColorCategory() const
{
    return *this == gold() || *this == roseGold() || *this == silver() || *this == silverInk() || *this == emboss();
}

bool ZRThematicCategory::isSmartLayoutCategory() const
{
    return ZRThematicCategorySet::allSmartLayoutCategories().contains(*this);
}

bool ZRThematicCategory::isPrimaryCategory() const
{
    return *this == passpartouts() || *this == frames();
}

const QHash<ZRSpotColor, ZRThematicCategory> &ZRThematicCategory::spotColorHash()
{
    static const QHash<ZRSpotColor, ZRThematicCategory> table {
        { ZRSpotColor(ZRSpotColorNone), ZRThematicCategory() },
        { ZRSpotColor(ZRSpotColorEmboss), emboss() },
        { ZRSpotColor(ZRSpotColorGold), gold() },
        { ZRSpotColor(ZRSpotColorSilver), silver() },
        { ZRSpotColor(ZRSpotColorRoseGold), roseGold() },
        { ZRSpotColor(ZRSpotColorSilverInk), silverInk() },
    };
    return table;
}

ZRThematicCategory ZRThematicCategory::fromSpotColor(const ZRSpotColor &spotColor)
{
    return spotColorHash().value(spotColor);
}

ZRSpotColor ZRThematicCategory::toSpotColor() const
{
    const QHash<ZRSpotColor, ZRThematicCategory> &table = spotColorHash();
    for (auto it = table.cbegin(); it != table.cend(); ++it) {
        if (it.value() == *this)
            return it.key();
    }
    return ZRSpotColor(ZRSpotColorNone);
}

QHash<QString, QColor> ZRThematicCategory::readColorsXML()
{
    QHash<QString, QColor> colors;
    const QString path = ZRSingleton<ZRDirectoryConfig>::instance()->resource(QStringLiteral("colors.xml"), false);
    const QDomElement root = ZRXMLLoader::loadDocumentElement(QFileInfo(path));
    const QDomNodeList elements = root.elementsByTagName(QStringLiteral("color"));
    for (int i = 0; i < elements.size(); ++i) {
        const QDomElement element = elements.at(i).toElement();
        colors.insert(ZRXMLParser::attribute(element, QStringLiteral("name"), QString(), true),
            QColor::fromString(ZRXMLParser::attribute(element, QStringLiteral("rgb"), QString(), true)));
    }
    return colors;
}

QColor ZRThematicCategory::color(const QString &name)
{
    static const QHash<QString, QColor> colors = readColorsXML();
    const auto found = colors.constFind(name);
    if (found != colors.cend())
        return found.value();
    // Metallic variants ("Gold_metallic") have the colour of the plain colour; the suffix itself is not checked.
    if (name.size() > metallicSuffixLength)
        return colors.value(name.left(name.size() - metallicSuffixLength));
    return QColor();
}

QColor ZRThematicCategory::color() const
{
    return color(internalName());
}

QString ZRThematicCategory::colorSortKey() const
{
    const QColor c = color();
    int hue = c.hsvHue();
    const int saturation = c.hsvSaturation();
    const int value = c.value();
    int group = 3;
    if (hue < 0) {
        group = 1;
        hue = 0;
    }
    if (saturation <= 39)
        group = 2;
    const QChar blank = QLatin1Char(' ');
    return QStringLiteral("%1%2%3%4")
        .arg(group)
        .arg(hue, 2, 16, blank)
        .arg(saturation, 2, 16, blank)
        .arg(value, 2, 16, blank);
}

bool ZRThematicCategory::compareAlphabetically(const ZRThematicCategory &a, const ZRThematicCategory &b)
{
    QString nameA = a.visibleName();
    QString nameB = b.visibleName();
    // "_" sorts after the capitals, so prefixing the partner of a user category puts user categories first.
    if (a.isUserCategory())
        nameB.prepend(QLatin1Char('_'));
    if (b.isUserCategory())
        nameA.prepend(QLatin1Char('_'));
    return nameA < nameB;
}

QDebug operator<<(QDebug debug, const ZRThematicCategory &category)
{
    QDebugStateSaver saver(debug);
    debug.nospace().noquote() << "Category name: " << category.internalName()
                              << " visible name: " << category.visibleName();
    return debug;
}
