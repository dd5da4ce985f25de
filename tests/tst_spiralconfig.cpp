#include "ZRCSSSkinManager.h"
#include "ZRDirectoryConfig.h"
#include "ZRSpiralConfig.h"
#include "ZRTestSupport.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <climits>

using ZRTest::parseElement;

class tst_ZRSpiralConfig : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void readsGeometry_data();
    void readsGeometry();
    void strips_data();
    void strips();
    void spiralImage();
    void spiralColor_data();
    void spiralColor();
    void cachedLoopPictureSurvivesColorChange();
    void hookImage();
    void hookColorIsRememberedOncePerProcess();
    void compare_data();
    void compare();

private:
    QTemporaryDir m_thumbnails;
};

static const QRgb red = qRgb(255, 0, 0);
static const QRgb blue = qRgb(0, 0, 255);

static bool isLoopPixel(QRgb pixel, QRgb color)
{
    return qAlpha(pixel) == 255 && (pixel & RGB_MASK) == (color & RGB_MASK);
}

void tst_ZRSpiralConfig::initTestCase()
{
    QVERIFY(m_thumbnails.isValid());
    // Loop pictures deliberately smaller than the loops, so that scaling shows.
    QImage loop(6, 12, QImage::Format_ARGB32);
    loop.fill(red);
    QVERIFY(loop.save(m_thumbnails.filePath(QStringLiteral("spiralbinding-one-loop-vertical.png"))));
    loop.fill(blue);
    QVERIFY(loop.save(m_thumbnails.filePath(QStringLiteral("blue-loop.png"))));
    ZRSingleton<ZRDirectoryConfig>::instance()->setGlimmerThumbnailsDirectory(QDir(m_thumbnails.path()));
}

void tst_ZRSpiralConfig::readsGeometry_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<bool>("hasSpiral");
    QTest::addColumn<bool>("hasHook");
    QTest::addColumn<QSize>("horizontal");
    QTest::addColumn<QSize>("loop");
    // clang-format off
    QTest::newRow("null element") << QString() << false << false << QSize(-30, 150) << QSize(54, 150);
    QTest::newRow("count only") << "<spirals count='10'/>" << true << false << QSize(810, 150) << QSize(54, 150);
    QTest::newRow("own loop geometry") << "<spirals count='3' loopWidth='10' loopHeight='20' loopDistance='5'/>" << true << false
                                       << QSize(40, 20) << QSize(10, 20);
    QTest::newRow("hook") << "<spirals count='2' hookWidth='30' hookHeight='12'/>" << true << true << QSize(138, 150) << QSize(54, 150);
    QTest::newRow("hook without height") << "<spirals count='2' hookWidth='30'/>" << true << false << QSize(138, 150) << QSize(54, 150);
    QTest::newRow("negative count") << "<spirals count='-1'/>" << false << false << QSize(-114, 150) << QSize(54, 150);
    // Lengths beyond int are held to its range.
    QTest::newRow("largest count") << "<spirals count='2147483647'/>" << true << false << QSize(INT_MAX, 150) << QSize(54, 150);
    QTest::newRow("smallest count") << "<spirals count='-2147483648'/>" << false << false << QSize(INT_MIN, 150) << QSize(54, 150);
    QTest::newRow("huge distance") << "<spirals count='2' loopDistance='2147483647'/>" << true << false << QSize(INT_MAX, 150) << QSize(54, 150);
    // clang-format on
}

void tst_ZRSpiralConfig::readsGeometry()
{
    QFETCH(QString, xml);
    QFETCH(bool, hasSpiral);
    QFETCH(bool, hasHook);
    QFETCH(QSize, horizontal);
    QFETCH(QSize, loop);

    const ZRSpiralConfig spiral(parseElement(xml));
    QCOMPARE(spiral.hasSpiral(), hasSpiral);
    QCOMPARE(spiral.hasHook(), hasHook);
    QCOMPARE(spiral.spiralSize(Qt::Horizontal), horizontal);
    QCOMPARE(spiral.spiralSize(Qt::Vertical), horizontal.transposed());
    QCOMPARE(spiral.spiralSize(Qt::Orientation(0)), QSize(-1, -1));
    const QImage picture = spiral.bindingLoopImage();
    QCOMPARE(picture.size(), loop);
    QVERIFY(isLoopPixel(picture.pixel(loop.width() / 2, loop.height() / 2), red));
}

