#include "ZRDefaultTemplateKey.h"
#include "ZRPaperAndBinding.h"
#include "ZRProductCoordinates.h"
#include "ZRProductTypeDescription.h"
#include "ZRTestSupport.h"

#include <QRegularExpression>
#include <QTest>

#include <climits>

namespace {
ZRProductTypeDescription describe(const QString &productXml)
{
    return ZRProductTypeDescription(ZRTest::parseElement(productXml));
}

ZRProductTypeDescription withPages(const QString &pages, const QString &attributes = QString())
{
    return describe(QStringLiteral("<product %1><pages>%2</pages></product>").arg(attributes, pages));
}
} // namespace

class tst_ProductTypeDescription : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void defaultsOfAnEmptyProductElement();
    void articleClassRules_data();
    void articleClassRules();
    void imageEffectsDecideBorderAndShadow_data();
    void imageEffectsDecideBorderAndShadow();
    void spine_data();
    void spine();
    void spotColors_data();
    void spotColors();
    void safetyMargins_data();
    void safetyMargins();
    void pageTypes_data();
    void pageTypes();
    void illegalPageTypeWarns();
    void pageAlignment_data();
    void pageAlignment();
    void productionNumbering_data();
    void productionNumbering();
    void contentAllowedOnPage_data();
    void contentAllowedOnPage();
    void subRecordsAreReadAndForwarded();
    void coordinates_data();
    void coordinates();
    void paperAndBinding();
};

void tst_ProductTypeDescription::defaultsOfAnEmptyProductElement()
{
    // The element defaults differ from those of the default constructor (false, 0, 0, 0, 0, 0).
    const ZRProductTypeDescription d = describe(QStringLiteral("<product/>"));
    QVERIFY(!d.isValid());
    QVERIFY(d.horizontalPages());
    QCOMPARE(d.tiltAngle(), 270);
    QCOMPARE(d.foldSafetyMargin(), -1);
    QCOMPARE(d.pageNumberFontSize(), 24);
    QCOMPARE(d.pageNumberHorizontalIndent().value(), 50.0);
    QCOMPARE(d.pageNumberVerticalIndent().value(), 50.0);
    QCOMPARE(d.pageNumberVerticalIndent().unit().value(), ZRDistanceUnitTenthMM);
    QVERIFY(d.canHaveBorder() && d.canHaveShadow());
    QVERIFY(d.isConvertable());
    QCOMPARE(d.contentDropRedirect(4), 4);
    // An absent page list still reads as one empty entry.
    QCOMPARE(d.countAbstractPages(), 1);
    QCOMPARE(ZRProductTypeDescription().countAbstractPages(), 0);
}

void tst_ProductTypeDescription::articleClassRules_data()
{
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<bool>("varioCard");
    QTest::addColumn<bool>("easyCard");
    // clang-format off
    QTest::newRow("unknown class with binding") << "class='unknown' binding='hardcover'" << false << false << false;
    QTest::newRow("class and binding") << "class='photobook' binding='hardcover'" << true << false << false;
    QTest::newRow("class without binding") << "class='calendar'" << false << false << false;
    QTest::newRow("wall decor needs no binding") << "class='walldecor'" << true << false << false;
    QTest::newRow("wall decor among others") << "class='walldecor,photoprint'" << true << false << false;
    QTest::newRow("unknown binding key") << "class='card' binding='stapled'" << false << false << true;
    QTest::newRow("vario card with other class bits") << "class='card,gift' isVario='yes'" << false << true << false;
    QTest::newRow("easy card needs exactly the card class") << "class='card,gift' binding='single'" << true << false << false;
    QTest::newRow("vario photo book") << "class='photobook' isVario='1'" << false << false << false;
    // clang-format on
}

void tst_ProductTypeDescription::articleClassRules()
{
    QFETCH(QString, attributes);
    const ZRProductTypeDescription d = describe(QStringLiteral("<product name='p' %1/>").arg(attributes));
    QTEST(d.isValid(), "valid");
    QTEST(d.isVarioCard(), "varioCard");
    QTEST(d.isEasyCard(), "easyCard");
}

