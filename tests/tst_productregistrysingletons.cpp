#include "ZRDirectoryConfig.h"
#include "ZRInitializer.h"
#include "ZRLegacyProductTypeConfigRegistry.h"
#include "ZRProductCheckerRegistry.h"
#include "ZRProductTypeConfigRegistry.h"
#include "ZRProductTypeDescription.h"
#include "ZRTestSupport.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

namespace {
/** A checker of another kind that refuses one product, to see the registry combined with others. */
class RefusingChecker : public ZRProductChecker
{
public:
    bool isValid(const ZRProductType &type) const override { return type.name() != QLatin1String("mug"); }
    int type() const override { return ZRProductCheckerPrice; }
    bool isValidBoxStyle(const ZRProductType &, const ZRArticleVariants &) const override { return true; }
};
} // namespace

/**
 * The process-wide registries, loaded through the library's initializer as the editor does. Runs in a
 * process of its own: the singletons load once, from the directories set before the first use.
 */
class tst_ProductRegistrySingletons : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void setupLoadsTheCurrentRegistryAndRegistersIt();
    void legacyProducts();

private:
    QTemporaryDir m_current;
    QTemporaryDir m_installed;
    QTemporaryDir m_resources;
    RefusingChecker m_refusing;
};

void tst_ProductRegistrySingletons::initTestCase()
{
    QVERIFY(ZRTest::writeFile(m_current.filePath(QStringLiteral("book.xml")),
        "<p><product name='book' class='photobook' binding='layflat' foldsafetymargin='7'/></p>"));
    QVERIFY(ZRTest::writeFile(m_installed.filePath(QStringLiteral("book.xml")),
        "<p><product name='book' class='photobook' binding='softcover'/></p>"));
    QVERIFY(ZRTest::writeFile(
        m_installed.filePath(QStringLiteral("mug.xml")), "<p><product name='mug' class='mug' binding='wrapped'/></p>"));
    QVERIFY(ZRTest::writeFile(m_resources.filePath(QStringLiteral("products/legacy/old-card.xml")),
        "<p><product name='old-card' class='card' binding='single' replacedBy='card-a6' "
        "conversionStrategy='RewriteOneSidedEasyToTwoSidedVario'/></p>"));
    ZRDirectoryConfig *config = ZRSingleton<ZRDirectoryConfig>::instance();
    config->setProductsDir(true, QDir(m_current.path()));
    config->setProductsDir(false, QDir(m_installed.path()));
    config->setResourcesDir(QDir(m_resources.path()));
    ZRSingleton<ZRProductCheckerRegistry>::instance()->registerChecker(&m_refusing);
}

void tst_ProductRegistrySingletons::setupLoadsTheCurrentRegistryAndRegistersIt()
{
    ZRSingleton<ZRInitializer>::instance()->setupAll(ZRInitializerHeadless);
    const ZRProductCheckerRegistry *checkers = ZRSingleton<ZRProductCheckerRegistry>::instance();
    ZRProductTypeConfigRegistry *registry = ZRSingleton<ZRProductTypeConfigRegistry>::instance();
    QVERIFY(checkers->checkers().contains(registry));
    QVERIFY(checkers->isValid(ZRProductType(QStringLiteral("book")), ZRProductCheckerProductType));
    QVERIFY(!checkers->isValid(ZRProductType(QStringLiteral("poster")), ZRProductCheckerProductType));

    // The current products directory comes first; available products are those every checker accepts.
    const ZRProductTypeDescription *book = registry->description(ZRProductType(QStringLiteral("book")));
    QCOMPARE(book->coverType().value(), ZRCoverTypeLayflat);
    QCOMPARE(book->foldSafetyMargin(), 7);
    QCOMPARE(registry->allProducts().size(), 2);
    QCOMPARE(registry->allAvailableProducts(), QList<ZRProductType> { ZRProductType(QStringLiteral("book")) });
}

void tst_ProductRegistrySingletons::legacyProducts()
{
    const ZRLegacyProductTypeConfigRegistry *legacy = ZRSingleton<ZRLegacyProductTypeConfigRegistry>::instance();
    const ZRProductType oldCard(QStringLiteral("old-card"));
    QVERIFY(legacy->exists(oldCard));
    QCOMPARE(legacy->replacedByProduct(oldCard), ZRProductType(QStringLiteral("card-a6")));
    QCOMPARE(legacy->conversionStrategy(oldCard).encode(), QStringLiteral("RewriteOneSidedEasyToTwoSidedVario"));
    QCOMPARE(legacy->replacedByProduct(ZRProductType(QStringLiteral("book"))), ZRProductType(QString()));
    QVERIFY(!ZRSingleton<ZRProductTypeConfigRegistry>::instance()->exists(oldCard));
}

QTEST_GUILESS_MAIN(tst_ProductRegistrySingletons)
#include "tst_productregistrysingletons.moc"
