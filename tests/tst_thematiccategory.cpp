#include "ContextTaggingTranslator.h"
#include "ZRBasisSettings.h"
#include "ZRDirectoryConfig.h"
#include "ZRLocaleAndTranslationManager.h"
#include "ZRTestSupport.h"
#include "ZRThematicCategory.h"
#include "ZRThematicCategoryTranslationRegistry.h"
#include "thematiccategorytestdata.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using C = ZRThematicCategory;

Q_DECLARE_METATYPE(ZRThematicCategory)

namespace {
enum Predicate
{
    User = 0x1,
    SpotColor = 0x2,
    SmartLayout = 0x4,
    Primary = 0x8
};

ZRSpotColor spotColorOf(int value)
{
    return ZRSpotColor(ZRSpotColorEnum(value));
}
} // namespace

class tst_ThematicCategory : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    // First: the show-all category is keyed by the text of the first call.
    void categoryAllKeepsFirstTranslation();
    void specialCategories_data();
    void specialCategories();
    void identity();
    void color_data();
    void color();
    void compareAlphabetically_data();
    void compareAlphabetically();
    void humanReadable();

private:
    QTemporaryDir m_dir;
};

void tst_ThematicCategory::initTestCase()
{
    QVERIFY(m_dir.isValid());
    QVERIFY(ZRTest::writeFile(m_dir.path(), u"colors.xml"_s,
        "<palette>"
        "<color name=\"Rot\" rgb=\"#00ff00\"/><color name=\"Rot\" rgb=\"#ff0000\"/>"
        "<color name=\"Blau\" rgb=\"blue\"/><color name=\"Magenta\" rgb=\"#ff00ff\"/>"
        "<color name=\"Grau\" rgb=\"#808080\"/><color name=\"Blassrot\" rgb=\"#ffe6e6\"/>"
        "<color name=\"Gold\" rgb=\"#d4af37\"/><color name=\"A\" rgb=\"#010203\"/>"
        "<color name=\"\" rgb=\"#123456\"/>"
        "<group><color name=\"Versteckt\" rgb=\"#0a0b0c\"/></group>"
        "</palette>"));
    QVERIFY(ZRTest::writeFile(m_dir.path(), u"translations/categories_en_test.ts"_s,
        ThematicCategoryTestData::tsDocument(
            u"en"_s, { { u"Farben"_s, u"Colours"_s }, { u"Papierkorb"_s, u"Bin"_s } })));
    ZRDirectoryConfig *config = ZRSingleton<ZRDirectoryConfig>::instance();
    config->setResourcesDir(QDir(m_dir.path()));
    config->setGlimmerThematicTranslationsDirectories({ m_dir.filePath(u"translations"_s) });
    ZRSingleton<ZRLocaleAndTranslationManager>::instance()->setLocale(QLocale(u"en_GB"_s));
}

void tst_ThematicCategory::categoryAllKeepsFirstTranslation()
{
    ContextTaggingTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    const C all = C::categoryAll();
    QCOMPARE(all.internalName(), u"[ZRThematicCategory]Alle anzeigen"_s);
    QVERIFY(QCoreApplication::removeTranslator(&translator));

    QCOMPARE(C::categoryAll(), all);
    QVERIFY(C(u"Alle anzeigen"_s) != all);
    QVERIFY(C(u"[zrthematiccategory]alle anzeigen"_s).isCategoryAll());
}

void tst_ThematicCategory::specialCategories_data()
{
    QTest::addColumn<ZRThematicCategory>("category");
    QTest::addColumn<QString>("internalName");
    QTest::addColumn<int>("predicates");
    QTest::addColumn<int>("spotColor");

    // Content files name categories exactly so: non-ASCII letters and mixed case must survive.
    QTest::newRow("user book styles") << C::userBookStyles() << u"Meine Buchvorlagen"_s << int(User) << 0;
    QTest::newRow("emboss") << C::emboss() << u"Effektlack"_s << int(SpotColor) << 1;
    QTest::newRow("gold") << C::gold() << u"Gold"_s << int(SpotColor) << 2;
    QTest::newRow("silver") << C::silver() << u"Silber"_s << int(SpotColor) << 4;
    QTest::newRow("rose gold") << C::roseGold() << u"Roségold"_s << int(SpotColor) << 8;
    QTest::newRow("silver ink") << C::silverInk() << u"Metallic Effekt"_s << int(SpotColor) << 16;
    QTest::newRow("fits to spot colour") << C::fitsToSpotColor() << u"Stile mit gewählter Veredelung"_s << 0 << 0;
    QTest::newRow("fits to style V2") << C::fitsToStyleV2Category() << u"category-fits-to-styleV2"_s << 0 << 0;
    QTest::newRow("layout large area") << C::layoutLargeArea() << u"large"_s << int(SmartLayout) << 0;
    QTest::newRow("frames") << C::frames() << u"InterneRahmen"_s << int(Primary) << 0;
    QTest::newRow("passe-partouts") << C::passpartouts() << u"InterneMasken"_s << int(Primary) << 0;
    QTest::newRow("ordinary") << C(u"Urlaub"_s) << u"Urlaub"_s << 0 << 0;
}