void tst_ProductTypeDescription::imageEffectsDecideBorderAndShadow_data()
{
    QTest::addColumn<QString>("effects");
    QTest::addColumn<bool>("decorations");
    QTest::newRow("none") << "none" << true;
    QTest::newRow("gray with alpha") << "PRESERVE_ALPHA_CHANNEL,grayscale" << false;
    QTest::newRow("alpha only") << "PRESERVE_ALPHA_CHANNEL" << true;
}

void tst_ProductTypeDescription::imageEffectsDecideBorderAndShadow()
{
    QFETCH(QString, effects);
    QFETCH(bool, decorations);
    const ZRProductTypeDescription d = describe(QStringLiteral("<product imageFXs='%1'/>").arg(effects));
    QCOMPARE(d.canHaveBorder(), decorations);
    QCOMPARE(d.canHaveShadow(), decorations);
}

void tst_ProductTypeDescription::spine_data()
{
    QTest::addColumn<QString>("pages");
    QTest::addColumn<bool>("spine");
    QTest::addColumn<bool>("text");
    // clang-format off
    QTest::newRow("spine with inside cover") << "spine,cover_inside_front" << true << false;
    QTest::newRow("spine alone") << "cover_front,spine,content_pages,cover_back" << true << true;
    QTest::newRow("wrap cover") << "wrap_cover,content_pages" << true << true;
    QTest::newRow("no spine, inside covers") << "cover_front,cover_inside_back" << false << false;
    QTest::newRow("spine only as part of a compound entry") << "cover_front, covers" << false << false;
    // clang-format on
}

void tst_ProductTypeDescription::spine()
{
    QFETCH(QString, pages);
    const ZRProductTypeDescription d = withPages(pages);
    QTEST(d.hasSpine(), "spine");
    QTEST(d.hasTextOnSpine(), "text");
}

void tst_ProductTypeDescription::spotColors_data()
{
    QTest::addColumn<QString>("attribute");
    QTest::addColumn<QList<int>>("colors");
    QTest::newRow("two names with an empty part") << "spotColor='gold,,silver'" << QList<int> { 2, 0, 4 };
    QTest::newRow("empty") << "spotColor=''" << QList<int>();
    QTest::newRow("blanks and capitals") << "spotColor=' Emboss , RoseGold'" << QList<int> { 1, 8 };
}

void tst_ProductTypeDescription::spotColors()
{
    QFETCH(QString, attribute);
    QTEST(ZRTest::values(describe(QStringLiteral("<product %1/>").arg(attribute)).includedSpotColors()), "colors");
}

void tst_ProductTypeDescription::safetyMargins_data()
{
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<int>("cover");
    QTest::addColumn<int>("content");
    QTest::newRow("neither") << QString() << 0 << 0;
    QTest::newRow("general only") << "safetymargin='30'" << 30 << 30;
    QTest::newRow("both") << "safetymargin='30' safetymargincover='80'" << 80 << 30;
    QTest::newRow("cover -1 counts as absent") << "safetymargin='30' safetymargincover='-1'" << 30 << 30;
}

void tst_ProductTypeDescription::safetyMargins()
{
    QFETCH(QString, attributes);
    QFETCH(int, cover);
    QFETCH(int, content);
    const ZRProductTypeDescription d = describe(QStringLiteral("<product %1/>").arg(attributes));
    QCOMPARE(d.safetyMargin(ZRPageType(ZRPageTypeCoverBack)), cover);
    QCOMPARE(d.safetyMargin(ZRPageType(ZRPageTypeWrapSpine)), cover);
    QCOMPARE(d.safetyMargin(ZRPageType(ZRPageTypeContent)), content);
    // A page type touching the cover mask anywhere counts as a cover.
    QCOMPARE(d.safetyMargin(ZRPageType(ZRPageTypeEnum(ZRPageTypeContent | ZRPageTypeSpine))), cover);
    QCOMPARE(d.safetyMargins(ZRPageType(ZRPageTypeContent)), ZRMargins(content, content, content, content));
}