void tst_ZRSpiralConfig::strips_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<int>("count");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QList<int>>("skipped");
    // clang-format off
    QTest::newRow("no hook") << "<spirals loopWidth='10' loopHeight='20'/>" << 3 << QSize(50, 20) << QList<int>();
    // 13 loops of 40 are 1000 wide; the hook gap runs from 450 to 550, so only the loop at 480 goes.
    QTest::newRow("hook gap") << "<spirals loopWidth='40' loopHeight='20' hookWidth='100' hookHeight='10'/>" << 13 << QSize(1000, 20) << QList<int> { 6 };
    // 7 loops of 40 are 520 wide; the gap from 160 to 360 takes the loops at 160, 240 and 320.
    QTest::newRow("wide hook") << "<spirals loopWidth='40' loopHeight='20' hookWidth='200' hookHeight='10'/>" << 7 << QSize(520, 20) << QList<int> { 2, 3, 4 };
    QTest::newRow("hook width only draws all") << "<spirals loopWidth='40' loopHeight='20' hookWidth='200'/>" << 7 << QSize(520, 20) << QList<int>();
    QTest::newRow("one loop") << "<spirals loopWidth='10' loopHeight='20'/>" << 1 << QSize(10, 20) << QList<int>();
    QTest::newRow("no loops") << "<spirals loopWidth='10' loopHeight='20'/>" << 0 << QSize() << QList<int>();
    QTest::newRow("missing picture") << "<spirals variant='missing.png'/>" << 3 << QSize() << QList<int>();
    // clang-format on
}

void tst_ZRSpiralConfig::strips()
{
    QFETCH(QString, xml);
    QFETCH(int, count);
    QFETCH(QSize, size);
    QFETCH(QList<int>, skipped);

    const ZRSpiralConfig spiral(parseElement(xml));
    const int loopWidth = spiral.bindingLoopImage().width();
    for (const bool vertical : { false, true }) {
        const QImage strip
            = vertical ? spiral.spiralBindingLoopVertical(count) : spiral.spiralBindingLoopHorizontal(count);
        QCOMPARE(strip.isNull(), !size.isValid());
        if (strip.isNull())
            continue;
        QCOMPARE(strip.size(), vertical ? size.transposed() : size);
        QCOMPARE(strip.format(), QImage::Format_ARGB32_Premultiplied);
        // Turned clockwise: the first loop of the horizontal strip is at the top of the vertical one.
        const auto along
            = [&](int x) { return vertical ? strip.pixel(size.height() / 2, x) : strip.pixel(x, size.height() / 2); };
        for (int i = 0; i < count; ++i) {
            const int x = 2 * loopWidth * i;
            const QRgb loopCentre = along(x + loopWidth / 2);
            if (skipped.contains(i))
                QVERIFY2(qAlpha(loopCentre) == 0, qPrintable(QStringLiteral("loop %1 drawn").arg(i)));
            else
                QVERIFY2(isLoopPixel(loopCentre, red), qPrintable(QStringLiteral("loop %1 missing").arg(i)));
            if (i + 1 < count)
                QCOMPARE(qAlpha(along(x + loopWidth + loopWidth / 2)), 0);
        }
    }
}

void tst_ZRSpiralConfig::spiralImage()
{
    const ZRSpiralConfig spiral(parseElement(QStringLiteral("<spirals count='4' loopWidth='10' loopHeight='20'/>")));
    QCOMPARE(spiral.spiralImage(Qt::Horizontal).size(), QSize(70, 20));
    QCOMPARE(spiral.spiralImage(Qt::Vertical).size(), QSize(20, 70));
    QVERIFY(spiral.spiralImage(Qt::Orientation(0)).isNull());
}

void tst_ZRSpiralConfig::spiralColor_data()
{
    QTest::addColumn<QString>("color");
    QTest::addColumn<QRgb>("loopColor");
    QTest::newRow("known variant") << "blue" << blue;
    QTest::newRow("later entry replaces earlier") << "twice" << blue;
    QTest::newRow("unknown variant") << "green" << red;
    QTest::newRow("entry without path") << "nopath" << red;
    QTest::newRow("empty variant") << QString() << red;
}

void tst_ZRSpiralConfig::spiralColor()
{
    QFETCH(QString, color);
    QFETCH(QRgb, loopColor);

    ZRSpiralConfig spiral(parseElement(QStringLiteral("<spirals loopWidth='10' loopHeight='20'><loopImages>"
                                                      "<loopImage variant='blue' imagePath='blue-loop.png'/>"
                                                      "<loopImage variant='twice' imagePath='missing.png'/>"
                                                      "<loopImage variant='twice' imagePath='blue-loop.png'/>"
                                                      "<loopImage variant='nopath' imagePath=''/>"
                                                      "<loopImage variant='' imagePath='blue-loop.png'/>"
                                                      "</loopImages></spirals>")));
    spiral.setSpiralColor(color);
    QVERIFY(isLoopPixel(spiral.bindingLoopImage().pixel(5, 10), loopColor));
}

void tst_ZRSpiralConfig::cachedLoopPictureSurvivesColorChange()
{
    ZRSpiralConfig spiral(parseElement(QStringLiteral("<spirals loopWidth='10' loopHeight='20'><loopImages>"
                                                      "<loopImage variant='blue' imagePath='blue-loop.png'/>"
                                                      "</loopImages></spirals>")));
    ZRSpiralConfig uncached = spiral;
    QVERIFY(isLoopPixel(spiral.bindingLoopImage().pixel(5, 10), red));
    spiral.setSpiralColor(QStringLiteral("blue"));
    QVERIFY(isLoopPixel(spiral.bindingLoopImage().pixel(5, 10), red));
    uncached.setSpiralColor(QStringLiteral("blue"));
    QVERIFY(isLoopPixel(uncached.bindingLoopImage().pixel(5, 10), blue));
}

