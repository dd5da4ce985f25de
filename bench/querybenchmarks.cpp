// zrbench_queries: the queries that the editor asks thousands of times while the user works.
//
//   zrbench_queries [Google Benchmark options, e.g. --benchmark_repetitions=5]
//
// Fixtures, written to a temporary directory at start: a photo book and a calendar (also the
// products directory of the singleton registry), a category translation file, and a generated
// catalogue of 2,000 products for look-ups in a registry of realistic size. Every benchmark first
// checks the answer it is timed on, so none measures a look-up that silently misses.

#include "cataloguegenerator.h"
#include "directoryregistry.h"

#include <ZRDefaultTemplateKey.h>
#include <ZRDefaultTemplateMap.h>
#include <ZRDirectoryConfig.h>
#include <ZRJigType.h>
#include <ZRLocaleAndTranslationManager.h>
#include <ZRPageType.h>
#include <ZRPageTypeList.h>
#include <ZRProductTypeConfigRegistry.h>
#include <ZRProductTypeDescription.h>
#include <ZRSurroundingDescriptionList.h>
#include <ZRSurroundingKey.h>
#include <ZRThematicCategory.h>
#include <ZRThematicCategoryTranslationRegistry.h>

#include <QCoreApplication>
#include <QDomDocument>
#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <memory>

