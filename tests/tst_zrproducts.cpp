#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>

namespace {
struct Result
{
    int exitCode = -1;
    QString out;
    QString err;
};

/** Runs the inspector with @p arguments, away from any catalogue configured in the environment. */
Result run(const QStringList &arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    const QStringList keys = environment.keys();
    for (const QString &key : keys) {
        if (key.startsWith(QLatin1String("ZR_")))
            environment.remove(key);
    }
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(ZRPRODUCTS_TOOL), arguments);
    const bool finished = process.waitForFinished(120000);
    Result result;
    if (!finished || process.exitStatus() != QProcess::NormalExit)
        return result;
    result.exitCode = process.exitCode();
    result.out = QString::fromUtf8(process.readAllStandardOutput());
    result.err = QString::fromUtf8(process.readAllStandardError());
    return result;
}

QJsonDocument runJson(const QStringList &arguments, int expectedExitCode = 0)
{
    const Result result = run(arguments + QStringList { QStringLiteral("--json") });
    if (result.exitCode != expectedExitCode)
        qWarning("exit code %d, stderr: %s", result.exitCode, qPrintable(result.err));
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(result.out.toUtf8(), &error);
    if (error.error != QJsonParseError::NoError)
        qWarning("not JSON (%s): %s", qPrintable(error.errorString()), qPrintable(result.out.left(200)));
    return document;
}

/** The value at a '/'-separated path of object keys and array indexes; undefined when it is missing. */
QJsonValue valueAt(QJsonValue value, const QString &path)
{
    const QStringList steps = path.split(QLatin1Char('/'));
    for (const QString &step : steps) {
        bool isIndex = false;
        const int index = step.toInt(&isIndex);
        value = isIndex ? value.toArray().at(index) : value.toObject().value(step);
    }
    return value;
}

/** The "name" of the product element of every description file of @p dir. */
QStringList productNames(const QString &dir)
{
    QStringList names;
    const QFileInfoList files = QDir(dir).entryInfoList({ QStringLiteral("*.xml") }, QDir::Files);
    for (const QFileInfo &info : files) {
        QFile file(info.filePath());
        QDomDocument document;
        if (file.open(QIODevice::ReadOnly) && document.setContent(&file))
            names.append(document.documentElement()
                             .firstChildElement(QStringLiteral("product"))
                             .attribute(QStringLiteral("name")));
    }
    names.sort();
    return names;
}

const QString brokenProducts = QStringLiteral(ZR_TEST_DATA_DIR "/broken_catalogue/products");
const QString brokenInstalled = QStringLiteral(ZR_TEST_DATA_DIR "/broken_catalogue/installed");
} // namespace

class tst_ZRProducts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void commandLine_data();
    void commandLine();
    void listHasEveryProduct();
    void show_data();
    void show();
    void pages_data();
    void pages();
    void categories_data();
    void categories();
    void checkFindsEveryFault_data();
    void checkFindsEveryFault();
    void checkJson();
};

