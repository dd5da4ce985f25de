#include "ZRArticleVariants.h"
#include "ZRDirectoryConfig.h"
#include "ZRInitializer.h"
#include "ZRPageContext.h"
#include "ZRProductCheckerRegistry.h"
#include "ZRProductPropertiesInitializer.h"
#include "ZRTestSupport.h"
#include "ZRXMLParser.h"

#include <QDomDocument>
#include <QRegularExpression>
#include <QTest>

#include <cmath>

namespace {
using ZRTest::parseElement;

class FixedChecker : public ZRProductChecker
{
public:
    FixedChecker(int type, const QString &accepted)
        : m_type(type)
        , m_accepted(accepted)
    { }
    bool isValid(const ZRProductType &type) const override { return type.name() == m_accepted; }
    int type() const override { return m_type; }
    bool isValidBoxStyle(const ZRProductType &, const ZRArticleVariants &) const override { return true; }

private:
    int m_type;
    QString m_accepted;
};

class RecordingInitializer : public ZRInitializerAbstract
{
public:
    RecordingInitializer(QStringList *log, const QString &name)
        : m_log(log)
        , m_name(name)
    { }
    void setup(ZRInitializerOption option) override
    {
        m_log->append(m_name + QLatin1String(" setup ") + QString::number(option));
    }
    void teardown() override { m_log->append(m_name + QLatin1String(" teardown")); }

private:
    QStringList *m_log;
    QString m_name;
};
} // namespace

class tst_Base : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void boolAttribute_data();
    void boolAttribute();
    void intAttribute_data();
    void intAttribute();
    void geometry();
    void decimalAttribute_data();
    void decimalAttribute();
    void productTypeAsHashKey();
    void pageContextMatching_data();
    void pageContextMatching();
    void articleVariantsText_data();
    void articleVariantsText();
    void checkerRegistryMask();
    void initializerOrder();
    void libraryRegistersItsInitializerOnLoad();
    void directoryConfigResources();
};

void tst_Base::boolAttribute_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<bool>("defaultValue");
    QTest::addColumn<bool>("expected");
    QTest::newRow("TRUE") << "<e a='TRUE'/>" << false << true;
    QTest::newRow("Yes") << "<e a='Yes'/>" << false << true;
    QTest::newRow("1") << "<e a='1'/>" << false << true;
    QTest::newRow("no") << "<e a='no'/>" << true << false;
    QTest::newRow("0") << "<e a=' 0 '/>" << true << false;
    QTest::newRow("garbage keeps default") << "<e a='maybe'/>" << true << true;
    QTest::newRow("missing keeps default") << "<e/>" << true << true;
    QTest::newRow("empty keeps default") << "<e a=''/>" << false << false;
}

void tst_Base::boolAttribute()
{
    QFETCH(QString, xml);
    QFETCH(bool, defaultValue);
    QFETCH(bool, expected);
    const QDomElement element = parseElement(xml);
    QCOMPARE(ZRXMLParser::boolAttribute(element, QStringLiteral("a"), defaultValue), expected);
    QCOMPARE(ZRXMLParser::boolAttribute(element.attributes(), QStringLiteral("a"), defaultValue), expected);
}

void tst_Base::intAttribute_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<int>("expected");
    QTest::newRow("negative with blanks") << "<e a=' -3 '/>" << -3;
    QTest::newRow("malformed") << "<e a='4x'/>" << -99;
    QTest::newRow("too large") << "<e a='4294967296'/>" << -99;
    QTest::newRow("missing") << "<e/>" << -99;
}

void tst_Base::intAttribute()
{
    QFETCH(QString, xml);
    QFETCH(int, expected);
    const QDomElement element = parseElement(xml);
    QCOMPARE(ZRXMLParser::intAttribute(element, QStringLiteral("a"), -99), expected);
    QCOMPARE(ZRXMLParser::intAttribute(element.attributes(), QStringLiteral("a"), -99), expected);
}

