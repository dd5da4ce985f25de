#include "ZRDirectoryConfig.h"
#include "ZRLocaleAndTranslationManager.h"
#include "ZRTestSupport.h"
#include "ZRThematicCategoryTranslationRegistry.h"
#include "thematiccategorytestdata.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using ThematicCategoryTestData::tsDocument;

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
private Q_SLOTS:
    void initTestCase();
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void translation_data();
    void translation();
    void languageChange();

private:
    QTemporaryDir m_dir;
};

void tst_ThematicCategoryTranslationRegistry::initTestCase()
{
    QVERIFY(m_dir.isValid());
    const QString dir = m_dir.path();
    // Files are read in name order: a, b, then the country file.
    QVERIFY(ZRTest::writeFile(dir, u"cats_en_a.ts"_s,
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
    QVERIFY(ZRTest::writeFile(dir, u"cats_en_b.ts"_s,
        tsDocument(u"en"_s, { { u"Papierkorb"_s, u"Recycle bin"_s }, { u"Effektlack"_s, u"Effect varnish"_s } })));
    QVERIFY(ZRTest::writeFile(dir, u"cats_en_gb.ts"_s,
        tsDocument(u"en_GB"_s, { { u"Farben"_s, u"Colours"_s }, { u"Favoriten"_s, u"Favourites"_s } })));
    QVERIFY(ZRTest::writeFile(dir, u"sub/deep_en_a.ts"_s, tsDocument(u"en"_s, { { u"Mittig"_s, u"Middle"_s } })));
    // Not matching the English name filter.
    QVERIFY(ZRTest::writeFile(dir, u"cats_de_a.ts"_s, tsDocument(u"de"_s, { { u"Farben"_s, u"Bunt"_s } })));
    QVERIFY(ZRTest::writeFile(dir, u"cats_en.ts"_s, tsDocument(u"en"_s, { { u"Grau"_s, u"Grey"_s } })));
    QVERIFY(ZRTest::writeFile(dir, u"cats_en_c.ts"_s,
        "<TS language=\"en\"><dependencies/><context><name>x</name>"
        "<message><source>Rot</source><translation>Red</translation></message></context></TS>"));
    // Broken files: each is reported, adds nothing, and the others still load.
    const QByteArray blue = "<message><source>Blau</source><translation>Blue</translation></message>";
    QVERIFY(ZRTest::writeFile(
        dir, u"broken_en_root.ts"_s, "<xliff language=\"en\"><context>" + blue + "</context></xliff>"));
    QVERIFY(ZRTest::writeFile(dir, u"broken_en_uncontexted.ts"_s, "<TS language=\"en\">" + blue + "</TS>"));
    QVERIFY(ZRTest::writeFile(
        dir, u"broken_en_unlanguaged.ts"_s, "<TS language=\"\"><context>" + blue + "</context></TS>"));
    QVERIFY(ZRTest::writeFile(dir, u"broken_en_unparsable.ts"_s, "<TS language=\"en\"><context>" + blue));

    ZRSingleton<ZRDirectoryConfig>::instance()->setGlimmerThematicTranslationsDirectories({ dir });
    localeManager()->setLocale(QLocale(u"en_GB"_s));
    localeManager()->setLanguageChanged(false);
    expectWarningsOfBrokenFiles();
    QVERIFY(registry());
}

void tst_ThematicCategoryTranslationRegistry::translation_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("expected");

    QTest::newRow("country table first") << u"Farben"_s << u"en_GB"_s << u"Colours"_s;
    QTest::newRow("language table") << u"Farben"_s << u"en_US"_s << u"Colors"_s;
    QTest::newRow("country falls back to language") << u"Effektlack"_s << u"en_AU"_s << u"Effect varnish"_s;
    QTest::newRow("later file wins") << u"Papierkorb"_s << u"en_GB"_s << u"Recycle bin"_s;
    QTest::newRow("stored source simplified") << u"Meine Layouts"_s << u"en_US"_s << u"My layouts"_s;
    QTest::newRow("asked source simplified") << u"  Meine \t Layouts "_s << u"en_US"_s << u"My layouts"_s;
    QTest::newRow("metallic variant") << u"Effektlack_metallic"_s << u"en_US"_s << u"Effect varnish"_s;
    QTest::newRow("metallic variant via language table")
        << u"Effektlack_metallic"_s << u"en_GB"_s << u"Effect varnish"_s;
    QTest::newRow("metallic suffix is case-sensitive")
        << u"Effektlack_Metallic"_s << u"en_US"_s << u"Effektlack_Metallic"_s;
    QTest::newRow("unfinished translation") << u"Sonstige"_s << u"en_US"_s << u"Sonstige"_s;
    QTest::newRow("message without translation") << u"Favoriten"_s << u"en_US"_s << u"Favoriten"_s;
    QTest::newRow("only the first context") << u"Silber"_s << u"en_US"_s << u"Silber"_s;
    QTest::newRow("subdirectory") << u"Mittig"_s << u"en_GB"_s << u"Middle"_s;
    QTest::newRow("unknown source unchanged") << u"  Neu  "_s << u"en_US"_s << u"  Neu  "_s;
    QTest::newRow("file of another language not read") << u"Farben"_s << u"de_DE"_s << u"Farben"_s;
    QTest::newRow("file name without language part") << u"Grau"_s << u"en_US"_s << u"Grau"_s;
    QTest::newRow("context after other elements") << u"Rot"_s << u"en_US"_s << u"Red"_s;
    QTest::newRow("broken files add nothing") << u"Blau"_s << u"en_US"_s << u"Blau"_s;
}

void tst_ThematicCategoryTranslationRegistry::translation()
{
    QFETCH(QString, source);
    QFETCH(QString, locale);
    QFETCH(QString, expected);
    QCOMPARE(registry()->translate(source, QLocale(locale)), expected);
}

// After a change of language the registry reads the document handed over; when it cannot, it scans the files.
void tst_ThematicCategoryTranslationRegistry::languageChange()
{
    QVERIFY(ZRTest::writeFile(m_dir.path(), u"late_en_a.ts"_s, tsDocument(u"en"_s, { { u"Oben"_s, u"Top"_s } })));
    QVERIFY(ZRTest::writeFile(m_dir.path(), u"late_fr_a.ts"_s, tsDocument(u"fr"_s, { { u"Oben"_s, u"Haut"_s } })));
    localeManager()->setLocale(QLocale(u"fr_FR"_s));
    localeManager()->setLanguageChanged(true);
    localeManager()->setThematicTranslations("<TS language=\"fr\"><context>");
    QTest::ignoreMessage(QtWarningMsg, "No TS element at beginning.");
    expectWarningsOfBrokenFiles();
    QVERIFY(!registry()->init()); // the broken files are read again
    QCOMPARE(registry()->translate(u"Oben"_s, QLocale(u"en_GB"_s)), u"Top"_s);
    // The name filter stays at the language of the first scan.
    QCOMPARE(registry()->translate(u"Oben"_s, QLocale(u"fr_FR"_s)), u"Oben"_s);

    localeManager()->setThematicTranslations(tsDocument(u"fr"_s, { { u"Oben"_s, u"Haut"_s } }));
    QVERIFY(registry()->init());
    QCOMPARE(registry()->translate(u"Oben"_s, QLocale(u"fr_FR"_s)), u"Haut"_s);
    // Tables of other languages stay.
    QCOMPARE(registry()->translate(u"Farben"_s, QLocale(u"en_GB"_s)), u"Colours"_s);
    localeManager()->setLanguageChanged(false);
}

QTEST_GUILESS_MAIN(tst_ThematicCategoryTranslationRegistry)
#include "tst_thematiccategorytranslationregistry.moc"