void tst_ProductTypeDescription::pageTypes_data()
{
    QTest::addColumn<QString>("pages");
    QTest::addColumn<uint>("count");
    QTest::addColumn<QList<int>>("expected");
    // clang-format off
    QTest::newRow("back cover takes one content page") << "cover_back, calendar_sheets" << 5u << QList<int> { ZRPageTypeCoverBack, ZRPageTypePhotoPage, ZRPageTypeGridPage, ZRPageTypePhotoPage, ZRPageTypeGridPage };
    QTest::newRow("double sheets") << "calendar_sheets_double" << 6u << QList<int> { ZRPageTypePhotoPage, ZRPageTypePhotoPage, ZRPageTypeGridPage, ZRPageTypeGridPage, ZRPageTypePhotoPage, ZRPageTypePhotoPage };
    QTest::newRow("grid first") << "calendar_sheets_grid_first" << 3u << QList<int> { ZRPageTypeGridPage, ZRPageTypePhotoPage, ZRPageTypeGridPage };
    QTest::newRow("content pages") << "cover_front,content_pages,cover_back" << 3u << QList<int> { ZRPageTypeCoverFront, ZRPageTypeContent, ZRPageTypeContent, ZRPageTypeContent, ZRPageTypeCoverBack };
    QTest::newRow("zero content pages") << "content_pages" << 0u << QList<int>();
    QTest::newRow("wrap cover parts") << "wrap_cover" << 2u << QList<int> { ZRPageTypeWrapFront, ZRPageTypeWrapSpine, ZRPageTypeWrapFlap, ZRPageTypeWrapBack };
    QTest::newRow("back cover at zero stays at zero") << "cover_back,content_pages" << 0u << QList<int> { ZRPageTypeCoverBack };
    QTest::newRow("other entries are kept") << "title,panorama" << 9u << QList<int> { ZRPageTypeTitle, ZRPageTypePanorama };
    // clang-format on
}

void tst_ProductTypeDescription::pageTypes()
{
    QFETCH(QString, pages);
    QFETCH(uint, count);
    QTEST(ZRTest::values(withPages(pages).pageTypes(count)), "expected");
}

void tst_ProductTypeDescription::illegalPageTypeWarns()
{
    const ZRProductTypeDescription d = withPages(QStringLiteral("advent_doors,,cover_front"));
    QTest::ignoreMessage(QtWarningMsg, "Illegaler Seitentyp in der Produktbeschreibung.");
    const QList<int> expanded = ZRTest::values(d.pageTypes(3));
    QCOMPARE(expanded.size(), 1 + 24 + 1);
    QCOMPARE(expanded.first(), ZRPageTypeContent);
    QCOMPARE(expanded.at(24), ZRPageTypeDoorPage);
    QCOMPARE(expanded.last(), ZRPageTypeCoverFront);
}

void tst_ProductTypeDescription::pageAlignment_data()
{
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<QString>("pages");
    QTest::addColumn<QList<int>>("alignments");
    // clang-format off
    QTest::newRow("simplex normal, vertical") << "binding='single' horizontalPages='false'" << "content,content" << QList<int> { ZRPageAlignmentBottom, ZRPageAlignmentBottom };
    QTest::newRow("simplex card") << "binding='single' productAlignment='card'" << "content,content,content" << QList<int> { ZRPageAlignmentLeft, ZRPageAlignmentRight, ZRPageAlignmentLeft };
    QTest::newRow("simplex collegeblock, vertical") << "binding='single' productAlignment='collegeblock' horizontalPages='false'"
                                                    << "content,content" << QList<int> { ZRPageAlignmentTop, ZRPageAlignmentBottom };
    QTest::newRow("simplex vario card") << "binding='single' productAlignment='vario_card'" << "content,content" << QList<int> { ZRPageAlignmentCenter, ZRPageAlignmentCenter };
    QTest::newRow("panorama") << QString() << "cover_front,panorama_page,content,content,content,content" << QList<int> { ZRPageAlignmentLeft, ZRPageAlignmentRight, ZRPageAlignmentRight, ZRPageAlignmentRight, ZRPageAlignmentLeft, ZRPageAlignmentRight };
    QTest::newRow("panorama after single start") << QString() << "single_start_page,content,panorama_page,content,content"
                                                 << QList<int> { ZRPageAlignmentLeft, ZRPageAlignmentLeft, ZRPageAlignmentRight, ZRPageAlignmentRight, ZRPageAlignmentLeft };
    QTest::newRow("cover with spine") << QString() << "cover_back,spine,cover_front,content,content" << QList<int> { ZRPageAlignmentLeft, ZRPageAlignmentCenter, ZRPageAlignmentRight, ZRPageAlignmentRight, ZRPageAlignmentLeft };
    QTest::newRow("cover with spine, vertical") << "horizontalPages='false'" << "cover_back,spine,cover_front,content"
                                                << QList<int> { ZRPageAlignmentTop, ZRPageAlignmentMiddle, ZRPageAlignmentBottom, ZRPageAlignmentBottom };
    QTest::newRow("no spine alternates") << QString() << "cover_front,content,content" << QList<int> { ZRPageAlignmentLeft, ZRPageAlignmentRight, ZRPageAlignmentLeft };
    // clang-format on
}