void tst_ZRSpiralConfig::hookImage()
{
    const QColor skin(10, 200, 30);
    ZRSingleton<ZRCSSSkinManager>::instance()->setBackgroundColor(skin);

    const ZRSpiralConfig spiral(parseElement(QStringLiteral("<spirals count='5' hookWidth='20' hookHeight='8'/>")));
    const QImage hook = spiral.spiralHookImage();
    QCOMPARE(hook.size(), QSize(20, 16));
    QCOMPARE(hook.format(), QImage::Format_ARGB32_Premultiplied);
    QCOMPARE(hook.pixel(9, 7), skin.rgb());
    // The ellipse ends two pixels before the right and bottom edges; the corners stay clear.
    for (const QPoint &clear : { QPoint(0, 0), QPoint(19, 7), QPoint(9, 15), QPoint(19, 15), QPoint(0, 15) })
        QCOMPARE(qAlpha(hook.pixel(clear)), 0);
    QCOMPARE(spiral.spiralHookImage().cacheKey(), hook.cacheKey());

    QVERIFY(ZRSpiralConfig(parseElement(QStringLiteral("<spirals count='5'/>"))).spiralHookImage().isNull());
}

void tst_ZRSpiralConfig::hookColorIsRememberedOncePerProcess()
{
    // The last skin colour is shared by all spirals: after one spiral has redrawn its hook for a
    // new colour, another one with a hook cached in the old colour keeps it.
    ZRSingleton<ZRCSSSkinManager>::instance()->setBackgroundColor(Qt::red);
    const ZRSpiralConfig first(parseElement(QStringLiteral("<spirals hookWidth='20' hookHeight='8'/>")));
    const ZRSpiralConfig second = first;
    const QImage before = first.spiralHookImage();
    QCOMPARE(before.pixel(9, 7), QColor(Qt::red).rgb());
    QCOMPARE(second.spiralHookImage().pixel(9, 7), QColor(Qt::red).rgb());

    ZRSingleton<ZRCSSSkinManager>::instance()->setBackgroundColor(Qt::blue);
    QCOMPARE(first.spiralHookImage().pixel(9, 7), QColor(Qt::blue).rgb());
    QCOMPARE(before.pixel(9, 7), QColor(Qt::red).rgb());
    QCOMPARE(second.spiralHookImage().pixel(9, 7), QColor(Qt::red).rgb());
}

void tst_ZRSpiralConfig::compare_data()
{
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");
    QTest::addColumn<bool>("equal");
    QTest::addColumn<bool>("aLessB");
    QTest::addColumn<bool>("bLessA");
    // clang-format off
    QTest::newRow("same") << "<spirals count='3' hookWidth='5' hookHeight='4'/>" << "<spirals count='3' hookWidth='5' hookHeight='4'/>" << true << false << false;
    // A hook narrower than high is less than an equal one, and so less than itself.
    QTest::newRow("equal and less") << "<spirals count='3' hookWidth='4' hookHeight='5'/>" << "<spirals count='3' hookWidth='4' hookHeight='5'/>" << true << true << true;
    QTest::newRow("loops and pictures ignored") << "<spirals count='3' loopWidth='1' loopHeight='2' loopDistance='3' variant='x.png'><loopImages>"
                                                   "<loopImage variant='blue' imagePath='blue-loop.png'/></loopImages></spirals>"
                                                << "<spirals count='3'/>" << true << false << false;
    QTest::newRow("fewer loops") << "<spirals count='2'/>" << "<spirals count='3'/>" << false << true << false;
    // a's hook width 5 is below b's hook height 10, although it is above b's hook width 3.
    QTest::newRow("width against other height") << "<spirals count='3' hookWidth='5' hookHeight='20'/>" << "<spirals count='3' hookWidth='3' hookHeight='10'/>"
                                                 << false << true << true;
    QTest::newRow("lower hook") << "<spirals count='3' hookWidth='9' hookHeight='5'/>" << "<spirals count='3' hookWidth='9' hookHeight='7'/>" << false << true << false;
    QTest::newRow("only hook width differs") << "<spirals count='3' hookWidth='9' hookHeight='2'/>" << "<spirals count='3' hookWidth='8' hookHeight='2'/>"
                                             << false << false << false;
    // clang-format on
}

void tst_ZRSpiralConfig::compare()
{
    QFETCH(QString, a);
    QFETCH(QString, b);
    QFETCH(bool, equal);

    const ZRSpiralConfig first(parseElement(a));
    const ZRSpiralConfig second(parseElement(b));
    QCOMPARE(first == second, equal);
    QCOMPARE(first != second, !equal);
    QTEST(first < second, "aLessB");
    QTEST(second < first, "bLessA");
}

QTEST_MAIN(tst_ZRSpiralConfig)
#include "tst_spiralconfig.moc"
