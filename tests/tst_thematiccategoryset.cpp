#include "ZRDirectoryConfig.h"
#include "ZRLocaleAndTranslationManager.h"
#include "ZRThematicCategoryList.h"
#include "ZRThematicCategorySet.h"
#include "ZRThematicCategoryTranslationRegistry.h"

#include <QDebug>
#include <QDomDocument>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;
using C = ZRThematicCategory;
using S = ZRThematicCategorySet;

Q_DECLARE_METATYPE(ZRThematicCategory)
Q_DECLARE_METATYPE(ZRThematicCategorySet)

// Runs on the bundled sample catalogue: its colours and English translations.
class tst_ThematicCategorySet : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void buildFromCSV_data();
    void buildFromCSV();
    void changing();
    void containsOnlyFavouritesAnd_data();
    void containsOnlyFavouritesAnd();
    void singleElementTests();
    void preferredCategory_data();
    void preferredCategory();
    void fixedSetsHoldDistinctCategories();
    void xmlRoundTripAndDebugOutput();
    void list();
};

void tst_ThematicCategorySet::initTestCase()
{
    const QString resources = QStringLiteral(ZR_EXAMPLES_DIR "/resources");
    ZRDirectoryConfig *config = ZRSingleton<ZRDirectoryConfig>::instance();
    config->setResourcesDir(QDir(resources));
    config->setGlimmerThematicTranslationsDirectories({ resources + u"/translations"_s });
    ZRSingleton<ZRLocaleAndTranslationManager>::instance()->setLocale(QLocale(u"en_GB"_s));

    const QHash<QString, QColor> colors = C::readColorsXML();
    QVERIFY(colors.size() >= 20);
    for (auto it = colors.cbegin(); it != colors.cend(); ++it)
        QVERIFY2(it.value().isValid() && !it.key().isEmpty(), qPrintable(it.key()));
}

void tst_ThematicCategorySet::buildFromCSV_data()
{
    QTest::addColumn<QString>("csv");
    QTest::addColumn<QStringList>("names");

    QTest::newRow("empty parts skipped") << u"Gold,,Silber,"_s << QStringList { u"Gold"_s, u"Silber"_s };
    QTest::newRow("blank kept") << u"Wald, Wiese"_s << QStringList { u" Wiese"_s, u"Wald"_s };
    QTest::newRow("empty") << QString() << QStringList {};
}

void tst_ThematicCategorySet::buildFromCSV()
{
    QFETCH(QString, csv);
    QFETCH(QStringList, names);
    QStringList built = S::buildFromCSV(csv).toDataStringList();
    built.sort();
    QCOMPARE(built, names);
}

void tst_ThematicCategorySet::changing()
{
    // Construction from names adds each category once and keeps the empty name.
    const S fromNames(QList<QString> { u"Blau"_s, QString(), u"BLAU"_s, u"Blue"_s });
    QCOMPARE(fromNames, S({ C(u"Blau"_s), C(QString()) }));

    // insertOnlyOnce tells whether the category was there already.
    S set { C::gold() };
    QVERIFY(!set.insertOnlyOnce(C::silver()));
    QVERIFY(set.insertOnlyOnce(C::silver()));
    QCOMPARE(set, S({ C::gold(), C::silver() }));

    set.insertNonEmpty(C());
    set.insertNonEmpty(C(QString()));
    QCOMPARE(set.size(), 2);
    QVERIFY(set.plusFavourites().contains(C::favourites()));
    QVERIFY(!set.contains(C::favourites()));
    set.insert(C(u"Urlaub"_s));
    set.subtract(S::buildFromCSV(u"SILBER,Holiday,Blau"_s));
    QCOMPARE(set, S { C::gold() });

    S various;
    various.insertCategoryVarious();
    various.insertCategoryVarious();
    QCOMPARE(various.toDataStringList(), QStringList { u"Sonstige"_s });
    QCOMPARE(ZRSingleton<ZRThematicCategoryTranslationRegistry>::instance()->toVisibleStringList(various),
        QStringList { u"Other"_s });
}

// Favourites and AI suggestions are ignored: every other category of the set must be in the other set.
void tst_ThematicCategorySet::containsOnlyFavouritesAnd_data()
{
    QTest::addColumn<ZRThematicCategorySet>("set");
    QTest::addColumn<ZRThematicCategorySet>("other");
    QTest::addColumn<bool>("expected");

    QTest::newRow("empty") << S() << S() << true;
    QTest::newRow("only favourites") << S { C::favourites() } << S { C(u"Urlaub"_s) } << true;
    QTest::newRow("favourites and other") << S { C::favourites(), C::gold() } << S { C::gold() } << true;
    QTest::newRow("AI suggestions and other") << S { C::suggestedByAI(), C::gold() } << S { C::gold() } << true;
    QTest::newRow("favourites and foreign") << S { C::favourites(), C::gold() } << S { C::silver() } << false;
    QTest::newRow("other empty") << S { C::gold() } << S() << false;
}

