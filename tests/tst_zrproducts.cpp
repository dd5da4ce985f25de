#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <optional>
#include <tuple>

namespace {
struct Result
{
    int exitCode = -1;
    QString out;
    QString err;
};

/**
 * Runs the inspector with @p arguments, away from any catalogue configured in the environment and
 * without NO_COLOR; with @p noColor, NO_COLOR is set to it. With @p terminal, the output goes to a
 * terminal of its own, made by script(1).
 */
Result run(const QStringList &arguments, const std::optional<QString> &noColor = {}, bool terminal = false)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    const QStringList keys = environment.keys();
    for (const QString &key : keys) {
        if (key.startsWith(QLatin1String("ZR_")) || key == QLatin1String("NO_COLOR"))
            environment.remove(key);
    }
    if (noColor)
        environment.insert(QStringLiteral("NO_COLOR"), *noColor);
    process.setProcessEnvironment(environment);
    if (terminal) {
        QStringList words;
        for (QString word : QStringList { QStringLiteral(ZRPRODUCTS_TOOL) } + arguments)
            words.append(
                QLatin1Char('\'') + word.replace(QLatin1Char('\''), QLatin1String("'\\''")) + QLatin1Char('\''));
        process.start(QStringLiteral("script"), { "-qec", words.join(QLatin1Char(' ')), "/dev/null" });
    } else {
        process.start(QStringLiteral(ZRPRODUCTS_TOOL), arguments);
    }
    const bool finished = process.waitForFinished(120000);
    Result result;
    if (!finished || process.exitStatus() != QProcess::NormalExit)
        return result;
    result.exitCode = process.exitCode();
    // A terminal ends its lines with "\r\n".
    result.out = QString::fromUtf8(process.readAllStandardOutput()).remove(QLatin1Char('\r'));
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
const QString lintDir = QStringLiteral(ZR_TEST_DATA_DIR "/lint");

/** "path line:column severity rule", the path relative to the lint files. */
QString findingKey(const QString &file, const QString &finding)
{
    return QDir(lintDir).relativeFilePath(QFileInfo(file).absoluteFilePath()) + QLatin1Char(' ') + finding;
}

/**
 * The findings that @p files declare, one comment per finding ("<!-- expect: 4:10 warning
 * unknown-attribute -->", or "<!-- expect: none -->"), sorted.
 */
QStringList declaredFindings(const QFileInfoList &files)
{
    static const QRegularExpression expect(QStringLiteral("<!-- expect: (.*) -->"));
    QStringList findings;
    for (const QFileInfo &info : files) {
        QFile file(info.filePath());
        const QString text = file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
        // A file that declares nothing, not even "none", fails the comparison.
        if (!expect.match(text).hasMatch())
            findings.append(findingKey(info.filePath(), QStringLiteral("declares no expectation")));
        for (auto it = expect.globalMatch(text); it.hasNext();) {
            const QString finding = it.next().captured(1);
            if (finding != QLatin1String("none"))
                findings.append(findingKey(info.filePath(), finding));
        }
    }
    findings.sort();
    return findings;
}
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
    void check_data();
    void check();
    void checkOnTerminal_data();
    void checkOnTerminal();

private:
    QTemporaryDir m_scratch;
};

