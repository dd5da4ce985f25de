#include "ZRBasisSettings.h"
#include "ZRDirectoryConfig.h"
#include "ZRLocaleAndTranslationManager.h"
#include "ZRThematicCategory.h"
#include "ZRThematicCategorySet.h"
#include "ZRThematicCategoryTranslationRegistry.h"
#include "thematiccategorytestdata.h"

#include <QCoreApplication>
#include <QDebug>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

using namespace ThematicCategoryTestData;

Q_DECLARE_METATYPE(ZRThematicCategory)

namespace {
/** Translates the show-all text only. */
class ShowAllTranslator : public QTranslator
{
public:
    QString translate(const char *context, const char *sourceText, const char *, int) const override
    {
        if (qstrcmp(context, "ZRThematicCategory") == 0 && qstrcmp(sourceText, "Alle anzeigen") == 0)
            return QStringLiteral("Show all");
        return QString();
    }
    bool isEmpty() const override { return false; }
};

enum Predicate
{
    User = 0x1,
    SpotColor = 0x2,
    SmartLayout = 0x4,
    Primary = 0x8,
    Favourite = 0x10,
    RecycleBin = 0x20,
    SuggestedByAI = 0x40,
};

ZRThematicCategory named(const char *name)
{
    return ZRThematicCategory(QString::fromUtf8(name));
}
} // namespace

class tst_ThematicCategory : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    // First: the show-all category is keyed by the text of the first call.
    void categoryAllKeepsFirstTranslation();
    void specialCategoryNames_data();
    void specialCategoryNames();
    void emptyCategories();
    void identity_data();
    void identity();
    void predicates_data();
    void predicates();
    void spotColors_data();
    void spotColors();
    void color_data();
    void color();
    void colorNamesAreCaseSensitive();
    void colorSortKey_data();
    void colorSortKey();
    void compareAlphabetically_data();
    void compareAlphabetically();
    void humanReadable();
    void debugOutput();

private:
    QTemporaryDir m_dir;
};

void tst_ThematicCategory::initTestCase()
{
    QVERIFY(m_dir.isValid());
    QVERIFY(writeFile(m_dir.path(), QStringLiteral("colors.xml"),
        "<palette>"
        "<color name=\"Rot\" rgb=\"#00ff00\"/><color name=\"Rot\" rgb=\"#ff0000\"/>"
        "<color name=\"Blau\" rgb=\"blue\"/><color name=\"Magenta\" rgb=\"#ff00ff\"/>"
        "<color name=\"Grau\" rgb=\"#808080\"/><color name=\"Blassrot\" rgb=\"#ffe6e6\"/>"
        "<color name=\"Gold\" rgb=\"#d4af37\"/><color name=\"A\" rgb=\"#010203\"/>"
        "<color name=\"\" rgb=\"#123456\"/>"
        "<group><color name=\"Versteckt\" rgb=\"#0a0b0c\"/></group>"
        "</palette>"));
    QVERIFY(writeFile(m_dir.path(), QStringLiteral("translations/categories_en_test.ts"),
        tsDocument(QStringLiteral("en"),
            { { QStringLiteral("Farben"), QStringLiteral("Colours") },
                { QStringLiteral("Papierkorb"), QStringLiteral("Bin") } })));
    ZRDirectoryConfig *config = ZRSingleton<ZRDirectoryConfig>::instance();
    config->setResourcesDir(QDir(m_dir.path()));
    config->setGlimmerThematicTranslationsDirectories({ m_dir.filePath(QStringLiteral("translations")) });
    ZRSingleton<ZRLocaleAndTranslationManager>::instance()->setLocale(QLocale(QStringLiteral("en_GB")));
}

