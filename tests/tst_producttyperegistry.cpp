#include "ZRJigType.h"
#include "ZRProductClassificationGroup.h"
#include "ZRProductTypeConfigRegistryAbstract.h"
#include "ZRProductTypeDescription.h"
#include "ZRProductTypeDescriptionReader.h"
#include "ZRTestSupport.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

namespace {
using ZRTest::sortedNames;

/** Writes the file @p file of @p dir with one product element. */
bool writeProduct(const QTemporaryDir &dir, const QString &file, const QString &name,
    const QString &attributes = QString(), const QString &children = QString())
{
    return ZRTest::writeFile(dir.filePath(file),
        QStringLiteral("<products><product name='%1' %2>%3</product></products>")
            .arg(name, attributes, children)
            .toUtf8());
}

/** A registry over directories chosen by the test. */
class DirectoryRegistry : public ZRProductTypeConfigRegistryAbstract
{
public:
    explicit DirectoryRegistry(const QList<QDir> &directories)
        : m_directories(directories)
    {
        load();
    }
    QList<QDir> supervisedDirs() const override { return m_directories; }

private:
    QList<QDir> m_directories;
};
} // namespace

class tst_ProductTypeRegistry : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void readerReadsOnlyXmlFiles();
    void readerWithoutProductElement();
    void readerKeepsOneEntryPerProductType();
    void firstDirectoryWins();
    void unknownProductGetsTheVoidDescription();
    void productQueries();
    void findProducts_data();
    void findProducts();
    void classificationQueries();
    void sortPageFileNames_data();
    void sortPageFileNames();
};

void tst_ProductTypeRegistry::readerReadsOnlyXmlFiles()
{
    QTemporaryDir dir;
    QVERIFY(writeProduct(dir, "book.xml", "book"));
    QVERIFY(writeProduct(dir, "notes.txt", "txt"));
    QVERIFY(writeProduct(dir, "book.xml.bak", "backup"));
    QVERIFY(writeProduct(dir, "nested.xml/inner.xml", "inner"));
    QVERIFY(ZRTest::writeFile(dir.filePath("broken.xml"), "<products><product name='x'>"));
    QTest::ignoreMessage(QtWarningMsg,
        qPrintable(QString("could not open " + QFileInfo(dir.filePath("broken.xml")).absoluteFilePath())));
    const auto read = ZRProductTypeDescriptionReader(QDir(dir.path())).readDir();
    QCOMPARE(sortedNames(read.keys()), QStringList { QStringLiteral("book") });
    qDeleteAll(read);
    QVERIFY(ZRProductTypeDescriptionReader(QDir(dir.filePath("missing"))).readDir().isEmpty());
}

void tst_ProductTypeRegistry::readerWithoutProductElement()
{
    QTemporaryDir dir;
    QVERIFY(ZRTest::writeFile(dir.filePath("empty.xml"), "<products><other name='x'/></products>"));
    std::unique_ptr<ZRProductTypeDescription> description(
        ZRProductTypeDescriptionReader(QDir(dir.path())).readFile(QFileInfo(dir.filePath("empty.xml"))));
    QVERIFY(description);
    QVERIFY(!description->productType().isValid());
    QCOMPARE(description->tiltAngle(), 270);
}

void tst_ProductTypeRegistry::readerKeepsOneEntryPerProductType()
{
    QTemporaryDir dir;
    QVERIFY(writeProduct(dir, "a.xml", "book", "class='photobook'"));
    QVERIFY(writeProduct(dir, "b.xml", "book", "class='calendar'"));
    QList<ZRProductTypeDescription *> replaced;
    const auto read = ZRProductTypeDescriptionReader(QDir(dir.path())).readDir(&replaced);
    QCOMPARE(read.size(), 1);
    QCOMPARE(replaced.size(), 1);
    QVERIFY(replaced.first() != read.value(ZRProductType(QStringLiteral("book"))));
    qDeleteAll(read);
    qDeleteAll(replaced);
}