void tst_Base::geometry()
{
    const QDomElement full = parseElement(QStringLiteral("<e x='1' y='2' width='30' height='40.5'/>"));
    QCOMPARE(ZRXMLParser::readRect(full.attributes()), QRect(1, 2, 30, 0));
    QCOMPARE(ZRXMLParser::readRectF(full.attributes()), QRectF(1, 2, 30, 40.5));
    QVERIFY(ZRXMLParser::readRect(parseElement(QStringLiteral("<e/>")).attributes()).isNull());
    QCOMPARE(ZRXMLParser::readSize(parseElement(QStringLiteral("<e width='7'/>"))), QSize(7, -1));
    QCOMPARE(ZRXMLParser::readVector3D(parseElement(QStringLiteral("<e x='1.5' z='x'/>")).attributes(),
                 QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("z"), 9, 8, 7),
        QVector3D(1.5f, 8, 7));
    QCOMPARE(ZRXMLParser::readAngle(QDomElement(), QStringLiteral("angle"), 270), 270);
    QCOMPARE(ZRXMLParser::intText(parseElement(QStringLiteral("<e><n> 12 </n></e>")), QStringLiteral("n"), 0), 12);
    QCOMPARE(ZRXMLParser::intText(parseElement(QStringLiteral("<e/>")), QStringLiteral("n"), 5), 5);
    const ZRDistance distance = ZRXMLParser::readDistance(
        parseElement(QStringLiteral("<m/>")), QStringLiteral("d"), 50.0, ZRDistanceUnit(ZRDistanceUnitTenthMM));
    QCOMPARE(distance.value(), 50.0);
    QCOMPARE(distance.unit().value(), ZRDistanceUnitTenthMM);
}

void tst_Base::decimalAttribute_data()
{
    QTest::addColumn<QString>("text");
    // Plain decimals take a shortcut of their own; every text must read as QString::toDouble() reads it.
    for (const char *text : { "2100", "-3.5", "4.75", " 6.5 ", "0.1", "-0", "-0.0", "007.50", "32.25", "0.3", "0.7",
             "4.35", "123.456", "123456789012345", "1234567890123456", "0.000000000000001", "9007199254740993", "1e3",
             ".5", "5.", "+2", "1,5", "1.2.3", "-", "", "abc", "0x10", "inf", "1.7976931348623157e309" })
        QTest::newRow(text) << QString::fromLatin1(text);
}

void tst_Base::decimalAttribute()
{
    QFETCH(QString, text);
    QDomElement element = parseElement(QStringLiteral("<e/>"));
    element.setAttribute(QStringLiteral("d"), text);
    bool ok = false;
    const double parsed = text.trimmed().toDouble(&ok);
    const double expected = ok ? parsed : -99.0;
    const double read
        = ZRXMLParser::readDistance(element, QStringLiteral("d"), -99.0, ZRDistanceUnit(ZRDistanceUnitTenthMM)).value();
    // Bit for bit, so that -0 and the last bit of a rounding count.
    QCOMPARE(qFloatDistance(read, expected), quint64(0));
    QCOMPARE(std::signbit(read), std::signbit(expected));
}

void tst_Base::productTypeAsHashKey()
{
    QHash<ZRProductType, int> hash;
    hash.insert(ZRProductType(QStringLiteral("book-a4")), 1);
    hash.insert(ZRProductType(QStringLiteral("book-a4")), 2);
    hash.insert(ZRProductType(QStringLiteral("Book-A4")), 3);
    QCOMPARE(hash.size(), 2);
    QCOMPARE(hash.value(ZRProductType(QStringLiteral("book-a4"))), 2);
    QVERIFY(!ZRProductType().isValid());
    QVERIFY(ZRProductType(QStringLiteral(" ")).isValid());
}

void tst_Base::pageContextMatching_data()
{
    QTest::addColumn<int>("typeA");
    QTest::addColumn<int>("alignA");
    QTest::addColumn<int>("typeB");
    QTest::addColumn<int>("alignB");
    QTest::addColumn<bool>("matches");
    QTest::newRow("both share") << int(ZRPageTypeAll) << int(ZRPageAlignmentAll) << int(ZRPageTypeContent)
                                << int(ZRPageAlignmentLeft) << true;
    QTest::newRow("types disjoint") << int(ZRPageTypeCoverFront) << int(ZRPageAlignmentAll) << int(ZRPageTypeContent)
                                    << int(ZRPageAlignmentLeft) << false;
    QTest::newRow("alignments disjoint") << int(ZRPageTypeContent) << int(ZRPageAlignmentRight)
                                         << int(ZRPageTypeContent) << int(ZRPageAlignmentLeft) << false;
    QTest::newRow("zero alignment") << int(ZRPageTypeContent) << int(ZRPageAlignmentNone) << int(ZRPageTypeContent)
                                    << int(ZRPageAlignmentLeft) << false;
}

