#include "ZRDirectoryConfig.h"
#include "ZRLocaleAndTranslationManager.h"
#include "ZRThematicCategoryTranslationRegistry.h"
#include "thematiccategorytestdata.h"

#include <QDomDocument>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace ThematicCategoryTestData;

namespace {
ZRThematicCategoryTranslationRegistry *registry()
{
    return ZRSingleton<ZRThematicCategoryTranslationRegistry>::instance();
}

ZRLocaleAndTranslationManager *localeManager()
{
    return ZRSingleton<ZRLocaleAndTranslationManager>::instance();
}

// The files that are not TS documents, lack the language or the context, in the order they are read.
void expectWarningsOfBrokenFiles()
{
    QTest::ignoreMessage(QtWarningMsg, "No TS element at beginning.");
    QTest::ignoreMessage(QtWarningMsg, "No contextElement element after TS.");
    QTest::ignoreMessage(QtWarningMsg, "No language attribute.");
    QTest::ignoreMessage(QtWarningMsg, "No TS element at beginning.");
}
} // namespace

class tst_ThematicCategoryTranslationRegistry : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void translation_data();
    void translation();
    void parseXML_data();
    void parseXML();
    void addTranslationsMergesEntryByEntry();
    void languageChangeReadsHandedOverDocument();
    void unreadableHandedOverDocumentFallsBackToFiles();

private:
    QTemporaryDir m_dir;
};

void tst_ThematicCategoryTranslationRegistry::initTestCase()
{
    QVERIFY(m_dir.isValid());
    const QString dir = m_dir.path();
    // Files are read in name order: a, b, then the country file.
    QVERIFY(writeFile(dir, QStringLiteral("cats_en_a.ts"),
        "<TS language=\"en\"><context>"
        "<message><source>Farben</source><translation>Colors</translation></message>"
        "<message><source>Papierkorb</source><translation>Bin</translation></message>"
        "<message><source>Meine  Layouts </source><translation>My layouts</translation></message>"
        "<message><source>Sonstige</source><translation></translation></message>"
        "<message><source>Favoriten</source></message>"
        "<message><translation>Orphan</translation></message>"
        "</context><context>"
        "<message><source>Silber</source><translation>Silver</translation></message>"
        "</context></TS>"));
    QVERIFY(writeFile(dir, QStringLiteral("cats_en_b.ts"),
        tsDocument(QStringLiteral("en"),
            { { QStringLiteral("Papierkorb"), QStringLiteral("Recycle bin") },
                { QStringLiteral("Effektlack"), QStringLiteral("Effect varnish") } })));
    QVERIFY(writeFile(dir, QStringLiteral("cats_en_gb.ts"),
        tsDocument(QStringLiteral("en_GB"),
            { { QStringLiteral("Farben"), QStringLiteral("Colours") },
                { QStringLiteral("Favoriten"), QStringLiteral("Favourites") } })));
    QVERIFY(writeFile(dir, QStringLiteral("sub/deep_en_a.ts"),
        tsDocument(QStringLiteral("en"), { { QStringLiteral("Mittig"), QStringLiteral("Middle") } })));
    // Not matching the English name filter.
    QVERIFY(writeFile(dir, QStringLiteral("cats_de_a.ts"),
        tsDocument(QStringLiteral("de"), { { QStringLiteral("Farben"), QStringLiteral("Bunt") } })));
    QVERIFY(writeFile(dir, QStringLiteral("cats_en.ts"),
        tsDocument(QStringLiteral("en"), { { QStringLiteral("Grau"), QStringLiteral("Grey") } })));
    // Broken files: each is reported and the others still load.
    QVERIFY(writeFile(dir, QStringLiteral("broken_en_root.ts"), "<xliff language=\"en\"><context/></xliff>"));
    QVERIFY(writeFile(dir, QStringLiteral("broken_en_uncontexted.ts"), "<TS language=\"en\"><message/></TS>"));
    QVERIFY(writeFile(dir, QStringLiteral("broken_en_unlanguaged.ts"), "<TS><context/></TS>"));
    QVERIFY(writeFile(dir, QStringLiteral("broken_en_unparsable.ts"), "<TS language=\"en\"><context>"));

    ZRSingleton<ZRDirectoryConfig>::instance()->setGlimmerThematicTranslationsDirectories({ dir });
    localeManager()->setLocale(QLocale(QStringLiteral("en_GB")));
    localeManager()->setLanguageChanged(false);
    expectWarningsOfBrokenFiles();
    QVERIFY(registry());
}