void tst_ThematicCategory::categoryAllKeepsFirstTranslation()
{
    ShowAllTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCOMPARE(ZRThematicCategory::allText(), QStringLiteral("Show all"));
    const ZRThematicCategory all = ZRThematicCategory::categoryAll();
    QCOMPARE(all.internalName(), QStringLiteral("Show all"));

    QVERIFY(QCoreApplication::removeTranslator(&translator));
    QCOMPARE(ZRThematicCategory::allText(), QStringLiteral("Alle anzeigen"));
    QCOMPARE(ZRThematicCategory::categoryAll(), all);
    QVERIFY(ZRThematicCategory(QStringLiteral("Alle anzeigen")) != all);
    QVERIFY(ZRThematicCategory(QStringLiteral("show all")).isCategoryAll());
}

void tst_ThematicCategory::specialCategoryNames_data()
{
    QTest::addColumn<ZRThematicCategory>("category");
    QTest::addColumn<QString>("internalName");

    // Content files name categories exactly so: non-ASCII letters and mixed case must survive.
    using C = ZRThematicCategory;
    const QList<QPair<C (*)(), const char *>> rows {
        { &C::roseGold, "Roségold" },
        { &C::fitsToSpotColor, "Stile mit gewählter Veredelung" },
        { &C::fitsToStyleV2Category, "category-fits-to-styleV2" },
        { &C::layoutLargeArea, "large" },
        { &C::passpartouts, "InterneMasken" },
    };
    for (const auto &row : rows)
        QTest::newRow(row.second) << row.first() << QString::fromUtf8(row.second);
}

void tst_ThematicCategory::specialCategoryNames()
{
    QFETCH(ZRThematicCategory, category);
    QFETCH(QString, internalName);
    QCOMPARE(category.internalName(), internalName);
    QCOMPARE(ZRThematicCategory(internalName), category);
}

void tst_ThematicCategory::emptyCategories()
{
    const ZRThematicCategory empty;
    QCOMPARE(empty.hashValue(), 0);
    QVERIFY(empty.isEmpty());
    QCOMPARE(empty.internalName(), QString());
    const ZRThematicCategory ofEmptyName { QString() };
    QVERIFY(ofEmptyName.isEmpty());
    QVERIFY(ofEmptyName != empty);
    QVERIFY(!named("Urlaub").isEmpty());
}

void tst_ThematicCategory::identity_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::addColumn<bool>("equal");

    QTest::newRow("same name") << "Hochzeit"
                               << "Hochzeit" << true;
    QTest::newRow("letter case") << "Hochzeit"
                                 << "HOCHZEIT" << true;
    QTest::newRow("visible name") << "Farben"
                                  << "colours" << true;
    QTest::newRow("different names") << "Hochzeit"
                                     << "Geburtstag" << false;
}

void tst_ThematicCategory::identity()
{
    QFETCH(QString, first);
    QFETCH(QString, second);
    QFETCH(bool, equal);

    const ZRThematicCategory a(first);
    const ZRThematicCategory b(second);
    QCOMPARE(a == b, equal);
    QCOMPARE(a != b, !equal);
    if (equal)
        QCOMPARE(qHash(a, 7), qHash(b, 7));
    // Ordered by first sight, not alphabetically.
    QVERIFY(!(a < a));
    QCOMPARE(a < b, a.hashValue() < b.hashValue());
}

void tst_ThematicCategory::predicates_data()
{
    QTest::addColumn<ZRThematicCategory>("category");
    QTest::addColumn<int>("predicates");

    QTest::newRow("user layouts") << ZRThematicCategory::userLayouts() << int(User);
    QTest::newRow("user book styles") << ZRThematicCategory::userBookStyles() << int(User);
    QTest::newRow("user masks") << ZRThematicCategory::userMask() << int(User);
    QTest::newRow("gold") << ZRThematicCategory::gold() << int(SpotColor);
    QTest::newRow("emboss") << ZRThematicCategory::emboss() << int(SpotColor);
    QTest::newRow("fits to spot color") << ZRThematicCategory::fitsToSpotColor() << 0;
    QTest::newRow("layout top") << ZRThematicCategory::layoutTop() << int(SmartLayout);
    QTest::newRow("layout full area") << ZRThematicCategory::layoutFullArea() << int(SmartLayout);
    QTest::newRow("frames") << ZRThematicCategory::frames() << int(Primary);
    QTest::newRow("passe-partouts") << ZRThematicCategory::passpartouts() << int(Primary);
    QTest::newRow("favourites") << ZRThematicCategory::favourites() << int(Favourite);
    QTest::newRow("recycle bin") << ZRThematicCategory::recycleBin() << int(RecycleBin);
    QTest::newRow("suggested by AI") << ZRThematicCategory::suggestedByAI() << int(SuggestedByAI);
    QTest::newRow("ordinary") << named("Urlaub") << 0;
    QTest::newRow("empty") << ZRThematicCategory() << 0;
}