void tst_ZRProducts::commandLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("out");
    QTest::addColumn<QString>("err");

    const QString usage = QStringLiteral("Try 'zrproducts --help'");
    const QString badCount = QStringLiteral("not a number of pages from 0 to 9999: ");
    const QString mistakes = lintDir + QStringLiteral("/mistakes.xml");
    const QString findingLines = QStringLiteral("(.*\\]\n)*");
    // clang-format off
    QTest::newRow("list text") << QStringList { "list" } << 0
        << "^Products:\n  PRODUCT +CLASS +BINDING +PAGES +VALID\n(.|\n)*  walldecor_canvas_60x40 +walldecor +- +1 +yes\n(.|\n)*\n\nLegacy products:\n"
           "  PRODUCT .*\n  card_postcard_easy_a6_2018 +card +single +1 +yes +card_folded_vario_a6 +RewriteOneSidedEasyToTwoSidedVario\n$" << QString();
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
    QTest::newRow("check: findings, then the summary") << QStringList { "check", mistakes } << 0
        << "^" + findingLines + ".*/mistakes\\.xml:12:12: warning: unknown attribute 'safetymargn' on <product> is ignored; "
           "did you mean 'safetymargin'\\? \\[unknown-attribute\\]\n" + findingLines + "0 errors, 5 warnings in 1 file\n$" << QString();
    QTest::newRow("check -q: findings alone") << QStringList { "check", "-q", mistakes } << 0 << "^(.*/mistakes\\.xml:.*\\]\n){5}$"
                                              << QString();
    QTest::newRow("check --werror: warnings fail") << QStringList { "check", "--werror", mistakes } << 1
                                                   << "\n0 errors, 5 warnings in 1 file\n$" << QString();
    QTest::newRow("check: described twice in one directory") << QStringList { "check", brokenProducts } << 1
        << "\n.*/duplicate_[ab]\\.xml:3:3: error: product 'broken_duplicate' is described again in .*/duplicate_[ab]\\.xml, "
           "which the registry keeps \\(the later file in the directory listing wins\\) \\[duplicate-product\\]\n" << QString();
    QTest::newRow("library warnings on a broken catalogue") << QStringList { "list", "--products", brokenProducts } << 0
        << "\n  broken_no_binding +card +- +2 +no\n"
        << "^(zrproducts: warning: (parse error|could not open .*/not_xml\\.xml)\n){2}$";
    QTest::newRow("unknown product") << QStringList { "show", "no_such_product" } << 1 << QString()
                                     << "^zrproducts: unknown product \"no_such_product\"\n$";
    QTest::newRow("unknown command") << QStringList { "frobnicate" } << 2 << QString()
                                     << "unknown command \"frobnicate\"\n" + usage;
    QTest::newRow("unknown option") << QStringList { "list", "--colour" } << 2 << QString() << "Unknown option 'colour'";
    QTest::newRow("option of check elsewhere") << QStringList { "list", "--werror" } << 2 << QString()
                                               << "-q and --werror are options of check";
    QTest::newRow("check a missing file") << QStringList { "check", "/nonexistent.xml" } << 2 << QString()
                                          << "no such file or directory: /nonexistent.xml";
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
    if (out.isEmpty())
        QCOMPARE(result.out, QString());
    else
        QVERIFY2(QRegularExpression(out).match(result.out).hasMatch(), qPrintable(result.out));
    if (err.isEmpty())
        QCOMPARE(result.err, QString());
    else
        QVERIFY2(QRegularExpression(err).match(result.err).hasMatch(), qPrintable(result.err));
    // Output that is not a terminal has no colours.
    QVERIFY(!result.out.contains(QLatin1Char('\x1b')));
}

void tst_ZRProducts::listHasEveryProduct()
{
    const QJsonObject list = runJson({ QStringLiteral("list") }).object();
    QMap<QString, QStringList> names;
    for (const QString &key : { QStringLiteral("products"), QStringLiteral("legacyProducts") }) {
        const QJsonArray products = list.value(key).toArray();
        for (const QJsonValue &product : products) {
            const QJsonObject object = product.toObject();
            QVERIFY2(object.value(QStringLiteral("valid")).toBool(), qPrintable(object.value("name").toString()));
            names[key].append(object.value(QStringLiteral("name")).toString());
        }
    }
    // Sorted by name, and exactly the products of the description files.
    QCOMPARE(names.value(QStringLiteral("products")), productNames(QStringLiteral(ZR_EXAMPLES_DIR "/products")));
    QCOMPARE(names.value(QStringLiteral("legacyProducts")),
        productNames(QStringLiteral(ZR_EXAMPLES_DIR "/resources/products/legacy")));
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

void tst_ZRProducts::check_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("expected");

    const QFileInfoList files = QDir(lintDir).entryInfoList({ QStringLiteral("*.xml") }, QDir::Files, QDir::Name);
    for (const QFileInfo &file : files)
        QTest::newRow(qPrintable(file.fileName()))
            << QStringList { "check", file.filePath() } << declaredFindings({ file });

    const QString empty = m_scratch.filePath(QStringLiteral("empty.xml"));
    QFile(empty).open(QIODevice::WriteOnly);
    QTest::newRow("file of no bytes") << QStringList { "check", empty }
                                      << QStringList { findingKey(empty, QStringLiteral("0:0 error not-well-formed")) };

    // Read as a catalogue: product types across directories, and legacy products' replacements.
    const QString catalogue = lintDir + QStringLiteral("/catalogue");
    QFileInfoList catalogueFiles;
    for (const char *dir : { "/current", "/installed", "/resources/products/legacy" })
        catalogueFiles += QDir(catalogue + dir).entryInfoList({ QStringLiteral("*.xml") }, QDir::Files);
    QTest::newRow("catalogue") << QStringList { "--products", catalogue + "/current", "--products",
        catalogue + "/installed", "--resources", catalogue + "/resources", "check" }
                               << declaredFindings(catalogueFiles);
    QTest::newRow("sample catalogue") << QStringList { "check" } << QStringList();
}

