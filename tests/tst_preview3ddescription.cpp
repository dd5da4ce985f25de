#include "ZRPreview3DDescription.h"
#include "ZRTestSupport.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QTest>
#include <QUrlQuery>

#include "ContextTaggingTranslator.h"

namespace {
ZRPreview3DDescription describe(const QString &preview)
{
    return ZRPreview3DDescription(
        ZRTest::parseElement(QStringLiteral("<product name='mug'>%1</product>").arg(preview)));
}

// The query of @p url as "key=value" entries in their order.
QStringList queryItems(const QUrl &url)
{
    QStringList items;
    const auto pairs = QUrlQuery(url).queryItems(QUrl::FullyDecoded);
    for (const auto &pair : pairs)
        items.append(pair.first + QLatin1Char('=') + pair.second);
    return items;
}

const QString cameras
    = QStringLiteral("<camera><position x='0' y='12.5' z='-40'/><lookAt x='0.1' y='2' z='0'/></camera>"
                     "<cameraBig><position x='1234567' y='3.25' z='-80'/>"
                     "<lookAt x='0' y='1e-7' z='0.333333333'/></cameraBig>");
} // namespace

class tst_Preview3DDescription : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void defaults_data();
    void defaults();
    void address_data();
    void address();
    void titleTranslatedInQObjectContext();
    void textureTargets_data();
    void textureTargets();
    void cupRingAndWindowSize();
};

void tst_Preview3DDescription::defaults_data()
{
    QTest::addColumn<QString>("preview");

    QTest::newRow("no preview3D") << "";
    QTest::newRow("empty preview3D") << "<preview3D/>";
    QTest::newRow("mesh without file") << "<preview3D><mesh/><windowSize/></preview3D>";
    QTest::newRow("preview3D not a child of product") << "<other><preview3D><mesh file='a.obj'/></preview3D></other>";
}

void tst_Preview3DDescription::defaults()
{
    QFETCH(QString, preview);
    const ZRPreview3DDescription d = describe(preview);
    QCOMPARE(d, ZRPreview3DDescription());
    QCOMPARE(d.windowSize(), QSize(-1, -1));
    QVERIFY(d.url(false).isEmpty());
    QVERIFY(d.url(true).isEmpty());
}

void tst_Preview3DDescription::address_data()
{
    QTest::addColumn<QString>("preview");
    QTest::addColumn<bool>("big");
    QTest::addColumn<QStringList>("items");

    const QStringList origin = { "cx=0", "cy=0", "cz=0", "ax=0", "ay=0", "az=0", "title=Produktvorschau" };
    const QString title = QStringLiteral("title=Produktvorschau");
    // clang-format off
    QTest::newRow("file only, big") << "<preview3D><mesh file='mug.obj'/></preview3D>" << true << QStringList { "mesh=mug.obj" } + origin;
    QTest::newRow("both flips, flipY first") << "<preview3D><mesh flipX='true' file='mug.obj' flipY='true'/></preview3D>" << false
                                             << QStringList { "mesh=mug.obj", "flipY=true", "flipX=true" } + origin;
    QTest::newRow("flipX only") << "<preview3D><mesh file='mug.obj' flipX='1' flipY='false'/></preview3D>" << false
                                << QStringList { "mesh=mug.obj", "flipX=true" } + origin;
    QTest::newRow("normal camera") << "<preview3D><mesh file='cups/mug 330ml.obj'/>" + cameras + "</preview3D>" << false
                                   << QStringList { "mesh=cups/mug 330ml.obj", "cx=0", "cy=12.5", "cz=-40", "ax=0.1", "ay=2", "az=0", title };
    QTest::newRow("big camera, six significant digits") << "<preview3D><mesh file='mug.obj'/>" + cameras + "</preview3D>" << true
        << QStringList { "mesh=mug.obj", "cx=1.23457e+06", "cy=3.25", "cz=-80", "ax=0", "ay=1e-07", "az=0.333333", title };
    QTest::newRow("camera without lookAt") << "<preview3D><mesh file='mug.obj'/><camera><position x='5'/></camera></preview3D>" << false
                                           << QStringList { "mesh=mug.obj", "cx=5" } + origin.mid(1);
    // clang-format on
}