void tst_ZRProducts::commandLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("out");
    QTest::addColumn<QString>("err");

    const QString usage = QStringLiteral("Try 'zrproducts --help'");
    const QString badCount = QStringLiteral("not a number of pages from 0 to 9999: ");
    // clang-format off
    QTest::newRow("list text") << QStringList { "list" } << 0
        << "^PRODUCT +CLASS +BINDING +PAGES +VALID\n(.|\n)*walldecor_canvas_60x40 +walldecor +- +1 +yes\n(.|\n)*\nLegacy products\n"
           "(.|\n)*card_postcard_easy_a6_2018 +card +single +1 +yes +card_folded_vario_a6 +RewriteOneSidedEasyToTwoSidedVario" << QString();
    QTest::newRow("show text") << QStringList { "show", "photobook_hardcover_a4_landscape" } << 0
        << "Has text on spine: +yes\n(.|\n)*Safety margins:\n  All: +50\n  Covers: +170\n  Fold: +60\n(.|\n)*- Jig: +frame\n +Name: +Rahmen\n +Enabled: +no"
        << QString();
    QTest::newRow("show in English") << QStringList { "show", "walldecor_canvas_60x40", "--lang", "en" } << 0
        << "- Jig: +frame\n +Name: +Frame\n(.|\n)*- Jig: +wallholder\n +Name: +Wall mount\n(.|\n)*\n  Description: +Photo canvas\n"
        << QString();
    QTest::newRow("show legacy product") << QStringList { "show", "card_postcard_easy_a6_2018" } << 0
        << "Legacy: +yes\n(.|\n)*Replaced by: +card_folded_vario_a6\n" << QString();
    QTest::newRow("pages text") << QStringList { "pages", "calendar_wall_a3_portrait", "2" } << 0
        << "^INDEX +PAGE TYPE +ALIGNMENT +MARGIN +LAYOUT +BACKGROUND +DESIGN\n0 +title +left +50 +Kalender-Titel-1-Foto +201 +-\n"
           "1 +photo_page +right +50 +Kalender-1-Foto-Vollflaeche +201 +-\n2 +grid_page +left +50 +Kalendarium-Monat-Zeile +201 +-\n$" << QString();
    QTest::newRow("sample catalogue is clean") << QStringList { "check" } << 0
                                               << "^12 files checked in 3 directories: no problems\n$" << QString();
    QTest::newRow("library warnings on a broken catalogue") << QStringList { "list", "--products", brokenProducts } << 0
        << "\nbroken_no_binding +card +- +2 +no\n"
        << "^(zrproducts: warning: (parse error|could not open .*/not_xml\\.xml)\n){2}$";
    QTest::newRow("unknown product") << QStringList { "show", "no_such_product" } << 1 << QString()
                                     << "^zrproducts: unknown product \"no_such_product\"\n$";
    QTest::newRow("unknown command") << QStringList { "frobnicate" } << 2 << QString()
                                     << "unknown command \"frobnicate\"\n" + usage;
    QTest::newRow("unknown option") << QStringList { "list", "--colour" } << 2 << QString() << "Unknown option 'colour'";
    QTest::newRow("no command") << QStringList {} << 2 << QString() << "no command given";
    QTest::newRow("show without name") << QStringList { "show" } << 2 << QString() << usage;
    QTest::newRow("count that is no number") << QStringList { "pages", "calendar_wall_a3_portrait", "many" } << 2 << QString()
                                             << badCount + "many";
    QTest::newRow("count too large") << QStringList { "pages", "calendar_wall_a3_portrait", "4294967295" } << 2 << QString()
                                     << badCount + "4294967295";
    QTest::newRow("three product directories")
        << QStringList { "list", "--products", brokenProducts, "--products", brokenProducts, "--products", brokenInstalled } << 2
        << QString() << "at most twice";
    QTest::newRow("missing products directory") << QStringList { "list", "--products", "/nonexistent/products" } << 2 << QString()
                                                << "no such directory: /nonexistent/products";
    QTest::newRow("unknown language") << QStringList { "categories", "--lang", "xx" } << 2 << QString() << "unknown language: xx";
    // clang-format on
}

void tst_ZRProducts::commandLine()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, exitCode);
    QFETCH(QString, out);
    QFETCH(QString, err);

    const Result result = run(arguments);
    QCOMPARE(result.exitCode, exitCode);
    if (!out.isEmpty())
        QVERIFY2(QRegularExpression(out).match(result.out).hasMatch(), qPrintable(result.out));
    if (err.isEmpty())
        QCOMPARE(result.err, QString());
    else
        QVERIFY2(QRegularExpression(err).match(result.err).hasMatch(), qPrintable(result.err));
    if (exitCode != 0)
        QCOMPARE(result.out, QString());
}

void tst_ZRProducts::listHasEveryProduct()
{
    const QJsonArray products = runJson({ QStringLiteral("list") }).array();
    QStringList current;
    QStringList legacy;
    for (const QJsonValue &product : products) {
        const QJsonObject object = product.toObject();
        QVERIFY2(object.value(QStringLiteral("valid")).toBool(), qPrintable(object.value("name").toString()));
        (object.value(QStringLiteral("legacy")).toBool() ? legacy : current)
            .append(object.value(QStringLiteral("name")).toString());
    }
    // Sorted by name, and exactly the products of the description files.
    QCOMPARE(current, productNames(QStringLiteral(ZR_EXAMPLES_DIR "/products")));
    QCOMPARE(legacy, productNames(QStringLiteral(ZR_EXAMPLES_DIR "/resources/products/legacy")));
}

void tst_ZRProducts::show_data()
{
    QTest::addColumn<QString>("product");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QJsonValue>("expected");

    const QString hardCover = QStringLiteral("photobook_hardcover_a4_landscape");
    const QString wallCalendar = QStringLiteral("calendar_wall_a3_portrait");
    // clang-format off
    QTest::newRow("hard cover: spine fold") << hardCover << "surroundings/1/spineFoldWidth" << QJsonValue(80);
    QTest::newRow("wall calendar: loop picture found") << wallCalendar << "surroundings/0/spirals/loopPicture"
                                                       << QJsonValue("54x150");
    QTest::newRow("wall calendar: hole") << wallCalendar << "surroundings/0/hole/diameter" << QJsonValue(60);
    QTest::newRow("desk calendar: cover margin -1 is none") << "calendar_desk_a5_landscape" << "safetyMargins/covers"
                                                            << QJsonValue(QJsonValue::Undefined);
    QTest::newRow("legacy: strategy") << "card_postcard_easy_a6_2018" << "conversionStrategy"
                                      << QJsonValue("RewriteOneSidedEasyToTwoSidedVario");
    // clang-format on
}