void tst_ThematicCategoryTranslationRegistry::translation_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("expected");

    QTest::newRow("country table first") << "Farben"
                                         << "en_GB"
                                         << "Colours";
    QTest::newRow("language table") << "Farben"
                                    << "en_US"
                                    << "Colors";
    QTest::newRow("country falls back to language") << "Papierkorb"
                                                    << "en_GB"
                                                    << "Recycle bin";
    QTest::newRow("other country falls back to language") << "Effektlack"
                                                          << "en_AU"
                                                          << "Effect varnish";
    QTest::newRow("later file wins") << "Papierkorb"
                                     << "en_US"
                                     << "Recycle bin";
    QTest::newRow("stored source simplified") << "Meine Layouts"
                                              << "en_US"
                                              << "My layouts";
    QTest::newRow("asked source simplified") << "  Meine \t Layouts "
                                             << "en_US"
                                             << "My layouts";
    QTest::newRow("metallic variant") << "Effektlack_metallic"
                                      << "en_US"
                                      << "Effect varnish";
    QTest::newRow("metallic variant in country table") << "Farben_metallic"
                                                       << "en_GB"
                                                       << "Colours";
    QTest::newRow("metallic variant via language table") << "Effektlack_metallic"
                                                         << "en_GB"
                                                         << "Effect varnish";
    QTest::newRow("metallic suffix is case-sensitive") << "Effektlack_Metallic"
                                                       << "en_US"
                                                       << "Effektlack_Metallic";
    QTest::newRow("unfinished translation") << "Sonstige"
                                            << "en_US"
                                            << "Sonstige";
    QTest::newRow("message without translation") << "Favoriten"
                                                 << "en_US"
                                                 << "Favoriten";
    QTest::newRow("only the first context") << "Silber"
                                            << "en_US"
                                            << "Silber";
    QTest::newRow("subdirectory") << "Mittig"
                                  << "en_GB"
                                  << "Middle";
    QTest::newRow("sources are case-sensitive") << "farben"
                                                << "en_US"
                                                << "farben";
    QTest::newRow("unknown source unchanged") << "  Neu  "
                                              << "en_US"
                                              << "  Neu  ";
    QTest::newRow("file of another language not read") << "Farben"
                                                       << "de_DE"
                                                       << "Farben";
    QTest::newRow("file name without language part") << "Grau"
                                                     << "en_US"
                                                     << "Grau";
}

void tst_ThematicCategoryTranslationRegistry::translation()
{
    QFETCH(QString, source);
    QFETCH(QString, locale);
    QFETCH(QString, expected);
    QCOMPARE(registry()->translation(source, QLocale(locale)), expected);
    QCOMPARE(registry()->translate(source, QLocale(locale)), expected);
}

void tst_ThematicCategoryTranslationRegistry::parseXML_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<bool>("expected");
    QTest::addColumn<QString>("warning");
    QTest::addColumn<QString>("translation");

    const QString message = QStringLiteral("<message><source>Rot</source><translation>Rouge</translation></message>");
    QTest::newRow("root is not TS") << "<ts language=\"fr\"><context>" + message + "</context></ts>" << false
                                    << "No TS element at beginning."
                                    << "Rot";
    QTest::newRow("empty language") << "<TS language=\"\"><context>" + message + "</context></TS>" << false
                                    << "No language attribute."
                                    << "Rot";
    QTest::newRow("no context") << "<TS language=\"fr\">" + message + "</TS>" << false
                                << "No contextElement element after TS."
                                << "Rot";
    QTest::newRow("context after other elements")
        << "<TS language=\"fr\"><dependencies/><context><name>x</name>" + message + "</context></TS>" << true
        << QString() << "Rouge";
}