namespace {

[[noreturn]] void fail(const char *what)
{
    std::fprintf(stderr, "zrbench_queries: fixture check failed: %s\n", what);
    std::exit(1);
}

void check(bool condition, const char *what)
{
    if (!condition)
        fail(what);
}

QDomElement parse(const QByteArray &xml)
{
    QDomDocument document;
    if (!document.setContent(xml))
        fail("parse fixture XML");
    return document.documentElement();
}

bool writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

/**
 * The default templates of the photo book fixture. The entries that the template benchmark asks
 * for lie among thirty others of the same page context, since real tables hold many page numbers
 * per context and the table's hash leaves page numbers out.
 */
QByteArray photobookDefaults()
{
    QByteArray xml = "<defaults>\n"
                     "<default pageType=\"content\" templates=\"201,L-2-Fotos-quer\"/>\n"
                     "<default pageType=\"content\" alignment=\"left\" scenePageCount=\"26\" "
                     "layout=\"L-3-Fotos-Collage\" background=\"201\"/>\n"
                     "<default pageType=\"content\" alignment=\"left\" pageNr=\"5\" scenePageCount=\"26\" "
                     "layout=\"L-4-Fotos-Raster\"/>\n";
    for (int page = 30; page < 45; ++page) {
        for (const char *alignment : { "left", "right" })
            xml += "<default pageType=\"content\" alignment=\"" + QByteArray(alignment) + "\" pageNr=\""
                + QByteArray::number(page) + "\" templates=\"203,L-Seite-" + QByteArray::number(page) + "\"/>\n";
    }
    return xml + "</defaults>\n";
}

QByteArray photobookXml()
{
    return "<products><product name=\"bench_photobook\" class=\"photobook\" binding=\"hardcover\" "
           "horizontalPages=\"true\" productAlignment=\"normal\">\n"
           "<pages>cover_back, spine, cover_front, content_pages</pages>\n"
        + photobookDefaults()
        + "<editorAbilities><jigs><background>\n"
          "<categories pageType=\"cover_front,cover_back\">Reisen,Hochzeit,Familie,Farben</categories>\n"
          "<categories pageType=\"spine\">Farben</categories>\n"
          "</background><clipart rotatable=\"true\"/></jigs></editorAbilities>\n"
          "</product></products>\n";
}

QByteArray calendarXml()
{
    return "<products><product name=\"bench_calendar\" class=\"calendar\" binding=\"spiral\">\n"
           "<pages>title, calendar_sheets</pages>\n"
           "</product></products>\n";
}

QByteArray translationsXml()
{
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<TS version=\"2.1\" language=\"en\"><context>"
           "<name>ThematicCategories</name>"
           "<message><source>Farben</source><translation>Colours</translation></message>"
           "<message><source>Reisen</source><translation>Travel</translation></message>"
           "</context></TS>\n";
}

struct Fixtures
{
    QTemporaryDir directory;
    std::unique_ptr<DirectoryRegistry> generated;
    ZRProductTypeConfigRegistry *registry = nullptr;
    ZRProductType photobook { QStringLiteral("bench_photobook") };
    ZRProductType calendar { QStringLiteral("bench_calendar") };
    ZRDefaultTemplateMap templates;
    ZRSurroundingDescriptionList twentySurroundings;
};

Fixtures *fixtures = nullptr;

/**
 * Twenty surroundings: nineteen for spine pages with alternating variants, then one for the left
 * content page without a variant, so that a content-page query walks the whole list.
 */
QByteArray twentySurroundingsXml()
{
    QByteArray xml = "<product name=\"bench\"><surroundings>";
    for (int i = 0; i < 19; ++i)
        xml += "<surrounding type=\"BOOK\" pageType=\"spine\" alignment=\"center\" variant=\"finish="
            + QByteArray(i % 2 ? "gold" : "silver") + "\" image=\"spine-" + QByteArray::number(i) + ".png\"/>";
    xml += "<surrounding type=\"BORDER\" pageType=\"content\" alignment=\"left\" image=\"content.png\"/>";
    xml += "</surroundings></product>";
    return xml;
}

/** Everything the benchmarks read is written here, so that they measure the same data everywhere. */
void setUpFixtures()
{
    fixtures = new Fixtures;
    const QDir root(fixtures->directory.path());
    for (const char *sub : { "products", "installed", "translations", "catalogue" })
        check(root.mkpath(QLatin1String(sub)), "make the fixture directories");
    check(writeFile(root.filePath(QStringLiteral("products/photobook.xml")), photobookXml())
            && writeFile(root.filePath(QStringLiteral("products/calendar.xml")), calendarXml())
            && writeFile(root.filePath(QStringLiteral("translations/categories_en_bench.ts")), translationsXml()),
        "write the fixture files");

    ZRDirectoryConfig *directories = ZRSingleton<ZRDirectoryConfig>::instance();
    directories->setResourcesDir(root);
    directories->setProductsDir(true, QDir(root.filePath(QStringLiteral("products"))));
    directories->setProductsDir(false, QDir(root.filePath(QStringLiteral("installed"))));
    directories->setGlimmerThematicTranslationsDirectories({ root.filePath(QStringLiteral("translations")) });
    ZRSingleton<ZRLocaleAndTranslationManager>::instance()->setLocale(QLocale(QStringLiteral("en_US")));

    fixtures->registry = ZRSingleton<ZRProductTypeConfigRegistry>::instance();
    check(fixtures->registry->exists(fixtures->photobook), "the photo book is valid");
    check(fixtures->registry->exists(fixtures->calendar), "the calendar is valid");

    const auto catalogue = CatalogueGenerator::ensureCatalogue(root.filePath(QStringLiteral("catalogue")), 2000);
    check(catalogue.files == 2000, "generate 2,000 products");
    fixtures->generated = std::make_unique<DirectoryRegistry>(QDir(catalogue.directory));
    check(fixtures->generated->allProducts().size() == 2000, "load 2,000 products");

    fixtures->templates = ZRDefaultTemplateMap(parse(photobookDefaults()));
    fixtures->twentySurroundings
        = ZRSurroundingDescriptionList(ZRProductType(QStringLiteral("bench")), parse(twentySurroundingsXml()));
    check(fixtures->twentySurroundings.size() == 20, "twenty surroundings");
}

// --- registries ----------------------------------------------------------------------------------

void BM_Description(benchmark::State &state)
{
    const ZRProductTypeConfigRegistryAbstract *registry = fixtures->generated.get();
    const ZRProductType known(CatalogueGenerator::productName(1234));
    check(registry->description(known)->productType() == known, "description of a generated product");
    for (auto _ : state)
        benchmark::DoNotOptimize(registry->description(known));
}
BENCHMARK(BM_Description);

void BM_DescriptionUnknown(benchmark::State &state)
{
    const ZRProductTypeConfigRegistryAbstract *registry = fixtures->generated.get();
    const ZRProductType unknown(QStringLiteral("no_such_product"));
    check(registry->description(unknown) == registry->voidDescription(), "unknown product gives the void one");
    for (auto _ : state)
        benchmark::DoNotOptimize(registry->description(unknown));
}
BENCHMARK(BM_DescriptionUnknown);

/** Arg: the number of content pages; a photo book (content_pages) and a calendar (calendar_sheets). */
void BM_PageTypesPhotobook(benchmark::State &state)
{
    const int count = int(state.range(0));
    check(fixtures->registry->pageTypes(fixtures->photobook, count).size() == count + 2,
        "photo book page count: the back cover takes the place of one content page");
    for (auto _ : state)
        benchmark::DoNotOptimize(fixtures->registry->pageTypes(fixtures->photobook, count));
}
BENCHMARK(BM_PageTypesPhotobook)->Arg(26)->Arg(100);

void BM_PageTypesCalendar(benchmark::State &state)
{
    const int count = int(state.range(0));
    check(fixtures->registry->pageTypes(fixtures->calendar, count).size() == count + 1, "calendar page count");
    for (auto _ : state)
        benchmark::DoNotOptimize(fixtures->registry->pageTypes(fixtures->calendar, count));
}
BENCHMARK(BM_PageTypesCalendar)->Arg(24);

/** One call per page of a 26-page photo book, all pages in turn. */
void BM_PageAlignment(benchmark::State &state)
{
    const ZRProductTypeDescription *description = fixtures->registry->description(fixtures->photobook);
    const ZRPageTypeList pages = description->pageTypes(26);
    const int size = int(pages.size());
    check(description->pageAlignment(pages, 1).value() == ZRPageAlignmentCenter, "the spine is centred");
    int index = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(description->pageAlignment(pages, index));
        index = index + 1 == size ? 0 : index + 1;
    }
}
BENCHMARK(BM_PageAlignment);