void tst_ZRProducts::show()
{
    QFETCH(QString, product);
    QFETCH(QString, path);

    const QJsonDocument document = runJson({ QStringLiteral("show"), product });
    QCOMPARE(document.object().value(QStringLiteral("name")).toString(), product);
    QTEST(valueAt(document.object(), path), "expected");
}

void tst_ZRProducts::pages_data()
{
    QTest::addColumn<QString>("product");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("pageCount");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QJsonValue>("expected");

    const QString hardCover = QStringLiteral("photobook_hardcover_a4_landscape");
    // clang-format off
    QTest::newRow("hard cover: back cover takes a content page") << hardCover << 10 << 3 + 9 << "11/pageType"
                                                                 << QJsonValue("content");
    QTest::newRow("hard cover: spine in the middle") << hardCover << 10 << 12 << "1/alignment" << QJsonValue("center");
    QTest::newRow("hard cover: design by page number") << hardCover << 10 << 12 << "2/design"
                                                       << QJsonValue("Design-Klassisch-Weiss");
    QTest::newRow("desk calendar: grid first, vertical") << "calendar_desk_a5_landscape" << 2 << 1 + 2 << "2/alignment"
                                                         << QJsonValue("top");
    // clang-format on
}

void tst_ZRProducts::pages()
{
    QFETCH(QString, product);
    QFETCH(int, count);
    QFETCH(QString, path);

    const QJsonArray pages = runJson({ QStringLiteral("pages"), product, QString::number(count) }).array();
    QTEST(int(pages.size()), "pageCount");
    for (int i = 0; i < pages.size(); ++i)
        QCOMPARE(pages.at(i).toObject().value(QStringLiteral("index")).toInt(), i);
    QTEST(valueAt(pages, path), "expected");
}

void tst_ZRProducts::categories_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("internalName");
    QTest::addColumn<QString>("visibleName");
    QTest::addColumn<QJsonValue>("color");

    const QJsonValue none(QJsonValue::Null);
    // clang-format off
    QTest::newRow("special, English") << QStringList { "--lang", "en" } << "Papierkorb" << "Recycle bin" << none;
    QTest::newRow("show-all keyed by the library's English") << QStringList { "--lang", "en" } << "Show all" << "Show all"
                                                             << none;
    QTest::newRow("special, German") << QStringList { "--lang", "de" } << "Papierkorb" << "Papierkorb" << none;
    QTest::newRow("colour of colors.xml") << QStringList { "--lang", "en" } << "Weiß" << "White" << QJsonValue("#ffffff");
    QTest::newRow("named metallic variant") << QStringList { "--lang", "en", "Gold_metallic" } << "Gold_metallic" << "Gold"
                                            << QJsonValue("#c9a646");
    QTest::newRow("named unknown") << QStringList { "--lang", "de", "Quatsch" } << "Quatsch" << "Quatsch" << none;
    // clang-format on
}

void tst_ZRProducts::categories()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, internalName);
    QFETCH(QString, visibleName);
    QFETCH(QJsonValue, color);

    const QJsonArray rows = runJson(QStringList { QStringLiteral("categories") } + arguments).array();
    QJsonObject found;
    for (const QJsonValue &row : rows) {
        if (row.toObject().value(QStringLiteral("internalName")).toString() == internalName)
            found = row.toObject();
    }
    QVERIFY2(!found.isEmpty(), qPrintable(internalName));
    QVERIFY(found.value(QStringLiteral("key")).toInt() > 0);
    QCOMPARE(found.value(QStringLiteral("visibleName")).toString(), visibleName);
    QCOMPARE(found.value(QStringLiteral("color")), color);
    QCOMPARE(found.value(QStringLiteral("colorSortKey")).isNull(), color.isNull());
}

