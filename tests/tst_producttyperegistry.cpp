#include "ZRJigType.h"
#include "ZRProductClassificationGroup.h"
#include "ZRProductTypeConfigRegistryAbstract.h"
#include "ZRProductTypeDescription.h"
#include "ZRProductTypeDescriptionReader.h"

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

namespace {
void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(path));
    file.write(content);
}

QByteArray product(const QString &name, const QString &attributes = QString(), const QString &children = QString())
{
    return QStringLiteral("<products><product name='%1' %2>%3</product></products>")
        .arg(name, attributes, children)
        .toUtf8();
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

QStringList sortedNames(const QList<ZRProductType> &types)
{
    QStringList names;
    for (const ZRProductType &type : types)
        names.append(type.name());
    names.sort();
    return names;
}
} // namespace

class tst_ProductTypeRegistry : public QObject
{
    Q_OBJECT
private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void readerReadsOnlyXmlFiles();
    void readerWarnsAndSkipsBrokenFiles();
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
    write(dir.filePath(QStringLiteral("book.xml")), product(QStringLiteral("book")));
    write(dir.filePath(QStringLiteral("notes.txt")), product(QStringLiteral("txt")));
    write(dir.filePath(QStringLiteral("book.xml.bak")), product(QStringLiteral("backup")));
    QVERIFY(QDir(dir.path()).mkpath(QStringLiteral("nested.xml")));
    write(dir.filePath(QStringLiteral("nested.xml/inner.xml")), product(QStringLiteral("inner")));

    const auto read = ZRProductTypeDescriptionReader(QDir(dir.path())).readDir();
    QCOMPARE(sortedNames(read.keys()), QStringList { QStringLiteral("book") });
    qDeleteAll(read);
    QVERIFY(ZRProductTypeDescriptionReader(QDir(dir.filePath(QStringLiteral("missing")))).readDir().isEmpty());
}

void tst_ProductTypeRegistry::readerWarnsAndSkipsBrokenFiles()
{
    QTemporaryDir dir;
    write(dir.filePath(QStringLiteral("good.xml")), product(QStringLiteral("good")));
    write(dir.filePath(QStringLiteral("broken.xml")), "<products><product name='x'>");
    const QString brokenPath = QFileInfo(dir.filePath(QStringLiteral("broken.xml"))).absoluteFilePath();
    QTest::ignoreMessage(QtWarningMsg, qPrintable(QStringLiteral("could not open ") + brokenPath));
    const auto read = ZRProductTypeDescriptionReader(QDir(dir.path())).readDir();
    QCOMPARE(sortedNames(read.keys()), QStringList { QStringLiteral("good") });
    qDeleteAll(read);
}

void tst_ProductTypeRegistry::readerWithoutProductElement()
{
    QTemporaryDir dir;
    write(dir.filePath(QStringLiteral("empty.xml")), "<products><other name='x'/></products>");
    std::unique_ptr<ZRProductTypeDescription> description(
        ZRProductTypeDescriptionReader(QDir(dir.path()))
            .readFile(QFileInfo(dir.filePath(QStringLiteral("empty.xml")))));
    QVERIFY(description);
    QVERIFY(!description->productType().isValid());
    QCOMPARE(description->tiltAngle(), 270);
}

void tst_ProductTypeRegistry::readerKeepsOneEntryPerProductType()
{
    QTemporaryDir dir;
    write(dir.filePath(QStringLiteral("a.xml")), product(QStringLiteral("book"), QStringLiteral("class='photobook'")));
    write(dir.filePath(QStringLiteral("b.xml")), product(QStringLiteral("book"), QStringLiteral("class='calendar'")));
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
    write(current.filePath(QStringLiteral("book.xml")),
        product(QStringLiteral("book"), QStringLiteral("class='photobook' binding='hardcover'")));
    write(installed.filePath(QStringLiteral("book.xml")),
        product(QStringLiteral("book"), QStringLiteral("class='calendar' binding='spiral'")));
    write(installed.filePath(QStringLiteral("mug.xml")),
        product(QStringLiteral("mug"), QStringLiteral("class='mug' binding='wrapped'")));
    const DirectoryRegistry registry({ QDir(current.path()), QDir(installed.path()) });
    QCOMPARE(registry.articleClass(ZRProductType(QStringLiteral("book"))).value(), ZRArticleClassPhotoBook);
    QVERIFY(registry.exists(ZRProductType(QStringLiteral("mug"))));
    QCOMPARE(sortedNames(registry.allProducts()), (QStringList { "book", "mug" }));
}

