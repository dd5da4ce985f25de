#include "ZRSurroundingDescriptionList.h"
#include "ZRSurroundingKey.h"
#include "ZRTestSupport.h"

#include <QRegularExpression>
#include <QTest>

namespace {
using ZRTest::parseElement;

const ZRProductType product(QStringLiteral("wall_calendar_a3"));

ZRSurroundingDescription surrounding(const QString &attributes, const QString &children = QString())
{
    return ZRSurroundingDescription(
        product, parseElement(QStringLiteral("<surrounding %1>%2</surrounding>").arg(attributes, children)));
}

ZRSurroundingKey page(ZRPageTypeEnum type, ZRPageAlignmentEnum alignment, int index, const QString &variant = QString())
{
    return ZRSurroundingKey(ZRPageContext(type, alignment), index, ZRArticleVariants(variant));
}
} // namespace

class tst_Surroundings : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void attributeLessElement();
    void readsEveryAttribute();
    void frameAppliesToEveryPage_data();
    void frameAppliesToEveryPage();
    void parseMask_data();
    void parseMask();
    void spineFold_data();
    void spineFold();
    void equality_data();
    void equality();
    void isOkayFor_data();
    void isOkayFor();
    void findDescription_data();
    void findDescription();
    void readsEverySurroundingsElement();
};

void tst_Surroundings::attributeLessElement()
{
    const ZRSurroundingDescription d = surrounding(QString());
    QVERIFY(d.isValid());
    QCOMPARE(d.surroundingType(), ZRSurroundingType(ZRSurroundingTypeBook));
    QCOMPARE(d.pageTypes(), ZRPageType(ZRPageTypeAll));
    QCOMPARE(d.alignments(),
        ZRPageAlignment(ZRPageAlignmentEnum(ZRPageAlignmentLeft | ZRPageAlignmentRight | ZRPageAlignmentCenter
            | ZRPageAlignmentTop | ZRPageAlignmentBottom | ZRPageAlignmentMiddle)));
    QCOMPARE(d.pageNr(), -1);
    QVERIFY(d.paintOnTop());
    QCOMPARE(d.tileSize(), QSize(-1, -1));

    QVERIFY(!ZRSurroundingDescription().isValid());
    QVERIFY(!surrounding(R"(type="no such type")").isValid());
}

void tst_Surroundings::readsEveryAttribute()
{
    const QString hole = QStringLiteral(R"(<hole diameter="6" distanceY="80"/>)");
    const QString spirals = QStringLiteral(R"(<spirals count="21" hookWidth="40" hookHeight="12"/>)");
    const ZRSurroundingDescription d
        = surrounding(R"(type="calendar" pageType="grid,content" alignment="top" pageNr="4" paintOnTop="false"
                         canBeHiddenByUser="true" image="grid.png" imageSpotColor="grid-gold.png" spotColor="gold"
                         spotColorMask="0 0 9 9" x="10" y="20" width="300" height="400" variant="color=white"
                         tileWidth="50" tileHeight="60" hasbindingshade="true" hideGrafikInPreview="true"
                         hasspinefold="true" spinefoldwidth="5")",
            hole + spirals);
    QCOMPARE(d.surroundingType(), ZRSurroundingType(ZRSurroundingTypeCalendar));
    QCOMPARE(d.pageTypes(), ZRPageType(ZRPageTypeGridPage));
    QCOMPARE(d.alignments(), ZRPageAlignment(ZRPageAlignmentTop));
    QCOMPARE(d.pageNr(), 4);
    QVERIFY(!d.paintOnTop());
    QVERIFY(d.canBeHiddenByUser());
    QVERIFY(d.hasBindingShade() && d.hideGrafikInPreview() && d.hasSpineFold());
    QCOMPARE(d.imageResource(), "grid.png");
    QCOMPARE(d.imageResourceSpotColor(), "grid-gold.png");
    QCOMPARE(d.spotColor(), ZRSpotColor(ZRSpotColorGold));
    QCOMPARE(d.spotColorMask(), QList<QRect>({ QRect(0, 0, 10, 10) }));
    QCOMPARE(d.editableArea(), QRect(10, 20, 300, 400));
    QCOMPARE(d.variant(), ZRArticleVariants(QStringLiteral("color=white")));
    QCOMPARE(d.tileSize(), QSize(50, 60));
    QCOMPARE(d.calendarHoleConfig(), ZRCalendarHoleConfig(parseElement(hole)));
    QCOMPARE(d.spiralConfig(), ZRSpiralConfig(parseElement(spirals)));
}

