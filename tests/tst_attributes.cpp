#include "ZRFotoBookShape.h"
#include "ZRImageFXs.h"
#include "ZRJigType.h"
#include "ZRJigTypeList.h"
#include "ZRPageNamingStyle.h"
#include "ZRProductAlignmentStyle.h"
#include "ZRSurroundingType.h"
#include "ZRTestSupport.h"

#include <QDomDocument>
#include <QRegularExpression>
#include <QTest>

class tst_Attributes : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void imageEffects_data();
    void imageEffects();
    void jigTypes_data();
    void jigTypes();
    void jigDownloadTypes_data();
    void jigDownloadTypes();
    void jigTypeLists();
    void pageNamingStyle_data();
    void pageNamingStyle();
    void pageNamingStyleXmlRoundTrip_data();
    void pageNamingStyleXmlRoundTrip();
    void alignmentStyleSinglePages_data();
    void alignmentStyleSinglePages();
    void alignmentStyleExpandToKeyword();
    void surroundingTypes();
    void shapeFromArticleProperties_data();
    void shapeFromArticleProperties();
    void shapeTexts_data();
    void shapeTexts();
};

void tst_Attributes::imageEffects_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("value");
    QTest::addColumn<bool>("gray");
    QTest::newRow("gray with alpha") << "Gray, PRESERVE_ALPHA_CHANNEL" << 5 << true;
    QTest::newRow("grayscale") << "grayscale" << 1 << true;
    QTest::newRow("alpha only, lower case") << "preserve_alpha_channel" << 4 << false;
}

void tst_Attributes::imageEffects()
{
    QFETCH(QString, text);
    QFETCH(int, value);
    const ZRImageFXs effects(text);
    QCOMPARE(int(effects.value()), value);
    QTEST(effects.isGray(), "gray");
}

void tst_Attributes::jigTypes_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("display");
    // clang-format off
    QTest::newRow("passepartout is the mask") << "passepartout" << 16 << "Maske";
    QTest::newRow("frame_passepartout") << "frame_passepartout" << 256 << "Passepartout";
    QTest::newRow("content is design") << "contents" << 4 << "Design";
    QTest::newRow("background synonym") << "background_refinement" << 1 << "Hintergrund";
    QTest::newRow("variant template has no name") << "variant_template" << 8192 << QString();
    QTest::newRow("combination has no name") << "frame,frame_glas" << 640 << QString();
    QTest::newRow("unknown") << "sticker" << 0 << QString();
    // clang-format on
}

void tst_Attributes::jigTypes()
{
    QFETCH(QString, key);
    QFETCH(int, value);
    const ZRJigType jig(key);
    QCOMPARE(int(jig.value()), value);
    QTEST(jig.describe(), "display");
}

void tst_Attributes::jigDownloadTypes_data()
{
    QTest::addColumn<int>("jig");
    QTest::addColumn<int>("dlp");
    QTest::addColumn<bool>("downloadable");
    QTest::newRow("clipart") << 2 << 8 << true;
    QTest::newRow("styles and storybook") << 6144 << 66 << false;
    QTest::newRow("frame has none") << 128 << 0 << false;
    QTest::newRow("layout") << 8 << 32 << true;
    QTest::newRow("keyless 16384") << 16384 << 1024 << false;
    QTest::newRow("unknown jig") << 0 << 0 << false;
}

void tst_Attributes::jigDownloadTypes()
{
    QFETCH(int, jig);
    QFETCH(int, dlp);
    const ZRJigType type { ZRJigTypeEnum(jig) };
    QCOMPARE(int(type.dlpType().value()), dlp);
    QTEST(type.isDownloadable(), "downloadable");
    if (dlp != 0)
        QCOMPARE(ZRJigType::createFromDlpType(ZRDlpType(ZRDlpTypeEnum(dlp))), type);
}

void tst_Attributes::jigTypeLists()
{
    QCOMPARE(ZRTest::values(ZRJigTypeList::allElementTypes()), (QList<int> { 0, 1, 2, 4, 8, 16, 2048 }));
    QCOMPARE(ZRTest::values(ZRJigTypeList::allDownloadableElementTypes()), (QList<int> { 1, 2, 4, 16, 2048, 8 }));
    QCOMPARE(ZRJigType::createFromDlpType(ZRDlpType(ZRDlpTypeEnum(512))).value(), ZRJigTypeUnknown);
}

void tst_Attributes::pageNamingStyle_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<qint64>("value");
    QTest::addColumn<QString>("csv");
    // clang-format off
    QTest::newRow("none is bit 21") << "none" << qint64(2097152) << "none";
    QTest::newRow("unknown key") << "scrapbook" << qint64(0) << "UNKOWN";
    QTest::newRow("pillow with dash") << "Premium-Pillow" << qint64(64) << "premium-pillow";
    QTest::newRow("slipcase") << "slipcase" << qint64(2147483648) << "UNKOWN";
    QTest::newRow("two styles") << "agenda,book" << qint64(32769) << "book, agenda";
    // clang-format on
}

void tst_Attributes::pageNamingStyle()
{
    QFETCH(QString, text);
    QFETCH(qint64, value);
    const ZRPageNamingStyle style(text);
    QCOMPARE(qint64(quint32(style.value())), value);
    QTEST(style.encodeCSV(), "csv");
}