void tst_ZRProducts::checkFindsEveryFault_data()
{
    QTest::addColumn<QString>("line");

    const QString keys = QStringLiteral("/unknown_keys\\.xml: ");
    const QString illegal = QStringLiteral(
        ": library warning while expanding the pages: Illegaler Seitentyp in der Produktbeschreibung\\.$");
    // clang-format off
    QTest::newRow("not XML") << "/not_xml\\.xml: does not load: could not open .*/not_xml\\.xml$";
    QTest::newRow("no product element") << "/no_product\\.xml: no \"product\" element below the document element \"products\"$";
    QTest::newRow("no name") << "/no_name\\.xml: the \"product\" element has no \"name\"$";
    QTest::newRow("invalid") << "/no_binding\\.xml: product \"broken_no_binding\" is invalid: it has no binding";
    QTest::newRow("duplicate in one directory") << "/duplicate_[ab]\\.xml: product type \"broken_duplicate\" is described twice; the registry keeps the one "
                                                   "in .*/duplicate_[ab]\\.xml \\(the later file in the directory listing wins\\)$";
    QTest::newRow("first directory wins") << "installed/unknown_jig_again\\.xml: product type \"broken_unknown_jig\" is described twice; the registry "
                                             "keeps the one in .*products/unknown_jig\\.xml \\(an earlier directory wins\\)$";
    QTest::newRow("unknown jig") << "/unknown_jig\\.xml: unknown jig type \"stickers\" in /products/product/editorAbilities/jigs/stickers$";
    QTest::newRow("unknown surrounding type") << "/unknown_surrounding\\.xml: unknown surrounding type \"RIBBON\" in /products/product/surroundings/surrounding\\[2\\]/@type$";
    QTest::newRow("unknown page type") << "/unknown_page_type\\.xml: unknown page type \"leaflet\" in /products/product/pages$";
    QTest::newRow("unknown page type is 0") << "/unknown_page_type\\.xml" + illegal;
    QTest::newRow("empty page type is 0") << "/zero_page_type\\.xml" + illegal;
    QTest::newRow("bad redirect") << "/bad_redirect\\.xml: library warning while reading: parse error$";
    QTest::newRow("article class") << keys + "unknown article class \"sticker\" in /products/product/@class$";
    QTest::newRow("image effect") << keys + "unknown image effect \"sepia\" in /products/product/@imageFXs$";
    QTest::newRow("product alignment") << keys + "unknown product alignment \"diagonal\" in /products/product/@productAlignment$";
    QTest::newRow("conversion strategy") << keys + "unknown conversion strategy \"RewriteMagic\" in /products/product/@conversionStrategy$";
    QTest::newRow("product spot colour") << keys + "unknown spot colour \"platinum\" in /products/product/@spotColor$";
    QTest::newRow("empty product spot colour") << keys + "empty spot colour in /products/product/@spotColor$";
    QTest::newRow("surrounding alignment") << keys + "unknown alignment \"outside\" in /products/product/surroundings/surrounding/@alignment$";
    QTest::newRow("surrounding spot colour") << keys + "unknown spot colour \"copper\" in /products/product/surroundings/surrounding/@spotColor$";
    QTest::newRow("default page type") << keys + "unknown page type \"inlay\" in /products/product/defaults/default/@pageType$";
    QTest::newRow("page naming style") << keys + "unknown page naming style \"leporello\" in /products/product/editorAbilities/pageNamingStyle$";
    QTest::newRow("category page type") << keys + "unknown page type \"envelope\" in /products/product/editorAbilities/jigs/content/categories/@pageType$";
    QTest::newRow("summary") << "^13 files checked in 2 directories: 23 problems$";
    // clang-format on
}

void tst_ZRProducts::checkFindsEveryFault()
{
    QFETCH(QString, line);

    const Result result = run({ QStringLiteral("check"), brokenProducts, brokenInstalled });
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(result.err, QString());
    const QRegularExpression pattern(line, QRegularExpression::MultilineOption);
    QCOMPARE(result.out.count(pattern), 1);
}

void tst_ZRProducts::checkJson()
{
    const QJsonArray problems = runJson({ QStringLiteral("check"), brokenProducts, brokenInstalled }, 1).array();
    QMap<QString, int> kinds;
    for (const QJsonValue &problem : problems) {
        const QJsonObject object = problem.toObject();
        ++kinds[object.value(QStringLiteral("kind")).toString()];
        QVERIFY(object.value(QStringLiteral("file")).toString().endsWith(QLatin1String(".xml")));
        if (object.value(QStringLiteral("kind")) == QLatin1String("unknown-key"))
            QVERIFY(object.value(QStringLiteral("path")).toString().startsWith(QLatin1String("/products/product/")));
    }
    const QMap<QString, int> expected { { "not-loaded", 1 }, { "no-product", 1 }, { "no-name", 1 }, { "invalid", 1 },
        { "duplicate", 2 }, { "unknown-key", 3 + 11 }, { "warning", 3 } };
    QCOMPARE(kinds, expected);

    QCOMPARE(runJson({ QStringLiteral("check") }).array(), QJsonArray());
}

QTEST_GUILESS_MAIN(tst_ZRProducts)
#include "tst_zrproducts.moc"