void tst_ProductTypeRegistry::unknownProductGetsTheVoidDescription()
{
    const DirectoryRegistry registry({});
    const ZRProductType unknown(QStringLiteral("nothing"));
    QCOMPARE(registry.description(unknown), registry.voidDescription());
    QVERIFY(registry.description(unknown) != nullptr);
    QVERIFY(!registry.exists(unknown));
    QVERIFY(!registry.isValid(unknown));
    QCOMPARE(quint64(registry.articleClass(unknown).value()), quint64(0));
    QVERIFY(registry.pageTypes(unknown, 10).isEmpty());
    QCOMPARE(registry.firstValidProduct({ unknown, ZRProductType(QStringLiteral("other")) }), ZRProductType(QString()));
    QCOMPARE(registry.type(), 4);
    QVERIFY(registry.isValidBoxStyle(unknown, ZRArticleVariants(QStringLiteral("color=red"))));
}

void tst_ProductTypeRegistry::productQueries()
{
    QTemporaryDir dir;
    write(dir.filePath(QStringLiteral("calendar.xml")),
        product(QStringLiteral("calendar"), QStringLiteral("class='calendar' binding='spiral' horizontalPages='false'"),
            QStringLiteral("<pages>cover_front,calendar_sheets</pages><productionnumbering>2</productionnumbering>"
                           "<editorAbilities><jigs><background fullOnEachPage='false'>"
                           "<categories pageType='photo_page'>Natur</categories>"
                           "<categories pageType='grid_page'>Natur,Farben</categories>"
                           "</background></jigs></editorAbilities>")));
    write(dir.filePath(QStringLiteral("draft.xml")), product(QStringLiteral("draft")));
    const DirectoryRegistry registry({ QDir(dir.path()) });
    const ZRProductType calendar(QStringLiteral("calendar"));
    QCOMPARE(registry.firstValidProduct({ ZRProductType(QStringLiteral("draft")), calendar }), calendar);
    QVERIFY(registry.hasArticleClass(calendar, ZRArticleClass(QStringLiteral("calendar,photobook"))));
    QVERIFY(!registry.hasArticleClass(calendar, ZRArticleClass(QStringLiteral("photobook"))));
    QCOMPARE(registry.pageTypes(calendar, 4).size(), 5);
    QVERIFY(!registry.horizontalPages(calendar));
    QCOMPARE(registry.productionNumberingList(calendar, 3), (QList<int> { 2, 3, 4 }));
    QVERIFY(!registry.fullBackgroundOnEachPage(calendar));
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
    QTest::newRow("everything") << QStringList() << QStringList()
                                << QStringList { "book", "calendar", "draft", "poster" };
    QTest::newRow("one class") << QStringList { "photobook" } << QStringList() << QStringList { "book" };
    QTest::newRow("class and cover") << QStringList { "photobook", "calendar" } << QStringList { "spiral" }
                                     << QStringList { "calendar" };
    QTest::newRow("classes compare whole values") << QStringList { "walldecor" } << QStringList() << QStringList();
    QTest::newRow("cover type 0") << QStringList() << QStringList { "" } << QStringList { "draft", "poster" };
}

void tst_ProductTypeRegistry::findProducts()
{
    QFETCH(QStringList, classes);
    QFETCH(QStringList, covers);
    QFETCH(QStringList, expected);
    QTemporaryDir dir;
    write(dir.filePath(QStringLiteral("1.xml")),
        product(QStringLiteral("book"), QStringLiteral("class='photobook' binding='hardcover'")));
    write(dir.filePath(QStringLiteral("2.xml")),
        product(QStringLiteral("calendar"), QStringLiteral("class='calendar' binding='spiral'")));
    write(dir.filePath(QStringLiteral("3.xml")),
        product(QStringLiteral("poster"), QStringLiteral("class='walldecor,photoprint'")));
    write(dir.filePath(QStringLiteral("4.xml")), product(QStringLiteral("draft")));
    const DirectoryRegistry registry({ QDir(dir.path()) });
    ZREmptyMeansAllSet<ZRArticleClass> classSet;
    for (const QString &key : classes)
        classSet.insert(ZRArticleClass(key));
    ZREmptyMeansAllSet<ZRCoverType> coverSet;
    for (const QString &key : covers)
        coverSet.insert(ZRCoverType(key));
    const auto found = registry.findProducts(classSet, coverSet);
    QCOMPARE(sortedNames(QList<ZRProductType>(found.cbegin(), found.cend())), expected);
}