void tst_ProductTypeDescription::pageAlignment()
{
    QFETCH(QString, attributes);
    QFETCH(QString, pages);
    const ZRProductTypeDescription d = withPages(pages, attributes);
    ZRPageTypeList list;
    for (const QString &key : pages.split(QLatin1Char(',')))
        list.append(ZRPageType(key));
    QList<int> actual;
    for (int i = 0; i < list.size(); ++i)
        actual.append(int(d.pageAlignment(list, i).value()));
    QTEST(actual, "alignments");
}

void tst_ProductTypeDescription::productionNumbering_data()
{
    QTest::addColumn<QString>("numbering");
    QTest::addColumn<int>("count");
    QTest::addColumn<QList<int>>("expected");
    QTest::newRow("counts on") << "5" << 3 << QList<int> { 5, 6, 7 };
    QTest::newRow("cut") << "5,9,2,8" << 3 << QList<int> { 5, 9, 2 };
    QTest::newRow("empty starts at 1") << QString() << 2 << QList<int> { 1, 2 };
    QTest::newRow("zero count") << QString() << 0 << QList<int>();
    QTest::newRow("counts on from the last") << "4,2" << 4 << QList<int> { 4, 2, 3, 4 };
    // Counting on stops at the largest int instead of overflowing.
    QTest::newRow("counts on to the largest int") << "2147483646" << 3 << QList<int> { INT_MAX - 1, INT_MAX, INT_MAX };
}

void tst_ProductTypeDescription::productionNumbering()
{
    QFETCH(QString, numbering);
    QFETCH(int, count);
    const ZRProductTypeDescription d
        = describe(QStringLiteral("<product><productionnumbering>%1</productionnumbering></product>").arg(numbering));
    QTEST(d.productionNumberingList(count), "expected");
}

void tst_ProductTypeDescription::contentAllowedOnPage_data()
{
    QTest::addColumn<QString>("children");
    QTest::addColumn<int>("page");
    QTest::addColumn<bool>("allowed");
    // clang-format off
    QTest::newRow("no list") << QString() << 7 << true;
    QTest::newRow("listed") << "<pageswithcontent>1,3</pageswithcontent>" << 3 << true;
    QTest::newRow("not listed") << "<pageswithcontent>1,3</pageswithcontent>" << 2 << false;
    QTest::newRow("content jig disabled") << "<editorAbilities><jigs><content enabled='false'/></jigs></editorAbilities>" << 1 << false;
    // clang-format on
}

void tst_ProductTypeDescription::contentAllowedOnPage()
{
    QFETCH(QString, children);
    QFETCH(int, page);
    QTEST(describe(QStringLiteral("<product>%1</product>").arg(children)).contentAllowedOnPage(page), "allowed");
}