void tst_ThematicCategory::specialCategories()
{
    QFETCH(ZRThematicCategory, category);
    QFETCH(QString, internalName);
    QFETCH(int, predicates);
    QFETCH(int, spotColor);

    QCOMPARE(category.internalName(), internalName);
    QCOMPARE(C(internalName), category);
    QCOMPARE(category.isUserCategory(), bool(predicates & User));
    QCOMPARE(category.isSpotColorCategory(), bool(predicates & SpotColor));
    QCOMPARE(category.isSmartLayoutCategory(), bool(predicates & SmartLayout));
    QCOMPARE(category.isPrimaryCategory(), bool(predicates & Primary));
    QVERIFY(!category.isCategoryAll());
    QCOMPARE(int(category.toSpotColor().value()), spotColor);
    if (spotColor)
        QCOMPARE(C::fromSpotColor(spotColorOf(spotColor)), category);
}

void tst_ThematicCategory::identity()
{
    QCOMPARE(C(u"HOCHZEIT"_s), C(u"Hochzeit"_s));
    QCOMPARE(C(u"colours"_s), C::colorsCategory());
    QVERIFY(C(u"Hochzeit"_s) != C(u"Geburtstag"_s));
    const C empty;
    const C ofEmptyName { QString() };
    QCOMPARE(empty.hashValue(), 0);
    QVERIFY(empty.isEmpty());
    QVERIFY(ofEmptyName.isEmpty());
    QVERIFY(ofEmptyName != empty);
    QVERIFY(!C(u"Urlaub"_s).isEmpty());
    // No spot colour, a combination and an unknown value all give the empty category.
    for (int value : { 0, 6, 32 })
        QCOMPARE(C::fromSpotColor(spotColorOf(value)), empty);
}

void tst_ThematicCategory::color_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QColor>("expected");
    QTest::addColumn<QString>("sortKey");

    QTest::newRow("later element wins") << u"Rot"_s << QColor(0xff, 0, 0) << u"3 0ffff"_s;
    QTest::newRow("colour name notation") << u"Blau"_s << QColor(Qt::blue) << u"3f0ffff"_s;
    QTest::newRow("hue of three digits") << u"Magenta"_s << QColor(0xff, 0, 0xff) << u"312cffff"_s;
    QTest::newRow("achromatic grey") << u"Grau"_s << QColor(0x80, 0x80, 0x80) << u"2 0 080"_s;
    QTest::newRow("washed-out red") << u"Blassrot"_s << QColor(0xff, 0xe6, 0xe6) << u"2 019ff"_s;
    QTest::newRow("nested element") << u"Versteckt"_s << QColor(0x0a, 0x0b, 0x0c) << QString();
    QTest::newRow("metallic variant") << u"Gold_metallic"_s << QColor(0xd4, 0xaf, 0x37) << QString();
    QTest::newRow("ten characters cut to the first") << u"Abcdefghij"_s << QColor(1, 2, 3) << QString();
    QTest::newRow("nine characters not cut") << u"Abcdefghi"_s << QColor() << QString();
    QTest::newRow("unknown") << u"Unbekannte Farbe"_s << QColor() << u"2 0 0 0"_s;
}

void tst_ThematicCategory::color()
{
    QFETCH(QString, name);
    QFETCH(QColor, expected);
    QFETCH(QString, sortKey);
    QCOMPARE(C::color(name), expected);
    QCOMPARE(C(name).color(), expected);
    if (!sortKey.isNull())
        QCOMPARE(C(name).colorSortKey(), sortKey);
}

void tst_ThematicCategory::compareAlphabetically_data()
{
    QTest::addColumn<ZRThematicCategory>("a");
    QTest::addColumn<ZRThematicCategory>("b");
    QTest::addColumn<bool>("expected");

    // The partner of a user category gets the "_" that sorts after capitals; plain comparison would differ.
    QTest::newRow("user category before capital A") << C::userLayouts() << C(u"Abend"_s) << true;
    QTest::newRow("capital A after user category") << C(u"Abend"_s) << C::userLayouts() << false;
    QTest::newRow("lower case after user category") << C(u"kiwi"_s) << C::userLayouts() << false;
    QTest::newRow("both user categories") << C::userCliparts() << C::userLayouts() << true;
    QTest::newRow("capitals before lower case") << C(u"Zoo"_s) << C(u"kiwi"_s) << true;
    QTest::newRow("visible names compared") << C::recycleBin() << C(u"Cello"_s) << true;
    QTest::newRow("equal") << C(u"Zoo"_s) << C(u"Zoo"_s) << false;
}

void tst_ThematicCategory::compareAlphabetically()
{
    QFETCH(ZRThematicCategory, a);
    QFETCH(ZRThematicCategory, b);
    QFETCH(bool, expected);
    QCOMPARE(C::compareAlphabetically(a, b), expected);
}

void tst_ThematicCategory::humanReadable()
{
    QCOMPARE(C::flatColorBackgroundCategoryName(), u"Colours"_s);
    ZRSingleton<ZRBasisSettings>::instance()->setRunsInMasterMode(true);
    const QString inMasterMode
        = ZRSingleton<ZRThematicCategoryTranslationRegistry>::instance()->humanReadable(C::recycleBin());
    ZRSingleton<ZRBasisSettings>::instance()->setRunsInMasterMode(false);
    QCOMPARE(inMasterMode, u"Bin (Bin)"_s);
}

QTEST_GUILESS_MAIN(tst_ThematicCategory)
#include "tst_thematiccategory.moc"