void tst_Surroundings::frameAppliesToEveryPage_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<int>("pageTypes");
    QTest::addColumn<int>("alignments");
    QTest::addColumn<int>("pageNr");

    QTest::newRow("FRAME") << "FRAME" << int(ZRPageTypeAll) << int(ZRPageAlignmentAll) << -1;
    QTest::newRow("frame") << "frame" << int(ZRPageTypeAll) << int(ZRPageAlignmentAll) << -1;
    QTest::newRow("BORDER") << "BORDER" << int(ZRPageTypeContent) << int(ZRPageAlignmentLeft) << 3;
    QTest::newRow("FRAME_COMBINED") << "FRAME_COMBINED" << int(ZRPageTypeContent) << int(ZRPageAlignmentLeft) << 3;
}

void tst_Surroundings::frameAppliesToEveryPage()
{
    QFETCH(QString, type);
    QFETCH(int, pageTypes);
    QFETCH(int, alignments);
    QFETCH(int, pageNr);

    const ZRSurroundingDescription d
        = surrounding(QStringLiteral(R"(type="%1" pageType="content" alignment="left" pageNr="3")").arg(type));
    QCOMPARE(int(d.pageTypes().value()), pageTypes);
    QCOMPARE(int(d.alignments().value()), alignments);
    QCOMPARE(d.pageNr(), pageNr);
}

void tst_Surroundings::parseMask_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QList<QRect>>("expected");

    const QRect first(QPoint(1, 2), QPoint(30, 40));
    const QRect second(QPoint(5, 6), QPoint(7, 8));
    QTest::newRow("empty") << "" << QList<QRect>();
    QTest::newRow("corner coordinates") << "1 2 30 40" << QList<QRect>({ first });
    QTest::newRow("stops at three fields") << "1 2 30 40;5 6 7;5 6 7 8" << QList<QRect>({ first });
    QTest::newRow("bad first part") << "1 2 3;1 2 30 40" << QList<QRect>();
    QTest::newRow("empty part skipped") << "1 2 30 40;;5 6 7 8" << QList<QRect>({ first, second });
    QTest::newRow("extra blanks and trailing separator") << " 1  2 30 40 ; 5 6 7 8;" << QList<QRect>({ first, second });
    QTest::newRow("text order") << "5 6 7 8;1 2 30 40" << QList<QRect>({ second, first });
    QTest::newRow("no number counts as 0") << "x 2 30 40" << QList<QRect>({ QRect(QPoint(0, 2), QPoint(30, 40)) });
    QTest::newRow("too large counts as 0")
        << "1 2 30 99999999999" << QList<QRect>({ QRect(QPoint(1, 2), QPoint(30, 0)) });
    QTest::newRow("blank only part stops") << "1 2 30 40; ;5 6 7 8" << QList<QRect>({ first });
}

void tst_Surroundings::parseMask()
{
    QFETCH(QString, text);
    QFETCH(QList<QRect>, expected);
    QCOMPARE(ZRSurroundingDescription::parseMask(text), expected);
    QCOMPARE(surrounding(QStringLiteral(R"(spotColorMask="%1")").arg(text)).spotColorMask(), expected);
}