void tst_Base::pageContextMatching()
{
    QFETCH(int, typeA);
    QFETCH(int, alignA);
    QFETCH(int, typeB);
    QFETCH(int, alignB);
    QFETCH(bool, matches);
    const ZRPageContext a { ZRPageTypeEnum(typeA), ZRPageAlignmentEnum(alignA) };
    const ZRPageContext b { ZRPageTypeEnum(typeB), ZRPageAlignmentEnum(alignB) };
    QCOMPARE(a.matchesWith(b), matches);
    QCOMPARE(b.matchesWith(a), matches);
    QCOMPARE(a == b, typeA == typeB && alignA == alignB);
}

void tst_Base::articleVariantsText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("blanks dropped, options sorted") << "size = large, color=white"
                                                    << "color=white;size=large";
    QTest::newRow("empty pairs skipped") << "a=1;;b=2,"
                                         << "a=1;b=2";
    QTest::newRow("option without choice") << "flag"
                                           << "flag=";
    QTest::newRow("pair without option skipped") << " = x ; b = 2 "
                                                 << "b=2";
    QTest::newRow("choice keeps later equals signs") << "a=1=2"
                                                     << "a=1=2";
    QTest::newRow("only separators") << ";," << QString();
}

void tst_Base::articleVariantsText()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    const ZRArticleVariants variants(text);
    QVERIFY(variants.isValid());
    QCOMPARE(variants.toString(), expected);
    if (!expected.isEmpty())
        QCOMPARE(variants, ZRArticleVariants(expected)); // equal by content, not by text
    QVERIFY(variants != ZRArticleVariants(QStringLiteral("a=0")));
    QVERIFY(!ZRArticleVariants(QString()).isValid());
}

void tst_Base::checkerRegistryMask()
{
    ZRProductCheckerRegistry registry;
    const ZRProductType book(QStringLiteral("book"));
    QVERIFY(registry.isValid(book, ZRProductCheckerAll));
    FixedChecker article(ZRProductCheckerArticle, QStringLiteral("book"));
    FixedChecker price(ZRProductCheckerPrice, QStringLiteral("calendar"));
    registry.registerChecker(&article);
    registry.registerChecker(&price);
    registry.registerChecker(&article);
    QCOMPARE(registry.checkers().size(), 2);
    QVERIFY(registry.isValid(book, ZRProductCheckerArticle));
    QVERIFY(!registry.isValid(book, ZRProductCheckerAll));
    QVERIFY(registry.isValid(book, ZRProductCheckerProductType));
}

void tst_Base::initializerOrder()
{
    QStringList log;
    ZRInitializer initializer;
    RecordingInitializer first(&log, QStringLiteral("first"));
    RecordingInitializer second(&log, QStringLiteral("second"));
    initializer.registerInitializer(&first);
    initializer.registerInitializer(&second);
    initializer.registerInitializer(&first);
    initializer.setupAll(ZRInitializerHeadless);
    initializer.teardownAll();
    QCOMPARE(log, (QStringList { "first setup 1", "second setup 1", "second teardown", "first teardown" }));
}

void tst_Base::libraryRegistersItsInitializerOnLoad()
{
    // The library's static initializer registered with the one process-wide ZRInitializer that this
    // program sees too.
    int found = 0;
    const auto initializers = ZRSingleton<ZRInitializer>::instance()->initializers();
    for (ZRInitializerAbstract *initializer : initializers)
        found += dynamic_cast<ZRProductPropertiesInitializer *>(initializer) != nullptr;
    QCOMPARE(found, 1);
}

void tst_Base::directoryConfigResources()
{
    ZRDirectoryConfig config;
    config.setResourcesDir(QDir(QStringLiteral("/opt/zr/resources")));
    QCOMPARE(
        config.resource(QStringLiteral("products/legacy"), false), QStringLiteral("/opt/zr/resources/products/legacy"));
    QCOMPARE(config.productsDir(false).path(), QStringLiteral("/opt/zr/resources/products"));
}

QTEST_GUILESS_MAIN(tst_Base)
#include "tst_base.moc"