void tst_Preview3DDescription::address()
{
    QFETCH(QString, preview);
    QFETCH(bool, big);

    const QUrl url = describe(preview).url(big);
    QVERIFY(url.isValid());
    QCOMPARE(url.scheme(), QStringLiteral("vxs"));
    QCOMPARE(url.host(), QStringLiteral("localhost"));
    QCOMPARE(url.path(), QStringLiteral("/threejs/productpreview/index.html"));
    QTEST(queryItems(url), "items");
}

void tst_Preview3DDescription::titleTranslatedInQObjectContext()
{
    ContextTaggingTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    const QUrl url = describe(QStringLiteral("<preview3D><mesh file='mug.obj'/></preview3D>")).url(false);
    QCoreApplication::removeTranslator(&translator);

    QCOMPARE(QUrlQuery(url).queryItemValue(QStringLiteral("title"), QUrl::FullyDecoded),
        QStringLiteral("[QObject]Produktvorschau"));
}

void tst_Preview3DDescription::textureTargets_data()
{
    QTest::addColumn<QString>("preview");
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QList<QRectF>>("rects");
    QTest::addColumn<QList<int>>("pages");
    // clang-format off
    QTest::newRow("document order") << "<preview3D><textureTarget name='outside' x='0' y='0' width='2100' height='950' page='1'/><mesh file='mug.obj'/>"
                                       "<textureTarget name='inside' x='10.5' y='20' width='300' height='400' page='2'/></preview3D>"
                                    << QStringList { "outside", "inside" } << QList<QRectF> { QRectF(0, 0, 2100, 950), QRectF(10.5, 20, 300, 400) }
                                    << QList<int> { 1, 2 };
    QTest::newRow("page missing or not a number") << "<preview3D><textureTarget name='a' width='10' height='20'/>"
                                                     "<textureTarget name='b' page='two'/><textureTarget page='3'/></preview3D>"
                                                  << QStringList { "a", "b", "" } << QList<QRectF> { QRectF(0, 0, 10, 20), QRectF(), QRectF() }
                                                  << QList<int> { 0, 0, 3 };
    // clang-format on
}

void tst_Preview3DDescription::textureTargets()
{
    QFETCH(QString, preview);
    QFETCH(QStringList, names);
    QFETCH(QList<QRectF>, rects);
    QFETCH(QList<int>, pages);

    const QList<ZRTextureTarget> targets = describe(preview).textureTargets();
    QCOMPARE(targets.size(), names.size());
    for (qsizetype i = 0; i < targets.size(); ++i) {
        QCOMPARE(targets.at(i).name(), names.at(i));
        QCOMPARE(targets.at(i).rect(), rects.at(i));
        QCOMPARE(targets.at(i).rect().isNull(), rects.at(i).isNull());
        QCOMPARE(targets.at(i).page(), pages.at(i));
    }
}

void tst_Preview3DDescription::cupRingAndWindowSize()
{
    const ZRPreview3DDescription d
        = describe(QStringLiteral("<preview3D><mesh file='mug.obj'/><cupRing x='0' y='870' width='2100' height='80'/>"
                                  "<windowSize width='640' height='480'/></preview3D>"));
    QCOMPARE(d.cupRingRect(), QRectF(0, 870, 2100, 80));
    QCOMPARE(d.windowSize(), QSize(640, 480));
    QCOMPARE(describe(QStringLiteral("<preview3D><windowSize width='640'/></preview3D>")).windowSize(), QSize(640, -1));
}

QTEST_GUILESS_MAIN(tst_Preview3DDescription)
#include "tst_preview3ddescription.moc"