void tst_Surroundings::spineFold_data()
{
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<bool>("hasSpineFold");
    QTest::addColumn<int>("withMargins");

    QTest::newRow("flag without width") << R"(hasspinefold="true")" << false << 0;
    QTest::newRow("width 10") << R"(hasspinefold="true" spinefoldwidth="10")" << true << 12;
    QTest::newRow("width 7 truncated") << R"(hasspinefold="true" spinefoldwidth="7")" << true << 8;
    QTest::newRow("width without flag") << R"(spinefoldwidth="10")" << false << 12;
    QTest::newRow("malformed width") << R"(hasspinefold="true" spinefoldwidth="wide")" << false << 0;
}

void tst_Surroundings::spineFold()
{
    QFETCH(QString, attributes);
    QFETCH(bool, hasSpineFold);

    const ZRSurroundingDescription d = surrounding(attributes);
    QCOMPARE(d.hasSpineFold(), hasSpineFold);
    QTEST(d.spineFoldWithSafetyMargins(), "withMargins");
}

void tst_Surroundings::equality_data()
{
    QTest::addColumn<QString>("extra");
    QTest::addColumn<QString>("children");
    QTest::addColumn<bool>("equal");

    QTest::newRow("same") << QString() << QString() << true;
    QTest::newRow("ignored compositionMode") << "compositionMode='multiply'" << QString() << true;
    // Attribute names are case-sensitive, with the German "Grafik" that description files rely on.
    for (const char *ignored : { "PageNr='4'", "hasBindingShade='true'", "hideGraphicInPreview='true'",
             "hidegrafikinpreview='true'", "hasSpineFold='true'", "spineFoldWidth='5'" })
        QTest::newRow(ignored) << ignored << QString() << true;
    // Every field read takes part in the comparison.
    for (const char *changed : { "pageNr='4'", "paintOnTop='false'", "canBeHiddenByUser='true'",
             "hideGrafikInPreview='true'", "hasbindingshade='true'", "hasspinefold='true'", "image='a.png'",
             "imageSpotColor='a.png'", "spotColor='silver'", "spotColorMask='0 0 1 1'", "x='1'", "spinefoldwidth='3'",
             "variant='color=red'", "tileWidth='3'", "tileHeight='3'" })
        QTest::newRow(changed) << changed << QString() << false;
    QTest::newRow("hole") << QString() << "<hole diameter='6' distanceY='80'/>" << false;
    QTest::newRow("spirals") << QString() << "<spirals count='3'/>" << false;
}

void tst_Surroundings::equality()
{
    QFETCH(QString, extra);
    QFETCH(QString, children);

    const QString base = QStringLiteral(R"(type="border" pageType="content" )");
    QTEST(surrounding(base + extra, children) == surrounding(base), "equal");
}

void tst_Surroundings::isOkayFor_data()
{
    QTest::addColumn<ZRSurroundingKey>("own");
    QTest::addColumn<ZRSurroundingKey>("queried");
    QTest::addColumn<bool>("expected");

    const auto contentAny = [](const char *variant) {
        return ZRSurroundingKey(ZRPageContext(ZRPageTypeEnum(ZRPageTypeContent | ZRPageTypePhoto),
                                    ZRPageAlignmentEnum(ZRPageAlignmentLeft | ZRPageAlignmentRight)),
            -1, ZRArticleVariants(QString::fromUtf8(variant)));
    };
    const ZRPageTypeEnum cover = ZRPageTypeCoverFront;
    const ZRPageTypeEnum content = ZRPageTypeContent;
    const ZRPageAlignmentEnum left = ZRPageAlignmentLeft;
    const ZRPageAlignmentEnum right = ZRPageAlignmentRight;
    // clang-format off
    QTest::newRow("other context, both any page") << page(cover, left, -1) << page(content, right, -1) << true;
    QTest::newRow("other context, same page") << page(cover, left, 5) << page(content, right, 5) << true;
    QTest::newRow("other context, any page") << page(cover, left, -1) << page(content, right, 5) << false;
    QTest::newRow("bound page ignores variant") << page(content, left, 5, "color=red") << page(content, left, 5) << true;
    QTest::newRow("bound page, other page") << page(content, left, 5) << page(content, left, 6) << false;
    QTest::newRow("any page, same variant") << contentAny("color=red") << page(ZRPageTypePhoto, right, 2, "color=red") << true;
    QTest::newRow("any page, other variant") << contentAny("color=red") << page(ZRPageTypePhoto, right, 2) << false;
    QTest::newRow("any page, other variant, any page asked for") << contentAny("") << page(content, left, -1, "color=red") << true;
    // clang-format on
}

