#include "cataloguegenerator.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <array>
#include <string_view>

namespace {

/** splitmix64: the same numbers everywhere, unlike the standard distributions. */
class Random
{
public:
    explicit Random(quint64 seed)
        : m_state(seed * 0x9E3779B97F4A7C15ULL + 0x2545F4914F6CDD1DULL)
    { }

    quint64 next()
    {
        quint64 z = (m_state += 0x9E3779B97F4A7C15ULL);
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
        return z ^ (z >> 31);
    }
    /** A number from 0 to @p bound - 1. */
    int below(int bound) { return int(next() % quint64(bound)); }
    /** True in @p percent cases out of 100. */
    bool chance(int percent) { return below(100) < percent; }
    template<typename T, size_t N> const T &pick(const std::array<T, N> &items) { return items[size_t(below(int(N)))]; }

private:
    quint64 m_state;
};

struct Kind
{
    const char *name;
    const char *articleClass;
    const char *binding; // empty: wall decor needs none
    const char *pages;
    const char *productAlignment;
    std::array<const char *, 4> pageTypes; // keys used by defaults, surroundings and jig categories
    std::array<const char *, 2> alignments;
    const char *surroundingType;
    const char *pageNamingStyle;
};

const std::array<Kind, 7> kinds { {
    { "photobook", "photobook", "hardcover", "cover_back, spine, cover_front, content_pages", "normal",
        { "cover_front", "cover_back", "spine", "content" }, { "left", "right" }, "BOOK", "book" },
    { "calendar", "calendar", "spiral", "title, calendar_sheets", "normal", { "title", "photo", "grid", "content" },
        { "top", "bottom" }, "CALENDAR", "calendar" },
    { "card", "card", "folded", "cover_front, content, content, cover_back", "vario_card",
        { "cover_front", "content", "cover_back", "content" }, { "left", "right" }, "GIFT", "both_sided_card" },
    { "walldecor", "walldecor", "", "content", "normal", { "content", "content", "content", "content" },
        { "center", "middle" }, "FRAME_COMBINED", "art_print" },
    { "mug", "mug", "wrapped", "content", "normal", { "content", "content", "content", "content" }, { "left", "right" },
        "BORDER", "none" },
    { "advent", "adventcalendar", "single", "cover_front, advent_doors", "foto_advent_calendar",
        { "cover_front", "content", "door", "door" }, { "center", "middle" }, "ADVENTCALENDAR", "adventcalendar" },
    { "softcover", "photobook", "softcover", "wrap_cover, cover_inside_front, content_pages, cover_inside_back",
        "normal", { "wrap_front", "wrap_back", "cover_inside_front", "content" }, { "left", "right" }, "PHOTOPAPERBOOK",
        "book" },
} };

const std::array<const char *, 14> categoryNames { "Reisen", "Hochzeit", "Familie", "Farben", "Natur", "Jahreszeiten",
    "Weihnachten", "Winter", "Geburtstag", "Baby &amp; Kinder", "Muster", "Kalendarium", "Multicolor", "Sport" };
// Names with umlauts and sharp s exercise the umlaut replacement of default templates.
const std::array<const char *, 12> layoutNames { "L-1-Foto-Vollflaeche", "L-2-Fotos-quer", "L-2-Fotos-hoch",
    "L-3-Fotos-Collage", "L-4-Fotos-Raster", "Titel-Großes-Foto", "Rückseite-Übersicht", "L-Panorama-links",
    "L-Panorama-rechts", "Schlussseite-Text", "L-Größe-Mischung", "Kalendarium-Monat-Zeile" };
const std::array<const char *, 6> backgroundNames { "201", "203", "205", "Hintergrund-Grün", "Winter-Blau",
    "Vorsatz-Punkte" };
const std::array<const char *, 4> designNames { "Design-Klassisch-Weiß", "Design-Reise-Blau", "Design-Modern",
    "Design-Natur" };
const std::array<const char *, 5> groupNames { "Leinwand", "Poster", "Alu-Dibond", "Acrylglas", "Holz" };
const std::array<const char *, 9> jigNames { "background", "Hintergrund", "content", "clipart", "layout",
    "passepartout", "frame", "storybook", "styles_v2" };
const std::array<const char *, 3> spiralColours { "silver", "gold", "black" };

/** Appends XML text; numbers and names are written as given. */
class Writer
{
public:
    Writer &operator<<(const char *text)
    {
        m_text.append(text);
        return *this;
    }
    Writer &operator<<(char character)
    {
        m_text.append(character);
        return *this;
    }
    Writer &operator<<(int number)
    {
        m_text.append(QByteArray::number(number));
        return *this;
    }
    Writer &operator<<(const QByteArray &text)
    {
        m_text.append(text);
        return *this;
    }
    QByteArray take() { return std::move(m_text); }

private:
    QByteArray m_text;
};

QByteArray twoPageTypes(Random &random, const Kind &kind)
{
    QByteArray result = random.pick(kind.pageTypes);
    if (random.chance(30)) {
        const char *second = random.pick(kind.pageTypes);
        if (result != second)
            result.append(',').append(second);
    }
    return result;
}

void writeSurroundings(Writer &out, Random &random, const Kind &kind)
{
    out << "  <surroundings>\n";
    // Two spiral-bound surroundings; the first has a hook, coloured loops and holes.
    for (int spiral = 0; spiral < 2; ++spiral) {
        out << "    <surrounding type=\"" << kind.surroundingType << "\" pageType=\"" << twoPageTypes(random, kind)
            << "\" alignment=\"" << kind.alignments[size_t(spiral)] << "\" image=\"" << kind.name << "/spiral-"
            << random.below(90) + 10 << ".png\">\n"
            << "      <spirals count=\"" << 20 + random.below(20) << "\" hookWidth=\"" << (spiral == 0 ? 200 : 0)
            << "\" hookHeight=\"" << (spiral == 0 ? 60 : 0) << "\" loopHeight=\"150\" loopWidth=\"54\" loopDistance=\""
            << 25 + random.below(10) << "\"";
        if (spiral == 1) {
            out << "/>\n";
        } else {
            out << ">\n"
                << "        <loopImages>\n";
            for (const char *colour : spiralColours)
                out << "          <loopImage variant=\"" << colour << "\" imagePath=\"loop-" << colour << ".png\"/>\n";
            out << "        </loopImages>\n"
                << "      </spirals>\n"
                << "      <hole diameter=\"" << 50 + random.below(20) << "\" distanceY=\"" << 80 + random.below(20)
                << "\"/>\n";
        }
        out << "    </surrounding>\n";
    }
    out << "    <surrounding type=\"BOOK\" pageType=\"" << kind.pageTypes[0] << "\" alignment=\"" << kind.alignments[1]
        << "\" variant=\"finish=gold\"\n"
        << "      image=\"" << kind.name << "/front-" << random.below(90) + 10
        << ".png\" spotColor=\"gold\" imageSpotColor=\"" << kind.name << "/front-gold.png\"\n"
        << "      spotColorMask=\"" << random.below(500) << " 380 1480 760;1900 1650 2750 1900\"\n"
        << "      hasbindingshade=\"true\" x=\"170\" y=\"170\" width=\"" << 2000 + random.below(1000)
        << "\" height=\"2100\"/>\n"
        << "    <surrounding type=\"BORDER\" pageType=\"" << random.pick(kind.pageTypes) << "\" pageNr=\""
        << random.below(20) << "\" image=\"" << kind.name << "/ornament.png\" canBeHiddenByUser=\"true\"/>\n";
    if (random.chance(30))
        out << "    <surrounding type=\"TILED\" pageType=\"" << random.pick(kind.pageTypes) << "\" image=\""
            << kind.name << "/dots.png\" tileWidth=\"400\" tileHeight=\"400\" paintOnTop=\"false\"/>\n";
    else if (random.chance(40))
        out << "    <surrounding type=\"BOOK\" pageType=\"spine\" alignment=\"center\" image=\"" << kind.name
            << "/spine.png\" hasspinefold=\"true\" spinefoldwidth=\"" << 30 + random.below(60) << "\"/>\n";
    out << "  </surroundings>\n";
}

void writeDefaults(Writer &out, Random &random, const Kind &kind)
{
    const int count = 20 + random.below(17);
    out << "  <defaults>\n";
    for (int i = 0; i < count; ++i) {
        out << "    <default pageType=\"" << twoPageTypes(random, kind) << '"';
        // Most entries name their alignment; the others stand for all six.
        if (random.chance(75))
            out << " alignment=\"" << random.pick(kind.alignments) << '"';
        if (random.chance(35))
            out << " pageNr=\"" << random.below(60) << '"';
        if (random.chance(30))
            out << " scenePageCount=\"" << 10 + 2 * random.below(30) << '"';
        if (random.chance(75)) {
            out << " templates=\"" << random.pick(backgroundNames);
            if (random.chance(85))
                out << ',' << random.pick(layoutNames);
            out << '"';
        } else {
            out << " layout=\"" << random.pick(layoutNames) << "\" background=\"" << random.pick(backgroundNames)
                << '"';
        }
        if (random.chance(10))
            out << " design=\"" << random.pick(designNames) << '"';
        out << "/>\n";
    }
    out << "  </defaults>\n";
}

void writeRedirectsAndNumbering(Writer &out, Random &random)
{
    out << "  <rotationredirects>\n";
    for (int to = 0; to < 1 + random.below(2); ++to)
        out << "    <rotationredirect from=\"2\" to=\"" << to << "\" angleinvert=\"" << (to == 0 ? -1 : 1) << "\"/>\n";
    out << "  </rotationredirects>\n"
        << "  <contentredirects>\n";
    const int redirects = 1 + random.below(3);
    for (int i = 1; i <= redirects; ++i)
        out << "    <contentredirect from=\"" << 2 * i << "\" to=\"" << 2 * i - 1 << "\"/>\n";
    out << "    <contentredirect from=\"0-1\" to=\"2\"/>\n"
        << "  </contentredirects>\n"
        << "  <tilt angle=\"" << (random.chance(50) ? 270 : 90) << "\"/>\n"
        << "  <productionnumbering>2, 1, 3</productionnumbering>\n"
        << "  <pageswithcontent>0, 1, 3, 5, 7, 9, 11</pageswithcontent>\n"
        << "  <pageNumberConfig>\n"
        << "    <margin verticalMargin=\"" << 40 + random.below(60) << "\" horizontalMargin=\""
        << 40 + random.below(100) << "\"/>\n"
        << "    <font fontSize=\"" << 16 + random.below(10) << "\"/>\n"
        << "  </pageNumberConfig>\n"
        << "  <extra_production_pages>\n"
        << "    <item>\n"
        << "      <target_pages>2-25</target_pages>\n"
        << "      <pdf filename=\"extra/door-backprint-" << random.below(100) << ".pdf\" type=\"door_backprint\" "
        << "layer=\"2\"/>\n"
        << "    </item>\n"
        << "  </extra_production_pages>\n";
}

void writeEditorAbilities(Writer &out, Random &random, const Kind &kind)
{
    out << "  <editorAbilities convertable=\"" << (random.chance(80) ? "true" : "false") << "\">\n"
        << "    <assistant enabled=\"true\"/>\n"
        << "    <pageNamingStyle>" << kind.pageNamingStyle << "</pageNamingStyle>\n"
        << "    <pageTilt disabled=\"true\"/>\n"
        << "    <startPage>" << random.below(3) << "</startPage>\n";
    if (kind.pageNamingStyle == std::string_view("calendar"))
        out << "    <dateRangeConstraint isEnforced=\"true\" minimumFromCurrentYear=\"0\" "
               "maximumFromCurrentYear=\"2\"/>\n";
    out << "    <jigs showChangeBaseDesignButton=\"true\">\n";
    const int jigs = 3 + random.below(3);
    const int first = random.below(int(jigNames.size()));
    for (int j = 0; j < jigs; ++j) {
        const char *jig = jigNames[size_t((first + j) % int(jigNames.size()))];
        out << "      <" << jig << " rotatable=\"true\" exactArticle=\"" << (random.chance(50) ? "true" : "false")
            << '"';
        if (j >= 2) {
            out << "/>\n";
            continue;
        }
        out << ">\n";
        const int lines = 1 + random.below(2);
        for (int line = 0; line < lines; ++line) {
            out << "        <categories pageType=\"" << twoPageTypes(random, kind) << "\">";
            const int names = 2 + random.below(3);
            for (int n = 0; n < names; ++n)
                out << (n ? "," : "") << random.pick(categoryNames);
            out << "</categories>\n";
        }
        out << "      </" << jig << ">\n";
    }
    out << "    </jigs>\n"
        << "  </editorAbilities>\n";
}

void writePreview(Writer &out, Random &random)
{
    out << "  <preview3D>\n"
        << "    <mesh file=\"meshes/model-" << random.below(40) << ".glb\" flipY=\"true\" flipX=\"false\"/>\n"
        << "    <textureTarget name=\"outside\" x=\"0\" y=\"0\" width=\"2100\" height=\"950\" page=\"0\"/>\n"
        << "    <cupRing x=\"0\" y=\"0\" width=\"2100\" height=\"60\"/>\n"
        << "    <camera>\n"
        << "      <position x=\"0\" y=\"6.5\" z=\"24\"/>\n"
        << "      <lookAt x=\"0\" y=\"4.75\" z=\"0\"/>\n"
        << "    </camera>\n"
        << "    <windowSize width=\"480\" height=\"360\"/>\n"
        << "  </preview3D>\n";
}

} // namespace