void tst_ThematicCategoryTranslationRegistry::parseXML()
{
    QFETCH(QString, xml);
    QFETCH(bool, expected);
    QFETCH(QString, warning);
    QFETCH(QString, translation);

    QDomDocument document;
    QVERIFY(document.setContent(xml));
    if (!warning.isEmpty())
        QTest::ignoreMessage(QtWarningMsg, warning.toUtf8().constData());
    QCOMPARE(registry()->parseXML(document.documentElement()), expected);
    QCOMPARE(registry()->translate(QStringLiteral("Rot"), QLocale(QStringLiteral("fr_FR"))), translation);
}

void tst_ThematicCategoryTranslationRegistry::addTranslationsMergesEntryByEntry()
{
    const QLocale dutch(QStringLiteral("nl_NL"));
    registry()->addTranslations(dutch.name(),
        { { QStringLiteral("Rot"), QStringLiteral("Rood") }, { QStringLiteral("Blau"), QStringLiteral("Blauw") } });
    registry()->addTranslations(dutch.name(), { { QStringLiteral("Blau"), QStringLiteral("Lichtblauw") } });
    QCOMPARE(registry()->translate(QStringLiteral("Rot"), dutch), QStringLiteral("Rood"));
    QCOMPARE(registry()->translate(QStringLiteral("Blau"), dutch), QStringLiteral("Lichtblauw"));
}

void tst_ThematicCategoryTranslationRegistry::languageChangeReadsHandedOverDocument()
{
    localeManager()->setLocale(QLocale(QStringLiteral("es_ES")));
    localeManager()->setLanguageChanged(true);
    localeManager()->setThematicTranslations(
        tsDocument(QStringLiteral("es"), { { QStringLiteral("Farben"), QStringLiteral("Colores") } }));

    QVERIFY(registry()->init());
    QCOMPARE(
        registry()->translate(QStringLiteral("Farben"), QLocale(QStringLiteral("es_ES"))), QStringLiteral("Colores"));
    // Tables of other languages stay.
    QCOMPARE(
        registry()->translate(QStringLiteral("Farben"), QLocale(QStringLiteral("en_GB"))), QStringLiteral("Colours"));
    localeManager()->setLanguageChanged(false);
}

void tst_ThematicCategoryTranslationRegistry::unreadableHandedOverDocumentFallsBackToFiles()
{
    QVERIFY(writeFile(m_dir.path(), QStringLiteral("late_en_a.ts"),
        tsDocument(QStringLiteral("en"), { { QStringLiteral("Oben"), QStringLiteral("Top") } })));
    QVERIFY(writeFile(m_dir.path(), QStringLiteral("late_fr_a.ts"),
        tsDocument(QStringLiteral("fr"), { { QStringLiteral("Oben"), QStringLiteral("Haut") } })));
    localeManager()->setLocale(QLocale(QStringLiteral("fr_FR")));
    localeManager()->setLanguageChanged(true);
    localeManager()->setThematicTranslations("<TS language=\"fr\"><context>");

    QTest::ignoreMessage(QtWarningMsg, "No TS element at beginning.");
    QVERIFY(!registry()->initFromZIP());

    QTest::ignoreMessage(QtWarningMsg, "No TS element at beginning.");
    expectWarningsOfBrokenFiles();
    QVERIFY(!registry()->init()); // the broken files are read again
    QCOMPARE(registry()->translate(QStringLiteral("Oben"), QLocale(QStringLiteral("en_GB"))), QStringLiteral("Top"));
    // The name filter stays at the language of the first scan.
    QCOMPARE(registry()->translate(QStringLiteral("Oben"), QLocale(QStringLiteral("fr_FR"))), QStringLiteral("Oben"));
    localeManager()->setLanguageChanged(false);
}

QTEST_GUILESS_MAIN(tst_ThematicCategoryTranslationRegistry)
#include "tst_thematiccategorytranslationregistry.moc"