void tst_ProductTypeRegistry::firstDirectoryWins()
{
    QTemporaryDir current, installed;
    QVERIFY(writeProduct(current, "book.xml", "book", "class='photobook' binding='hardcover'"));
    QVERIFY(writeProduct(installed, "book.xml", "book", "class='calendar' binding='spiral'"));
    QVERIFY(writeProduct(installed, "mug.xml", "mug", "class='mug' binding='wrapped'"));
    const DirectoryRegistry registry({ QDir(current.path()), QDir(installed.path()) });
    QCOMPARE(registry.articleClass(ZRProductType(QStringLiteral("book"))).value(), ZRArticleClassPhotoBook);
    QVERIFY(registry.exists(ZRProductType(QStringLiteral("mug"))));
    QCOMPARE(sortedNames(registry.allProducts()), (QStringList { "book", "mug" }));
}

void tst_ProductTypeRegistry::unknownProductGetsTheVoidDescription()
{
    const DirectoryRegistry registry({});
    const ZRProductType unknown(QStringLiteral("nothing"));
    QVERIFY(registry.voidDescription() != nullptr);
    QCOMPARE(registry.description(unknown), registry.voidDescription());
    QVERIFY(!registry.exists(unknown));
    QCOMPARE(registry.firstValidProduct({ unknown, ZRProductType(QStringLiteral("other")) }), ZRProductType(QString()));
}

void tst_ProductTypeRegistry::productQueries()
{
    QTemporaryDir dir;
    QVERIFY(writeProduct(dir, "calendar.xml", "calendar", "class='calendar' binding='spiral'",
        "<productionnumbering>2</productionnumbering><editorAbilities><jigs><background>"
        "<categories pageType='photo_page'>Natur</categories><categories pageType='grid_page'>Natur,Farben</categories>"
        "</background></jigs></editorAbilities>"));
    QVERIFY(writeProduct(dir, "draft.xml", "draft"));
    const DirectoryRegistry registry({ QDir(dir.path()) });
    const ZRProductType calendar(QStringLiteral("calendar"));
    QCOMPARE(registry.firstValidProduct({ ZRProductType(QStringLiteral("draft")), calendar }), calendar);
    QVERIFY(registry.hasArticleClass(calendar, ZRArticleClass(QStringLiteral("calendar,photobook"))));
    QVERIFY(!registry.hasArticleClass(calendar, ZRArticleClass(QStringLiteral("photobook"))));
    QCOMPARE(registry.productionNumberingList(calendar, 3), (QList<int> { 2, 3, 4 }));
    const ZRPageType photoFlag(ZRPageTypePhoto);
    QVERIFY(registry.thereIsOnlyOneAllowedBackgroundCategory(calendar, photoFlag));
    QVERIFY(!registry.thereIsOnlyOneAllowedBackgroundCategory(calendar, ZRPageType(ZRPageTypeGrid)));
    QVERIFY(registry.limitJigCategories(calendar, photoFlag, ZRJigType(ZRJigTypeBackground)));
    QVERIFY(!registry.limitJigCategories(calendar, photoFlag, ZRJigType(ZRJigTypeClipart)));
    // Descriptions that are not valid are still listed, but not available.
    QCOMPARE(sortedNames(registry.allProducts()), (QStringList { "calendar", "draft" }));
}

void tst_ProductTypeRegistry::findProducts_data()
{
    QTest::addColumn<QStringList>("classes");
    QTest::addColumn<QStringList>("covers");
    QTest::addColumn<QStringList>("expected");
    // clang-format off
    QTest::newRow("everything") << QStringList() << QStringList() << QStringList { "book", "calendar", "draft", "poster" };
    QTest::newRow("one class") << QStringList { "photobook" } << QStringList() << QStringList { "book" };
    QTest::newRow("class and cover") << QStringList { "photobook", "calendar" } << QStringList { "spiral" } << QStringList { "calendar" };
    QTest::newRow("classes compare whole values") << QStringList { "walldecor" } << QStringList() << QStringList();
    QTest::newRow("cover type 0") << QStringList() << QStringList { "" } << QStringList { "draft", "poster" };
    // clang-format on
}

