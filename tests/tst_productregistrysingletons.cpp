#include "ZRDirectoryConfig.h"
#include "ZRInitializer.h"
#include "ZRLegacyProductTypeConfigRegistry.h"
#include "ZRProductCheckerRegistry.h"
#include "ZRProductTypeConfigRegistry.h"
#include "ZRProductTypeDescription.h"

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

namespace {
void write(const QString &path, const QString &content)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(path));
    file.write(content.toUtf8());
}

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
private slots:
    void initTestCase();
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void setupLoadsTheCurrentRegistryAndRegistersIt();
    void currentProductsComeFirst();
    void availableProductsAskEveryChecker();
    void legacyProducts();

private:
    QTemporaryDir m_current;
    QTemporaryDir m_installed;
    QTemporaryDir m_resources;
    RefusingChecker m_refusing;
};

void tst_ProductRegistrySingletons::initTestCase()
{
    write(m_current.filePath(QStringLiteral("book.xml")),
        QStringLiteral("<p><product name='book' class='photobook' binding='layflat' foldsafetymargin='7'/></p>"));
    write(m_installed.filePath(QStringLiteral("book.xml")),
        QStringLiteral("<p><product name='book' class='photobook' binding='softcover'/></p>"));
    write(m_installed.filePath(QStringLiteral("mug.xml")),
        QStringLiteral("<p><product name='mug' class='mug' binding='wrapped'/></p>"));
    write(m_resources.filePath(QStringLiteral("products/legacy/old-card.xml")),
        QStringLiteral("<p><product name='old-card' class='card' binding='single' replacedBy='card-a6' "
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
    const QList<ZRProductChecker *> checkers = ZRSingleton<ZRProductCheckerRegistry>::instance()->checkers();
    ZRProductTypeConfigRegistry *registry = ZRSingleton<ZRProductTypeConfigRegistry>::instance();
    QVERIFY(checkers.contains(registry));
    QCOMPARE(registry, ZRProductTypeConfigRegistry::instance());
    QVERIFY(ZRSingleton<ZRProductCheckerRegistry>::instance()->isValid(
        ZRProductType(QStringLiteral("book")), ZRProductCheckerProductType));
    QVERIFY(!ZRSingleton<ZRProductCheckerRegistry>::instance()->isValid(
        ZRProductType(QStringLiteral("poster")), ZRProductCheckerProductType));
}

void tst_ProductRegistrySingletons::currentProductsComeFirst()
{
    const ZRProductTypeConfigRegistry *registry = ZRSingleton<ZRProductTypeConfigRegistry>::instance();
    const ZRProductTypeDescription *book = registry->description(ZRProductType(QStringLiteral("book")));
    QCOMPARE(book->coverType().value(), ZRCoverTypeLayflat);
    QCOMPARE(book->foldSafetyMargin(), 7);
    QCOMPARE(registry->allProducts().size(), 2);
}

void tst_ProductRegistrySingletons::availableProductsAskEveryChecker()
{
    const QList<ZRProductType> available = ZRSingleton<ZRProductTypeConfigRegistry>::instance()->allAvailableProducts();
    QCOMPARE(available, QList<ZRProductType> { ZRProductType(QStringLiteral("book")) });
}

void tst_ProductRegistrySingletons::legacyProducts()
{
    const ZRLegacyProductTypeConfigRegistry *legacy = ZRSingleton<ZRLegacyProductTypeConfigRegistry>::instance();
    const ZRProductType oldCard(QStringLiteral("old-card"));
    QVERIFY(legacy->exists(oldCard));
    QCOMPARE(legacy->replacedByProduct(oldCard), ZRProductType(QStringLiteral("card-a6")));
    QCOMPARE(legacy->conversionStrategy(oldCard).encode(), QStringLiteral("RewriteOneSidedEasyToTwoSidedVario"));
    QCOMPARE(legacy->replacedByProduct(ZRProductType(QStringLiteral("book"))), ZRProductType(QString()));
    QCOMPARE(int(legacy->conversionStrategy(ZRProductType(QStringLiteral("book"))).value()), 0);
    QVERIFY(!ZRSingleton<ZRProductTypeConfigRegistry>::instance()->exists(oldCard));
}

QTEST_GUILESS_MAIN(tst_ProductRegistrySingletons)
#include "tst_productregistrysingletons.moc"