void tst_ThematicCategory::predicates()
{
    QFETCH(ZRThematicCategory, category);
    QFETCH(int, predicates);
    QCOMPARE(category.isUserCategory(), bool(predicates & User));
    QCOMPARE(category.isSpotColorCategory(), bool(predicates & SpotColor));
    QCOMPARE(category.isSmartLayoutCategory(), bool(predicates & SmartLayout));
    QCOMPARE(category.isPrimaryCategory(), bool(predicates & Primary));
    QCOMPARE(category.isFavourite(), bool(predicates & Favourite));
    QCOMPARE(category.isRecycleBin(), bool(predicates & RecycleBin));
    QCOMPARE(category.isSuggestedByAI(), bool(predicates & SuggestedByAI));
    QVERIFY(!category.isCategoryAll());
}

void tst_ThematicCategory::spotColors_data()
{
    QTest::addColumn<int>("spotColor");
    QTest::addColumn<ZRThematicCategory>("category");
    QTest::addColumn<int>("backToSpotColor");

    QTest::newRow("none") << 0 << ZRThematicCategory() << 0;
    QTest::newRow("emboss") << 1 << ZRThematicCategory::emboss() << 1;
    QTest::newRow("gold") << 2 << ZRThematicCategory::gold() << 2;
    QTest::newRow("silver") << 4 << ZRThematicCategory::silver() << 4;
    QTest::newRow("rose gold") << 8 << ZRThematicCategory::roseGold() << 8;
    QTest::newRow("silver ink") << 16 << ZRThematicCategory::silverInk() << 16;
    QTest::newRow("combined value") << 6 << ZRThematicCategory() << 0;
    QTest::newRow("unknown value") << 32 << ZRThematicCategory() << 0;
}

void tst_ThematicCategory::spotColors()
{
    QFETCH(int, spotColor);
    QFETCH(ZRThematicCategory, category);
    QFETCH(int, backToSpotColor);
    const ZRThematicCategory found = ZRThematicCategory::fromSpotColor(ZRSpotColor(ZRSpotColorEnum(spotColor)));
    QCOMPARE(found, category);
    QCOMPARE(int(found.toSpotColor().value()), backToSpotColor);
    QCOMPARE(int(ZRThematicCategory::fitsToSpotColor().toSpotColor().value()), 0);
    QCOMPARE(int(named("Urlaub").toSpotColor().value()), 0);
}

void tst_ThematicCategory::color_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QColor>("expected");

    QTest::newRow("later element wins") << "Rot" << QColor(0xff, 0, 0);
    QTest::newRow("colour name notation") << "Blau" << QColor(Qt::blue);
    QTest::newRow("nested element") << "Versteckt" << QColor(0x0a, 0x0b, 0x0c);
    QTest::newRow("metallic variant") << "Gold_metallic" << QColor(0xd4, 0xaf, 0x37);
    QTest::newRow("ten characters cut to the first") << "Abcdefghij" << QColor(1, 2, 3);
    QTest::newRow("nine characters not cut") << "Abcdefghi" << QColor();
    QTest::newRow("unknown") << "Unbekannte Farbe" << QColor();
}

void tst_ThematicCategory::color()
{
    QFETCH(QString, name);
    QFETCH(QColor, expected);
    QCOMPARE(ZRThematicCategory::color(name), expected);
    QCOMPARE(ZRThematicCategory(name).color(), expected);
}