void tst_Attributes::pageNamingStyleXmlRoundTrip_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("calendar") << "calendar";
    QTest::newRow("slipcase survives as a negative number") << "slipcase,book";
    QTest::newRow("zero") << QString();
}

void tst_Attributes::pageNamingStyleXmlRoundTrip()
{
    QFETCH(QString, text);
    QDomDocument document;
    QDomElement element = document.createElement(QStringLiteral("product"));
    const ZRPageNamingStyle style(text);
    style.toXml(element);
    QVERIFY(element.hasAttribute(ZRPageNamingStyle::defaultAttributeName()));
    QCOMPARE(ZRPageNamingStyle::fromXml(element), style);
    QCOMPARE(ZRPageNamingStyle::fromXml(document.createElement(QStringLiteral("empty"))).value(), ZRPageNamingUnknown);
}

void tst_Attributes::alignmentStyleSinglePages_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<bool>("single");
    QTest::newRow("card") << 1 << true;
    QTest::newRow("vario card") << 2 << false;
    QTest::newRow("collegeblock") << 4 << true;
    QTest::newRow("advent calendar") << 8 << true;
    QTest::newRow("card and collegeblock") << 5 << false;
}

void tst_Attributes::alignmentStyleSinglePages()
{
    QFETCH(int, value);
    QTEST(ZRProductAlignmentStyle(ZRProductAlignmentStyleEnum(value)).hasOnlySinglePages(), "single");
}

void tst_Attributes::alignmentStyleExpandToKeyword()
{
    ZRProductAlignmentStyle style(QStringLiteral("card"));
    style.expandToKeyword(QStringLiteral(" COLLEGEBLOCK "));
    QCOMPARE(int(style.value()), 5);
    style.expandToKeyword(QStringLiteral("nonsense"));
    QCOMPARE(int(style.value()), 5);
}

void tst_Attributes::surroundingTypes()
{
    QCOMPARE(int(ZRSurroundingType(QStringLiteral("frame_combined")).value()), 8192);
    QCOMPARE(int(ZRSurroundingType(QStringLiteral("Calendar_Fineline")).value()), 131072);
    QCOMPARE(ZRSurroundingType(ZRSurroundingTypePhotoPaperBook).encode(), QStringLiteral("PHOTOPAPERBOOK"));
    QCOMPARE(ZRSurroundingType(ZRSurroundingTypeNone).encode(), QString());
    QVERIFY(!ZRSurroundingType(QStringLiteral("none")).isValid());
}

void tst_Attributes::shapeFromArticleProperties_data()
{
    QTest::addColumn<int>("magnitude");
    QTest::addColumn<int>("orientation");
    QTest::addColumn<int>("shape");
    const int portrait = ZROrientationPortrait, landscape = ZROrientationLandscape, square = ZROrientationQuadratic;
    QTest::newRow("compact square") << 8 << square << 8;
    QTest::newRow("compact square needs square") << 8 << landscape << 0;
    QTest::newRow("compact landscape") << 16 << landscape << 4;
    QTest::newRow("square") << 64 << square << 64;
    QTest::newRow("large landscape") << 128 << landscape << 32;
    QTest::newRow("large portrait") << 128 << portrait << 16;
    QTest::newRow("large square fits nothing") << 128 << square << 0;
    QTest::newRow("xxl landscape") << 512 << landscape << 512;
    QTest::newRow("xxl portrait") << 512 << portrait << 256;
    QTest::newRow("other size class") << 32 << portrait << 0;
}

void tst_Attributes::shapeFromArticleProperties()
{
    QFETCH(int, magnitude);
    QFETCH(int, orientation);
    const ZRFotoBookShape result = ZRFotoBookShape::createFromArticleProperties(
        ZRSpaceMagnitude(ZRSpaceMagnitudeEnum(magnitude)), ZROrientation(ZROrientationEnum(orientation)));
    QTEST(int(result.value()), "shape");
}

void tst_Attributes::shapeTexts_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("size");
    QTest::addColumn<QString>("name");
    // clang-format off
    QTest::newRow("xxl landscape in capitals") << "XXL-LANDSCAPE" << "(ca. 38 x 29 cm)" << "XXL Panorama";
    QTest::newRow("tiny is shown as kids") << "tiny" << "(ca. 14 x 14 cm)" << "Kids";
    QTest::newRow("a4 landscape") << "a4-landscape" << "(ca. 28 x 21 cm)" << "Groß Panorama";
    QTest::newRow("two flags") << "mini,xl" << QString() << QString();
    QTest::newRow("unknown") << "UNKONWN" << QString() << QString();
    // clang-format on
}

void tst_Attributes::shapeTexts()
{
    QFETCH(QString, key);
    QFETCH(QString, size);
    QFETCH(QString, name);
    const ZRFotoBookShape shape(key);
    QCOMPARE(shape.size(), size);
    QCOMPARE(shape.sizeDescription(), name);
    QCOMPARE(shape.completeDescription(), QStringLiteral("ZERA FOTOBUCH ") + name + QLatin1Char(' ') + size);
}

QTEST_GUILESS_MAIN(tst_Attributes)
#include "tst_attributes.moc"
