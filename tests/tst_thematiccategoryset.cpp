#include "ZRDirectoryConfig.h"
#include "ZRLocaleAndTranslationManager.h"
#include "ZRThematicCategoryList.h"
#include "ZRThematicCategorySet.h"
#include "ZRThematicCategoryTranslationRegistry.h"

#include <QDebug>
#include <QDomDocument>
#include <QRegularExpression>
#include <QTest>

Q_DECLARE_METATYPE(ZRThematicCategory)
Q_DECLARE_METATYPE(ZRThematicCategorySet)

namespace {
using C = ZRThematicCategory;

C named(const char *name)
{
    return C(QString::fromUtf8(name));
}

QStringList sortedNames(const ZRThematicCategorySet &set)
{
    QStringList names = set.toDataStringList();
    names.sort();
    return names;
}
} // namespace

// Runs on the bundled sample catalogue: its colours and English translations.
class tst_ThematicCategorySet : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void bundledCatalogue();
    void buildFromCSV_data();
    void buildFromCSV();
    void constructionAddsEachOnce();
    void insertOnlyOnce();
    void containment_data();
    void containment();
    void singleElementTests();
    void spotColor_data();
    void spotColor();
    void preferredCategory_data();
    void preferredCategory();
    void subtractComparesInternalNames();
    void fixedSetsHoldDistinctCategories();
    void insertCategoryVarious();
    void xmlRoundTrip();
    void debugOutput();
    void listRemovesPrimaryCategories();
    void listSortsByColor();
};

void tst_ThematicCategorySet::initTestCase()
{
    const QString resources = QStringLiteral(ZR_EXAMPLES_DIR "/resources");
    ZRDirectoryConfig *config = ZRSingleton<ZRDirectoryConfig>::instance();
    config->setResourcesDir(QDir(resources));
    config->setGlimmerThematicTranslationsDirectories({ resources + QStringLiteral("/translations") });
    ZRSingleton<ZRLocaleAndTranslationManager>::instance()->setLocale(QLocale(QStringLiteral("en_GB")));
}

void tst_ThematicCategorySet::bundledCatalogue()
{
    const QHash<QString, QColor> colors = C::readColorsXML();
    QVERIFY(colors.size() >= 20);
    for (auto it = colors.cbegin(); it != colors.cend(); ++it)
        QVERIFY2(it.value().isValid() && !it.key().isEmpty(), qPrintable(it.key()));
    QVERIFY(C::gold().color().isValid());
    QVERIFY(C::roseGold().color().isValid());
    QCOMPARE(C::silver().visibleName(), QStringLiteral("Silver"));
    QCOMPARE(C::colorsCategory().visibleName(), QStringLiteral("Colours"));
    QCOMPARE(C::flatColorBackgroundCategoryName(), QStringLiteral("Colours"));
}

void tst_ThematicCategorySet::buildFromCSV_data()
{
    QTest::addColumn<QString>("csv");
    QTest::addColumn<QStringList>("names");

    QTest::newRow("two names") << "Gold,Silber" << QStringList { "Gold", "Silber" };
    QTest::newRow("empty part skipped") << "Gold,,Silber," << QStringList { "Gold", "Silber" };
    QTest::newRow("blank kept") << "Wald, Wiese" << QStringList { " Wiese", "Wald" };
    QTest::newRow("letter case is one category") << "Gold,GOLD" << QStringList { "Gold" };
    QTest::newRow("translated name joins its category") << "Rot,Red" << QStringList { "Rot" };
    QTest::newRow("only commas") << ",," << QStringList {};
    QTest::newRow("empty") << "" << QStringList {};
}

void tst_ThematicCategorySet::buildFromCSV()
{
    QFETCH(QString, csv);
    QFETCH(QStringList, names);
    QCOMPARE(sortedNames(ZRThematicCategorySet::buildFromCSV(csv)), names);
}

void tst_ThematicCategorySet::constructionAddsEachOnce()
{
    const ZRThematicCategorySet fromNames(QList<QString> { "Blau", QString(), "BLAU", "Blue" });
    QCOMPARE(fromNames.size(), 2);
    QVERIFY(fromNames.contains(C(QString())));
    QVERIFY(fromNames.contains(named("Blau")));
    QCOMPARE(ZRThematicCategorySet(QList<C> { C::gold(), C::gold(), C::silver() }),
        ZRThematicCategorySet({ C::gold(), C::silver() }));
}

void tst_ThematicCategorySet::insertOnlyOnce()
{
    ZRThematicCategorySet set { C::gold() };
    QVERIFY(!set.insertOnlyOnce(C::silver()));
    QVERIFY(set.insertOnlyOnce(C::silver()));
    QCOMPARE(set, ZRThematicCategorySet({ C::gold(), C::silver() }));

    set.insertNonEmpty(C());
    set.insertNonEmpty(C(QString()));
    QCOMPARE(set.size(), 2);
    QVERIFY(set.plusFavourites().contains(C::favourites()));
    QVERIFY(!set.contains(C::favourites()));
}