void tst_ZRProducts::check()
{
    QFETCH(QStringList, arguments);
    QFETCH(QStringList, expected);

    const Result result = run(arguments + QStringList { QStringLiteral("--json") });
    const QJsonObject report = QJsonDocument::fromJson(result.out.toUtf8()).object();
    QStringList findings;
    QList<std::tuple<QString, int, int>> places;
    const QJsonArray array = report.value(QStringLiteral("findings")).toArray();
    for (const QJsonValue &value : array) {
        const QJsonObject finding = value.toObject();
        places.append({ finding.value(QStringLiteral("file")).toString(), finding.value(QStringLiteral("line")).toInt(),
            finding.value(QStringLiteral("column")).toInt() });
        findings.append(findingKey(finding.value(QStringLiteral("file")).toString(),
            QStringLiteral("%1:%2 %3 %4")
                .arg(finding.value(QStringLiteral("line")).toInt())
                .arg(finding.value(QStringLiteral("column")).toInt())
                .arg(finding.value(QStringLiteral("severity")).toString(),
                    finding.value(QStringLiteral("rule")).toString())));
    }
    QVERIFY(std::is_sorted(places.cbegin(), places.cend()));
    findings.sort();
    QCOMPARE(findings, expected);
    const int errors = int(expected.filter(QStringLiteral(" error ")).size());
    QCOMPARE(report.value(QStringLiteral("summary")).toObject().value(QStringLiteral("errors")).toInt(), errors);
    QCOMPARE(result.exitCode, errors > 0 ? 1 : 0);
    QCOMPARE(result.err, QString());
}

void tst_ZRProducts::checkOnTerminal_data()
{
    QTest::addColumn<std::optional<QString>>("noColor");
    QTest::addColumn<bool>("colour");

    QTest::newRow("in colour") << std::optional<QString>() << true;
    QTest::newRow("NO_COLOR empty") << std::optional<QString>(QString()) << false;
}

void tst_ZRProducts::checkOnTerminal()
{
    QFETCH(std::optional<QString>, noColor);
    QFETCH(bool, colour);
    if (QStandardPaths::findExecutable(QStringLiteral("script")).isEmpty())
        QSKIP("no script(1) to make a terminal");

    const Result result = run({ QStringLiteral("check"), lintDir + QStringLiteral("/mistakes.xml") }, noColor, true);
    QCOMPARE(result.exitCode, 0);
    // Each finding is followed by its source line and a caret under its column.
    const QRegularExpression caret(QStringLiteral("\n {11}isTwoSided=\"ja\">\n {11}(\\x1b\\[[0-9;]*m)?\\^"));
    QVERIFY2(caret.match(result.out).hasMatch(), qPrintable(result.out));
    QCOMPARE(result.out.contains(QLatin1Char('\x1b')), colour);
}

QTEST_GUILESS_MAIN(tst_ZRProducts)
#include "tst_zrproducts.moc"