void tst_ProductTypeRegistry::classificationQueries()
{
    QTemporaryDir dir;
    const auto wallDecor = [](const QString &size, const QString &group) {
        return QStringLiteral("<classification cm='%1' group='%2'/>").arg(size, group);
    };
    write(dir.filePath(QStringLiteral("c1.xml")),
        product(QStringLiteral("canvas-60x40"), QStringLiteral("class='walldecor'"),
            wallDecor(QStringLiteral("60x40"), QStringLiteral("Leinwand"))));
    write(dir.filePath(QStringLiteral("c2.xml")),
        product(QStringLiteral("canvas-100x70"), QStringLiteral("class='walldecor'"),
            wallDecor(QStringLiteral("100x70"), QStringLiteral("Leinwand"))));
    write(dir.filePath(QStringLiteral("p1.xml")),
        product(QStringLiteral("poster-75x50"), QStringLiteral("class='walldecor'"),
            wallDecor(QStringLiteral("75x50"), QStringLiteral("Poster"))));
    write(dir.filePath(QStringLiteral("b1.xml")),
        product(QStringLiteral("book"), QStringLiteral("class='photobook' binding='softcover'")));
    const DirectoryRegistry registry({ QDir(dir.path()) });
    QCOMPARE(sortedNames(registry.findAllIn(ZRProductClassificationGroup(QStringLiteral("Leinwand")))),
        (QStringList { "canvas-100x70", "canvas-60x40" }));
    const ZRProductClassificationManager manager
        = registry.createProductClassifationManager(ZRArticleClass(ZRArticleClassWallDecor));
    QCOMPARE(manager.classificationGroups().size(), 2);
    QCOMPARE(manager.closestProduct(ZRProductType(QStringLiteral("poster-75x50")), QStringLiteral("Leinwand")),
        ZRProductType(QStringLiteral("canvas-60x40")));
    QCOMPARE(registry.createProductClassifationManager(ZRArticleClass(ZRArticleClassPhotoBook))
                 .classificationGroups()
                 .size(),
        1);
}

void tst_ProductTypeRegistry::sortPageFileNames_data()
{
    QTest::addColumn<QString>("numbering");
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("3,1,2") << QStringLiteral("3,1,2") << QStringList { "a", "b", "c" } << QStringList { "b", "c", "a" };
    QTest::newRow("ties keep their order")
        << QStringLiteral("2,1,2,1") << QStringList { "a", "b", "c", "d" } << QStringList { "b", "d", "a", "c" };
    QTest::newRow("counted on") << QStringLiteral("5,1") << QStringList { "a", "b", "c" }
                                << QStringList { "b", "c", "a" };
    QTest::newRow("empty") << QStringLiteral("3,1,2") << QStringList() << QStringList();
}

void tst_ProductTypeRegistry::sortPageFileNames()
{
    QFETCH(QString, numbering);
    QFETCH(QStringList, files);
    QFETCH(QStringList, expected);
    QTemporaryDir dir;
    write(dir.filePath(QStringLiteral("book.xml")),
        product(QStringLiteral("book"), QString(),
            QStringLiteral("<productionnumbering>%1</productionnumbering>").arg(numbering)));
    const DirectoryRegistry registry({ QDir(dir.path()) });
    QCOMPARE(registry.sortPageFileNameListInInternOrder(ZRProductType(QStringLiteral("book")), files), expected);
    QCOMPARE(registry.sortPageFileNameListInInternOrder(ZRProductType(QString()), files), files);
}

QTEST_GUILESS_MAIN(tst_ProductTypeRegistry)
#include "tst_producttyperegistry.moc"