void tst_ThematicCategorySet::containment_data()
{
    QTest::addColumn<ZRThematicCategorySet>("set");
    QTest::addColumn<ZRThematicCategorySet>("other");
    QTest::addColumn<bool>("contains");
    QTest::addColumn<bool>("containsAtLeastOne");
    QTest::addColumn<bool>("onlyFavouritesAnd");

    using S = ZRThematicCategorySet;
    QTest::newRow("other empty") << S { C::gold() } << S() << true << false << false;
    QTest::newRow("both empty") << S() << S() << true << false << true;
    QTest::newRow("only favourites") << S { C::favourites() } << S { named("Urlaub") } << false << false << true;
    QTest::newRow("favourites and other")
        << S { C::favourites(), C::gold() } << S { C::gold() } << true << true << true;
    QTest::newRow("AI suggestions and other")
        << S { C::suggestedByAI(), C::gold() } << S { C::gold() } << true << true << true;
    QTest::newRow("favourites and foreign")
        << S { C::favourites(), C::gold() } << S { C::silver() } << false << false << false;
    QTest::newRow("superset") << S { C::gold(), C::silver() } << S { C::gold() } << true << true << false;
    QTest::newRow("overlap") << S { C::gold(), C::silver() } << S { C::gold(), C::emboss() } << false << true << false;
}

void tst_ThematicCategorySet::containment()
{
    QFETCH(ZRThematicCategorySet, set);
    QFETCH(ZRThematicCategorySet, other);
    QFETCH(bool, contains);
    QFETCH(bool, containsAtLeastOne);
    QFETCH(bool, onlyFavouritesAnd);
    QCOMPARE(set.contains(other), contains);
    QCOMPARE(set.containsAtLeastOne(other), containsAtLeastOne);
    QCOMPARE(set.containsOnlyFavouritesAnd(other), onlyFavouritesAnd);
}

void tst_ThematicCategorySet::singleElementTests()
{
    using S = ZRThematicCategorySet;
    QVERIFY(S { C::multiColor() }.isOnlyMultiColor());
    QVERIFY(!(S { C::multiColor(), C::gold() }.isOnlyMultiColor()));
    QVERIFY(S { C::suggestedByAI() }.isOnlySuggestedByAI());
    QVERIFY(S { C::fitsToStyleV2Category() }.isOnlyFitsToStyleV2Category());
    QVERIFY(!S().isCategory(C()));
    QVERIFY(S { C::gold() }.isCategory(C::gold()));
    QVERIFY(S().containsOnlySpotColorCategories());
    QVERIFY(S::allKnownSpotColorCategoriesSet().containsOnlySpotColorCategories());
    QVERIFY(!(S { C::gold(), C::fitsToSpotColor() }.containsOnlySpotColorCategories()));
    QVERIFY(S::allCategorySet().containsCategoryAll());
    QVERIFY(!S::createRecycleBinCategory().containsCategoryAll());
}

void tst_ThematicCategorySet::spotColor_data()
{
    QTest::addColumn<ZRThematicCategorySet>("set");
    QTest::addColumn<int>("spotColor");

    QTest::newRow("gold") << ZRThematicCategorySet { C::gold() } << 2;
    QTest::newRow("silver ink") << ZRThematicCategorySet { C::silverInk() } << 16;
    QTest::newRow("two spot colours") << ZRThematicCategorySet { C::gold(), C::silver() } << 0;
    QTest::newRow("no spot colour") << ZRThematicCategorySet { named("Urlaub") } << 0;
    QTest::newRow("empty") << ZRThematicCategorySet() << 0;
    QTest::newRow("from spot colours") << ZRThematicCategorySet::fromSpotColors({ ZRSpotColor(ZRSpotColorRoseGold) })
                                       << 8;
}

void tst_ThematicCategorySet::spotColor()
{
    QFETCH(ZRThematicCategorySet, set);
    QFETCH(int, spotColor);
    QCOMPARE(int(set.spotColor().value()), spotColor);
}

void tst_ThematicCategorySet::preferredCategory_data()
{
    QTest::addColumn<ZRThematicCategorySet>("set");
    QTest::addColumn<bool>("preferMultiColor");
    QTest::addColumn<ZRThematicCategory>("expected");

    using S = ZRThematicCategorySet;
    QTest::newRow("multi-colour preferred") << S { C::multiColor(), C::gold() } << true << C::multiColor();
    QTest::newRow("multi-colour not preferred") << S { C::multiColor(), C::gold() } << false << C::gold();
    QTest::newRow("only special") << S { C::favourites() } << false << C::favourites();
    QTest::newRow("special ones skipped")
        << S { C::favourites(), C::recycleBin(), C::frames(), named("Urlaub") } << true << named("Urlaub");
    QTest::newRow("user cliparts first") << S { named("Urlaub"), C::userCliparts(), C::multiColor() } << true
                                         << C::userCliparts();
    QTest::newRow("user book styles") << S { C::userBookStyles(), C::multiColor() } << true << C::userBookStyles();
    QTest::newRow("empty") << S() << true << C();
}