void tst_ThematicCategorySet::containsOnlyFavouritesAnd()
{
    QFETCH(ZRThematicCategorySet, set);
    QFETCH(ZRThematicCategorySet, other);
    QFETCH(bool, expected);
    QCOMPARE(set.containsOnlyFavouritesAnd(other), expected);
}

void tst_ThematicCategorySet::singleElementTests()
{
    QVERIFY(S { C::multiColor() }.isOnlyMultiColor());
    QVERIFY(!(S { C::multiColor(), C::gold() }.isOnlyMultiColor()));
    QVERIFY(S().containsOnlySpotColorCategories());
    QVERIFY(!(S { C::gold(), C::fitsToSpotColor() }.containsOnlySpotColorCategories()));
    // Only a set of one category has its spot colour.
    QCOMPARE(int(S { C::gold() }.spotColor().value()), 2);
    QCOMPARE(int(S::fromSpotColors({ ZRSpotColor(ZRSpotColorRoseGold) }).spotColor().value()), 8);
    QCOMPARE(int(S { C::gold(), C::silver() }.spotColor().value()), 0);
}

void tst_ThematicCategorySet::preferredCategory_data()
{
    QTest::addColumn<ZRThematicCategorySet>("set");
    QTest::addColumn<bool>("preferMultiColor");
    QTest::addColumn<ZRThematicCategory>("expected");

    const C holiday(u"Urlaub"_s);
    QTest::newRow("multi-colour preferred") << S { C::multiColor(), C::gold() } << true << C::multiColor();
    QTest::newRow("multi-colour not preferred") << S { C::multiColor(), C::gold() } << false << C::gold();
    QTest::newRow("only special") << S { C::favourites() } << false << C::favourites();
    QTest::newRow("special ones skipped")
        << S { C::favourites(), C::recycleBin(), C::frames(), holiday } << true << holiday;
    QTest::newRow("user cliparts first") << S { holiday, C::userCliparts(), C::multiColor() } << true
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

void tst_ThematicCategorySet::fixedSetsHoldDistinctCategories()
{
    // Sizes would shrink if two of the names joined one category through their translations: 9 + 5 = 14.
    S withIcon = S::allSmartLayoutCategories();
    withIcon.unite(S::allKnownSpotColorCategoriesSet());
    QCOMPARE(S::categoriesWithIcon(), withIcon);
    QCOMPARE(withIcon.size(), 14);
    QCOMPARE(S::specialCategories().size(), 6);
}

void tst_ThematicCategorySet::xmlRoundTripAndDebugOutput()
{
    const S set { C::gold(), C::roseGold(), C(u"Weiß"_s) };
    QDomDocument document;
    QDomElement parent = document.createElement(u"categories"_s);
    set.toXml(parent);
    QList<QString> names;
    for (QDomElement e = parent.firstChildElement(); !e.isNull(); e = e.nextSiblingElement()) {
        QCOMPARE(e.tagName(), u"subcategory"_s);
        names.append(e.text());
    }
    QCOMPARE(names.size(), 3);
    QCOMPARE(S(names), set);

    QString empty;
    QDebug(&empty) << S();
    QCOMPARE(empty.trimmed(), u"EMPTY!"_s);
    QString one;
    QDebug(&one) << S { C::silver() };
    QCOMPARE(one.trimmed(), u"Category name: Silber visible name: Silver"_s);
}

void tst_ThematicCategorySet::list()
{
    ZRThematicCategoryList list { C::gold(), C::frames(), C(u"Rot"_s), C::passpartouts(), C::gold() };
    list.removePrimaryCategories();
    QCOMPARE(list, QList<C>({ C::gold(), C(u"Rot"_s), C::gold() }));

    list.clear();
    for (const QString &name : { u"Blau"_s, u"Rot"_s, u"Grau"_s, u"Gelb"_s, u"Weiß"_s, u"Pastellrosa"_s, u"Gelb"_s })
        list.append(C(name));
    list.sortByColor();
    QStringList keys;
    for (const C &category : std::as_const(list))
        keys.append(category.colorSortKey());
    QStringList sorted = keys;
    sorted.sort();
    QCOMPARE(keys, sorted);
    // Washed-out colours and greys come before the saturated ones.
    QVERIFY(keys.first().startsWith(QLatin1Char('2')) && keys.last().startsWith(QLatin1Char('3')));
}

QTEST_GUILESS_MAIN(tst_ThematicCategorySet)
#include "tst_thematiccategoryset.moc"