void BM_AllowedJigCategories(benchmark::State &state)
{
    const ZRPageType coverFront(ZRPageTypeCoverFront);
    const ZRJigType background(ZRJigTypeBackground);
    check(fixtures->registry->allowedJigCategories(fixtures->photobook, coverFront, background).size() == 4,
        "four background categories on the front cover");
    for (auto _ : state)
        benchmark::DoNotOptimize(fixtures->registry->allowedJigCategories(fixtures->photobook, coverFront, background));
}
BENCHMARK(BM_AllowedJigCategories);

/** Threads(2): two threads asking at once, as the editor's loader threads do. */
void BM_SingletonInstance(benchmark::State &state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(ZRSingleton<ZRProductTypeConfigRegistry>::instance());
}
BENCHMARK(BM_SingletonInstance)->Threads(1)->Threads(2);

// --- default templates and surroundings ----------------------------------------------------------

/**
 * Arg: the fallback depth at which the sample photo book's defaults answer: 0 the key itself, 1 any
 * page with the same scene page count, 2 any page and any count; 3 with scene page count -1, which
 * goes from the key straight to the last step.
 */
void BM_FindTemplate(benchmark::State &state)
{
    const ZRPageContext leftContent { ZRPageType(ZRPageTypeContent), ZRPageAlignment(ZRPageAlignmentLeft) };
    struct Case
    {
        int pageNumber;
        int scenePageCount;
        const char *expected;
    };
    static const Case cases[] = {
        { 5, 26, "L-4-Fotos-Raster" },
        { 11, 26, "L-3-Fotos-Collage" },
        { 11, 30, "L-2-Fotos-quer" },
        { 11, -1, "L-2-Fotos-quer" },
    };
    const Case &c = cases[state.range(0)];
    const ZRDefaultTemplateKey key(leftContent, ZRDefaultTemplateLayout, c.pageNumber, c.scenePageCount);
    const QString found = fixtures->templates.findTemplate(key);
    check(
        found == QLatin1String(c.expected), qPrintable(QStringLiteral("default template at its depth: %1").arg(found)));
    for (auto _ : state)
        benchmark::DoNotOptimize(fixtures->templates.findTemplate(key));
}
BENCHMARK(BM_FindTemplate)->DenseRange(0, 3);