void tst_ThematicCategorySet::preferredCategory()
{
    QFETCH(ZRThematicCategorySet, set);
    QFETCH(bool, preferMultiColor);
    QFETCH(ZRThematicCategory, expected);
    QCOMPARE(set.preferredCategory(preferMultiColor), expected);
}

void tst_ThematicCategorySet::subtractComparesInternalNames()
{
    ZRThematicCategorySet set { C::gold(), C::silver(), named("Urlaub") };
    ZRThematicCategorySet &result
        = set.subtract(ZRThematicCategorySet::buildFromCSV(QStringLiteral("SILBER,Holiday,Blau")));
    QCOMPARE(&result, &set);
    QCOMPARE(set, ZRThematicCategorySet { C::gold() });
}

void tst_ThematicCategorySet::fixedSetsHoldDistinctCategories()
{
    // Sizes would shrink if two of the names joined one category through their translations.
    QCOMPARE(ZRThematicCategorySet::allSmartLayoutCategories().size(), 9);
    QCOMPARE(ZRThematicCategorySet::allKnownSpotColorCategoriesSet().size(), 5);
    ZRThematicCategorySet withIcon = ZRThematicCategorySet::allSmartLayoutCategories();
    withIcon.unite(ZRThematicCategorySet::allKnownSpotColorCategoriesSet());
    QCOMPARE(ZRThematicCategorySet::categoriesWithIcon(), withIcon);
    QCOMPARE(withIcon.size(), 14);
    QCOMPARE(ZRThematicCategorySet::specialCategories().size(), 6);
    QCOMPARE(ZRThematicCategorySet::createCategories01(), ZRThematicCategorySet({ C::category0(), C::category1() }));
}

void tst_ThematicCategorySet::insertCategoryVarious()
{
    ZRThematicCategorySet set;
    set.insertCategoryVarious();
    set.insertCategoryVarious();
    QCOMPARE(set.toDataStringList(), QStringList { QStringLiteral("Sonstige") });
    QCOMPARE(ZRSingleton<ZRThematicCategoryTranslationRegistry>::instance()->toVisibleStringList(set),
        QStringList { QStringLiteral("Other") });
}

void tst_ThematicCategorySet::xmlRoundTrip()
{
    const ZRThematicCategorySet set { C::gold(), C::roseGold(), named("Weiß") };
    QDomDocument document;
    QDomElement parent = document.createElement(QStringLiteral("categories"));
    document.appendChild(parent);
    set.toXml(parent);

    QDomDocument reread;
    QVERIFY(reread.setContent(document.toString()));
    QList<QString> names;
    for (QDomElement e = reread.documentElement().firstChildElement(); !e.isNull(); e = e.nextSiblingElement()) {
        QCOMPARE(e.tagName(), QStringLiteral("subcategory"));
        names.append(e.text());
    }
    QCOMPARE(names.size(), 3);
    QCOMPARE(ZRThematicCategorySet(names), set);
}

void tst_ThematicCategorySet::debugOutput()
{
    QString empty;
    QDebug(&empty) << ZRThematicCategorySet();
    QCOMPARE(empty.trimmed(), QStringLiteral("EMPTY!"));
    QString one;
    QDebug(&one) << ZRThematicCategorySet { C::silver() };
    QCOMPARE(one.trimmed(), QStringLiteral("Category name: Silber visible name: Silver"));
    QString two;
    QDebug(&two) << ZRThematicCategorySet { C::silver(), C::gold() };
    QCOMPARE(two.count(QLatin1Char('\n')), 2);
}

void tst_ThematicCategorySet::listRemovesPrimaryCategories()
{
    ZRThematicCategoryList list { C::gold(), C::frames(), named("Rot"), C::passpartouts(), C::gold() };
    list.removePrimaryCategories();
    QCOMPARE(list, QList<C>({ C::gold(), named("Rot"), C::gold() }));
}

void tst_ThematicCategorySet::listSortsByColor()
{
    ZRThematicCategoryList list { named("Blau"), named("Rot"), named("Grau"), named("Gelb"), named("Weiß"),
        named("Pastellrosa"), named("Gelb") };
    const ZRThematicCategoryList unsorted = list;
    list.sortByColor();
    QCOMPARE(list.size(), unsorted.size());
    for (const C &category : unsorted)
        QCOMPARE(list.count(category), unsorted.count(category));
    for (qsizetype i = 1; i < list.size(); ++i)
        QVERIFY2(list.at(i - 1).colorSortKey() <= list.at(i).colorSortKey(), qPrintable(list.at(i).internalName()));
    // Washed-out colours and greys come before the saturated ones.
    QVERIFY(list.first().colorSortKey().startsWith(QLatin1Char('2')));
    QVERIFY(list.last().colorSortKey().startsWith(QLatin1Char('3')));
}

QTEST_GUILESS_MAIN(tst_ThematicCategorySet)
#include "tst_thematiccategoryset.moc"