void tst_Surroundings::isOkayFor()
{
    QFETCH(ZRSurroundingKey, own);
    QFETCH(ZRSurroundingKey, queried);
    QTEST(own.isOkayFor(queried), "expected");
}

void tst_Surroundings::findDescription_data()
{
    QTest::addColumn<ZRSurroundingKey>("key");
    QTest::addColumn<QString>("expected");

    const ZRPageTypeEnum content = ZRPageTypeContent;
    const ZRPageAlignmentEnum left = ZRPageAlignmentLeft;
    // clang-format off
    QTest::newRow("any page, same variant") << page(content, left, 2) << "plain";
    QTest::newRow("bound page number") << page(content, left, 5) << "page5";
    QTest::newRow("bound page number, other context") << page(ZRPageTypeCoverBack, ZRPageAlignmentRight, 5) << "page5";
    QTest::newRow("bound page number before variant") << page(content, left, 5, "color=red") << "page5";
    QTest::newRow("variant") << page(content, left, 2, "color=red") << "red";
    QTest::newRow("unknown variant falls back") << page(content, left, 2, "color=blue") << "plain";
    QTest::newRow("cover, unknown variant falls back") << page(ZRPageTypeCoverFront, left, 0, "color=blue") << "front";
    QTest::newRow("nothing fits") << page(ZRPageTypeCoverBack, ZRPageAlignmentRight, 0) << "";
    QTest::newRow("nothing fits with variant") << page(ZRPageTypeCoverBack, ZRPageAlignmentRight, 0, "color=red") << "";
    // A description for any page fits a query for any page whatever the contexts.
    QTest::newRow("any page asked for") << page(ZRPageTypeCoverBack, ZRPageAlignmentRight, -1) << "front";
    // clang-format on
}

void tst_Surroundings::findDescription()
{
    QFETCH(ZRSurroundingKey, key);
    QFETCH(QString, expected);

    const ZRSurroundingDescriptionList list(product, parseElement(QStringLiteral(R"(<product><surroundings>
        <surrounding pageType="cover_front" alignment="left" image="front"/>
        <surrounding pageType="content" pageNr="5" image="page5"/>
        <surrounding pageType="content" variant="color=red" image="red"/>
        <surrounding pageType="content" image="plain"/>
        </surroundings></product>)")));
    QCOMPARE(list.size(), 4);
    const ZRSurroundingDescription found = list.findDescription(key);
    QCOMPARE(found.imageResource(), expected);
    QCOMPARE(found.isValid(), !expected.isEmpty());
}

void tst_Surroundings::readsEverySurroundingsElement()
{
    const ZRSurroundingDescriptionList list(product, parseElement(QStringLiteral(R"(<product>
        <surroundings><surrounding image="a"/><frame image="not read"/><surrounding image="b"/></surroundings>
        <surrounding image="not read either"/>
        <surroundings><surrounding image="c" hasbindingshade="true"/></surroundings>
        </product>)")));
    QStringList images;
    for (const ZRSurroundingDescription &d : list)
        images.append(d.imageResource());
    QCOMPARE(images, QStringList({ "a", "b", "c" }));
    QVERIFY(list.hasSurroundingWithBindingShade());
    QVERIFY(!ZRSurroundingDescriptionList(
        product, parseElement(QStringLiteral("<product><surroundings><surrounding/></surroundings></product>")))
                 .hasSurroundingWithBindingShade());
    QVERIFY(ZRSurroundingDescriptionList().findDescription(ZRSurroundingKey()) == ZRSurroundingDescription());
}

QTEST_GUILESS_MAIN(tst_Surroundings)
#include "tst_surroundings.moc"