/** Arg 0: the twentieth surrounding fits; 1: no variant fits, so the list is walked again without it. */
void BM_FindDescription(benchmark::State &state)
{
    const ZRPageContext leftContent { ZRPageType(ZRPageTypeContent), ZRPageAlignment(ZRPageAlignmentLeft) };
    const ZRSurroundingKey key = state.range(0) == 0
        ? ZRSurroundingKey(leftContent, 4)
        : ZRSurroundingKey(leftContent, 4, ZRArticleVariants(QStringLiteral("finish=rosegold")));
    check(fixtures->twentySurroundings.findDescription(key).imageResource() == QLatin1String("content.png"),
        "the content surrounding fits");
    for (auto _ : state)
        benchmark::DoNotOptimize(fixtures->twentySurroundings.findDescription(key));
}
BENCHMARK(BM_FindDescription)->Arg(0)->Arg(1);

// --- key tables ----------------------------------------------------------------------------------

void BM_DecodeCSV(benchmark::State &state)
{
    const auto *table = ZRPageType().enumToStringTable();
    const QString text = QStringLiteral("cover_front, Content ,spine");
    check(table->decodeCSV(text) == ZRPageTypeEnum(ZRPageTypeCoverFront | ZRPageTypeContent | ZRPageTypeSpine),
        "decode three page types");
    for (auto _ : state)
        benchmark::DoNotOptimize(table->decodeCSV(text));
}
BENCHMARK(BM_DecodeCSV);

void BM_EncodeCSV(benchmark::State &state)
{
    const auto *table = ZRPageType().enumToStringTable();
    const auto value = ZRPageTypeEnum(ZRPageTypeCoverFront | ZRPageTypeContent | ZRPageTypeSpine);
    check(table->encodeCSV(value).count(QLatin1Char(',')) == 2, "encode three page types");
    for (auto _ : state)
        benchmark::DoNotOptimize(table->encodeCSV(value));
}
BENCHMARK(BM_EncodeCSV);

// --- categories ----------------------------------------------------------------------------------

void BM_ThematicCategoryFromName(benchmark::State &state)
{
    const QString name = QStringLiteral("Farben");
    const ZRThematicCategory first(name);
    check(first.visibleName() == QLatin1String("Colours"), "the category is translated");
    for (auto _ : state)
        benchmark::DoNotOptimize(ZRThematicCategory(name));
}
BENCHMARK(BM_ThematicCategoryFromName);

/** Arg 0: found in the locale's table; 1: found through the language's table; 2: not translated. */
void BM_Translate(benchmark::State &state)
{
    const ZRThematicCategoryTranslationRegistry *translations
        = ZRSingleton<ZRThematicCategoryTranslationRegistry>::instance();
    struct Case
    {
        const char *source;
        const char *locale;
        const char *expected;
    };
    static const Case cases[] = {
        { "Farben", "en_US", "Colours" },
        { "Farben", "en_GB", "Colours" },
        { "Unbekannt", "en_US", "Unbekannt" },
    };
    const Case &c = cases[state.range(0)];
    const QString source = QString::fromLatin1(c.source);
    const QLocale locale(QString::fromLatin1(c.locale));
    check(translations->translate(source, locale) == QLatin1String(c.expected), "translation");
    for (auto _ : state)
        benchmark::DoNotOptimize(translations->translate(source, locale));
}
BENCHMARK(BM_Translate)->DenseRange(0, 2);

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    setUpFixtures();
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    delete fixtures;
    return 0;
}