namespace CatalogueGenerator {

QString productName(int index)
{
    return QStringLiteral("bench_%1_%2")
        .arg(QLatin1String(kinds[size_t(index) % kinds.size()].name))
        .arg(index, 5, 10, QLatin1Char('0'));
}

QString fileName(int index)
{
    return productName(index) + QStringLiteral(".xml");
}

QByteArray productFile(int index)
{
    Random random(quint64(index) + 1);
    const Kind &kind = kinds[size_t(index) % kinds.size()];
    Writer out;
    out << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        << "<products>\n"
        << "<product name=\"" << productName(index).toUtf8() << "\"\n"
        << "    class=\"" << kind.articleClass << "\"\n";
    if (*kind.binding)
        out << "    binding=\"" << kind.binding << "\"\n";
    out << "    isVario=\"" << (random.chance(20) ? "true" : "false") << "\" isTwoSided=\""
        << (random.chance(60) ? "true" : "false") << "\" horizontalPages=\"" << (random.chance(80) ? "true" : "false")
        << "\"\n"
        << "    productAlignment=\"" << kind.productAlignment << "\" imageFXs=\""
        << (random.chance(10) ? "gray, PRESERVE_ALPHA_CHANNEL" : "none") << "\" hasLogoOnSpine=\""
        << (random.chance(50) ? "true" : "false") << "\"\n"
        << "    spotColor=\"gold,silver\" safetymargin=\"" << 20 + random.below(40) << "\" safetymargincover=\""
        << (random.chance(50) ? 170 : -1) << "\" foldsafetymargin=\"" << 30 + random.below(40) << "\">\n"
        << "  <pages>" << kind.pages << "</pages>\n"
        << "  <classification group=\"" << random.pick(groupNames) << "\" cm=\"" << 20 + 5 * random.below(20) << "x"
        << 20 + 5 * random.below(16) << "\" inch=\"" << 8 + 2 * random.below(20) << " x " << 8 + 2 * random.below(16)
        << "\"/>\n";
    writeSurroundings(out, random, kind);
    writeDefaults(out, random, kind);
    writeRedirectsAndNumbering(out, random);
    writeEditorAbilities(out, random, kind);
    out << "  <variants>\n"
        << "    <variant name=\"finish\" choices=\"none,gold,silver\" default=\"none\"/>\n"
        << "    <variant name=\"paper\" choices=\"matt,glossy\" default=\"matt\"/>\n"
        << "  </variants>\n"
        << "  <pricelist>\n"
        << "    <category>Benchmark " << kind.name << ' ' << random.below(100) << "</category>\n"
        << "  </pricelist>\n"
        << "  <barcodes>\n"
        << "    <barcode type=\"ean13\" x=\"" << 100 + random.below(3000) << "\" y=\"1880\" width=\"380\" "
        << "height=\"140\"/>\n"
        << "  </barcodes>\n";
    writePreview(out, random);
    out << "</product>\n"
        << "</products>\n";
    return out.take();
}

Catalogue ensureCatalogue(const QString &directory, int count)
{
    Catalogue result;
    result.directory = QDir(directory).absolutePath();
    const QDir dir(result.directory);
    if (!dir.mkpath(QStringLiteral(".")))
        return result;

    const QString stampPath = dir.filePath(QStringLiteral("catalogue.stamp"));
    const QByteArray stamp = "revision " + QByteArray::number(revision) + " files " + QByteArray::number(count) + '\n';
    QFile stampFile(stampPath);
    const bool reuse = stampFile.open(QIODevice::ReadOnly) && stampFile.readAll() == stamp;
    stampFile.close();

    if (!reuse) {
        QFile::remove(stampPath);
        const QStringList stale = dir.entryList({ QStringLiteral("*.xml") }, QDir::Files);
        for (const QString &name : stale)
            QFile::remove(dir.filePath(name));
        for (int i = 0; i < count; ++i) {
            QFile file(dir.filePath(fileName(i)));
            if (!file.open(QIODevice::WriteOnly) || file.write(productFile(i)) < 0)
                return result;
        }
        QSaveFile saved(stampPath);
        if (!saved.open(QIODevice::WriteOnly) || saved.write(stamp) < 0 || !saved.commit())
            return result;
    }

    const QFileInfoList files = dir.entryInfoList({ QStringLiteral("*.xml") }, QDir::Files, QDir::Unsorted);
    for (const QFileInfo &file : files)
        result.bytes += file.size();
    result.files = int(files.size());
    return result;
}

} // namespace CatalogueGenerator