void tst_ProductTypeRegistry::findProducts()
{
    QFETCH(QStringList, classes);
    QFETCH(QStringList, covers);
    QTemporaryDir dir;
    QVERIFY(writeProduct(dir, "1.xml", "book", "class='photobook' binding='hardcover'"));
    QVERIFY(writeProduct(dir, "2.xml", "calendar", "class='calendar' binding='spiral'"));
    QVERIFY(writeProduct(dir, "3.xml", "poster", "class='walldecor,photoprint'"));
    QVERIFY(writeProduct(dir, "4.xml", "draft"));
    const DirectoryRegistry registry({ QDir(dir.path()) });
    ZREmptyMeansAllSet<ZRArticleClass> classSet;
    for (const QString &key : classes)
        classSet.insert(ZRArticleClass(key));
    ZREmptyMeansAllSet<ZRCoverType> coverSet;
    for (const QString &key : covers)
        coverSet.insert(ZRCoverType(key));
    QTEST(sortedNames(registry.findProducts(classSet, coverSet)), "expected");
}

void tst_ProductTypeRegistry::classificationQueries()
{
    QTemporaryDir dir;
    QVERIFY(writeProduct(
        dir, "c1.xml", "canvas-60x40", "class='walldecor'", "<classification cm='60x40' group='Leinwand'/>"));
    QVERIFY(writeProduct(
        dir, "c2.xml", "canvas-100x70", "class='walldecor'", "<classification cm='100x70' group='Leinwand'/>"));
    QVERIFY(writeProduct(
        dir, "p1.xml", "poster-75x50", "class='walldecor'", "<classification cm='75x50' group='Poster'/>"));
    QVERIFY(writeProduct(dir, "b1.xml", "book", "class='photobook' binding='softcover'"));
    const DirectoryRegistry registry({ QDir(dir.path()) });
    QCOMPARE(sortedNames(registry.findAllIn(ZRProductClassificationGroup(QStringLiteral("Leinwand")))),
        (QStringList { "canvas-100x70", "canvas-60x40" }));
    const ZRProductClassificationManager manager
        = registry.createProductClassifationManager(ZRArticleClass(ZRArticleClassWallDecor));
    QCOMPARE(manager.classificationGroups().size(), 2);
    QCOMPARE(manager.closestProduct(ZRProductType(QStringLiteral("poster-75x50")), QStringLiteral("Leinwand")),
        ZRProductType(QStringLiteral("canvas-60x40")));
}

void tst_ProductTypeRegistry::sortPageFileNames_data()
{
    QTest::addColumn<QString>("numbering");
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QStringList>("expected");
    // clang-format off
    QTest::newRow("3,1,2") << "3,1,2" << QStringList { "a", "b", "c" } << QStringList { "b", "c", "a" };
    QTest::newRow("ties keep their order") << "2,1,2,1" << QStringList { "a", "b", "c", "d" } << QStringList { "b", "d", "a", "c" };
    QTest::newRow("counted on") << "5,1" << QStringList { "a", "b", "c" } << QStringList { "b", "c", "a" };
    QTest::newRow("empty") << "3,1,2" << QStringList() << QStringList();
    // clang-format on
}

void tst_ProductTypeRegistry::sortPageFileNames()
{
    QFETCH(QString, numbering);
    QFETCH(QStringList, files);
    QTemporaryDir dir;
    QVERIFY(writeProduct(
        dir, "book.xml", "book", QString(), "<productionnumbering>" + numbering + "</productionnumbering>"));
    const DirectoryRegistry registry({ QDir(dir.path()) });
    QTEST(registry.sortPageFileNameListInInternOrder(ZRProductType(QStringLiteral("book")), files), "expected");
    QCOMPARE(registry.sortPageFileNameListInInternOrder(ZRProductType(QString()), files), files);
}

QTEST_GUILESS_MAIN(tst_ProductTypeRegistry)
#include "tst_producttyperegistry.moc"