void tst_ThematicCategory::colorNamesAreCaseSensitive()
{
    QCOMPARE(ZRThematicCategory::color(QStringLiteral("rot")), QColor());
    // The category of "rot" is the one of "Rot", whose internal name has a colour.
    QCOMPARE(named("Rot").internalName(), QStringLiteral("Rot"));
    QCOMPARE(named("rot").color(), QColor(0xff, 0, 0));
}

void tst_ThematicCategory::colorSortKey_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("key");

    QTest::newRow("saturated red") << "Rot"
                                   << "3 0ffff";
    QTest::newRow("blue") << "Blau"
                          << "3f0ffff";
    QTest::newRow("hue of three digits") << "Magenta"
                                         << "312cffff";
    QTest::newRow("achromatic grey") << "Grau"
                                     << "2 0 080";
    QTest::newRow("washed-out red") << "Blassrot"
                                    << "2 019ff";
    QTest::newRow("no colour") << "Ohne Farbe"
                               << "2 0 0 0";
}

void tst_ThematicCategory::colorSortKey()
{
    QFETCH(QString, name);
    QFETCH(QString, key);
    QCOMPARE(ZRThematicCategory(name).colorSortKey(), key);
}

void tst_ThematicCategory::compareAlphabetically_data()
{
    QTest::addColumn<ZRThematicCategory>("a");
    QTest::addColumn<ZRThematicCategory>("b");
    QTest::addColumn<bool>("expected");

    const ZRThematicCategory layouts = ZRThematicCategory::userLayouts();
    const ZRThematicCategory cliparts = ZRThematicCategory::userCliparts();
    QTest::newRow("user category before capital") << layouts << named("Zoo") << true;
    QTest::newRow("capital after user category") << named("Zoo") << layouts << false;
    QTest::newRow("user category before capital A") << layouts << named("Abend") << true;
    QTest::newRow("lower case after user category") << named("kiwi") << layouts << false;
    QTest::newRow("user category before lower case") << layouts << named("kiwi") << true;
    QTest::newRow("both user categories") << cliparts << layouts << true;
    QTest::newRow("both user categories reversed") << layouts << cliparts << false;
    QTest::newRow("capitals before lower case") << named("Zoo") << named("kiwi") << true;
    QTest::newRow("visible names compared") << ZRThematicCategory::recycleBin() << named("Cello") << true;
    QTest::newRow("equal") << named("Zoo") << named("Zoo") << false;
}

void tst_ThematicCategory::compareAlphabetically()
{
    QFETCH(ZRThematicCategory, a);
    QFETCH(ZRThematicCategory, b);
    QFETCH(bool, expected);
    QCOMPARE(ZRThematicCategory::compareAlphabetically(a, b), expected);
}

void tst_ThematicCategory::humanReadable()
{
    const auto *translations = ZRSingleton<ZRThematicCategoryTranslationRegistry>::instance();
    QCOMPARE(translations->humanReadable(ZRThematicCategory::colorsCategory()), QStringLiteral("Colours"));
    QCOMPARE(ZRThematicCategory::flatColorBackgroundCategoryName(), QStringLiteral("Colours"));
    QStringList names = translations->toVisibleStringList(
        ZRThematicCategorySet { ZRThematicCategory::recycleBin(), ZRThematicCategory::colorsCategory() });
    names.sort();
    QCOMPARE(names, QStringList({ QStringLiteral("Bin"), QStringLiteral("Colours") }));

    ZRSingleton<ZRBasisSettings>::instance()->setRunsInMasterMode(true);
    const QString inMasterMode = translations->humanReadable(ZRThematicCategory::recycleBin());
    ZRSingleton<ZRBasisSettings>::instance()->setRunsInMasterMode(false);
    QCOMPARE(inMasterMode, QStringLiteral("Bin (Bin)"));
}

void tst_ThematicCategory::debugOutput()
{
    QString text;
    QDebug(&text) << ZRThematicCategory::recycleBin();
    QCOMPARE(text.trimmed(), QStringLiteral("Category name: Papierkorb visible name: Bin"));
}

QTEST_GUILESS_MAIN(tst_ThematicCategory)
#include "tst_thematiccategory.moc"