void tst_ProductTypeDescription::subRecordsAreReadAndForwarded()
{
    const ZRProductTypeDescription d = describe(QStringLiteral(R"(
        <product name="calendar-a3" class="calendar" binding="spiral" replacedBy="calendar-a3-2027"
                 conversionStrategy="RewriteOneToTwoPages" hasLogoOnSpine="true">
          <tilt angle="90"/>
          <rotationredirects><rotationredirect from="1" to="2"/><rotationredirect from="3" to="2"/></rotationredirects>
          <contentredirects><contentredirect from="0-1" to="2"/></contentredirects>
          <defaults><default pageType="content" alignment="left" templates="B7,L7"/></defaults>
          <pageNumberConfig><margin verticalMargin="30" horizontalMargin="40.5"/><font fontSize="11"/></pageNumberConfig>
          <extra_production_pages><item><target_pages>1-3</target_pages><pdf filename="x.pdf"/></item></extra_production_pages>
          <editorAbilities convertable="false"><pageTilt disabled="true" pages="2"/>
            <jigs><background><categories pageType="content">Natur,Farben</categories></background></jigs>
          </editorAbilities>
          <pricelist><category>calendars</category></pricelist>
          <surroundings><surrounding type="CALENDAR" hasbindingshade="true"/></surroundings>
          <classification cm="30 x 42" inch="12x16" group="Poster"/>
        </product>)"));
    QCOMPARE(d.replacedByProduct().name(), QStringLiteral("calendar-a3-2027"));
    QCOMPARE(int(d.conversionStrategy().value()), 2);
    QVERIFY(d.mustPaintZeRaLogoOnSpine());
    QCOMPARE(d.tiltAngle(), 90);
    QCOMPARE(d.tiltRedirectForTargetPage(2).size(), 2);
    QCOMPARE(d.contentDropRedirect(1), 2);
    const ZRPageContext leftContent { ZRPageType(ZRPageTypeContent), ZRPageAlignment(ZRPageAlignmentLeft) };
    QCOMPARE(
        d.findDefaultTemplate(ZRDefaultTemplateKey(leftContent, ZRDefaultTemplateLayout, 4, 12)), QStringLiteral("L7"));
    QCOMPARE(d.pageNumberHorizontalIndent().value(), 40.5);
    QCOMPARE(d.pageNumberFontSize(), 11);
    QCOMPARE(d.extraProductionPageCount(), 3);
    QVERIFY(!d.isConvertable());
    QVERIFY(!d.userPageTiltAllowed(2));
    QVERIFY(d.userPageTiltAllowed(1));
    // The abilities take the jig type first and the page type second.
    const ZRJigType background(ZRJigTypeBackground);
    QCOMPARE(d.allowedJigCategories(ZRPageType(ZRPageTypeContent), background), (QStringList { "Natur", "Farben" }));
    QVERIFY(d.limitJigCategories(ZRPageType(ZRPageTypeContent), background));
    QVERIFY(!d.limitJigCategories(ZRPageType(ZRPageTypeCoverFront), background));
    QCOMPARE(d.priceListCategory(), QStringLiteral("calendars"));
    QVERIFY(d.hasSurroundingWithBindingShade());
    QCOMPARE(d.classification().productType(), ZRProductType(QStringLiteral("calendar-a3")));
}

void tst_ProductTypeDescription::coordinates_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("y");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::newRow("tiny width becomes 2") << QRectF(-0.05, 0, 0.1, 0) << 0 << 0 << 2 << 2;
    QTest::newRow("width in tenths of a millimetre") << QRectF(0, 0, 1, 3) << 5 << 15 << 10 << 30;
    QTest::newRow("odd rounds up to even") << QRectF(0.75, 20, 23.5, 40) << 125 << 400 << 236 << 400;
    QTest::newRow("half away from zero") << QRectF(-1.25, 0.25, 0, 0) << -13 << 3 << 2 << 2;
}

void tst_ProductTypeDescription::coordinates()
{
    QFETCH(QRectF, rect);
    QFETCH(int, width);
    QTEST(ZRProductCoordinates::posX(rect), "x");
    QTEST(ZRProductCoordinates::posY(rect), "y");
    QCOMPARE(ZRProductCoordinates::posWidth(rect), width);
    QTEST(ZRProductCoordinates::posHeight(rect), "height");
    QCOMPARE(ZRProductCoordinates::posWidthMM(rect), width / 100.0);
}

void tst_ProductTypeDescription::paperAndBinding()
{
    const auto paper = [](ZRPaperTypeEnum type, ZRPageBindingEnum binding) {
        return ZRPaperAndBinding(ZRPaperType(type), ZRPageBinding(binding));
    };
    QVERIFY(paper(ZRPaperTypePremiumMatt, ZRPageBindingLayflat).isIndigoLayFlat());
    QVERIFY(!paper(ZRPaperTypeDigitalMatt, ZRPageBindingLayflat).isIndigoLayFlat());
    QVERIFY(!paper(ZRPaperTypePhotoMatt, ZRPageBindingGlued).isIndigoLayFlat());
    QCOMPARE(paper(ZRPaperTypePremiumMatt, ZRPageBindingLayflat).describe(),
        QStringLiteral("Layflat-Bindung / Premium-Fotopapier matt"));
}

QTEST_GUILESS_MAIN(tst_ProductTypeDescription)
#include "tst_producttypedescription.moc"
