#include "ZRDefaultTemplateKey.h"
#include "ZRPaperAndBinding.h"
#include "ZRProductCoordinates.h"
#include "ZRProductTypeDescription.h"

#include <QDomDocument>
#include <QRegularExpression>
#include <QTest>

namespace {
ZRProductTypeDescription describe(const QString &productXml)
{
    QDomDocument document;
    if (!document.setContent(productXml))
        qFatal("test XML does not parse: %s", qPrintable(productXml));
    return ZRProductTypeDescription(document.documentElement());
}

QList<int> values(const ZRPageTypeList &list)
{
    QList<int> result;
    for (const ZRPageType &type : list)
        result.append(int(type.value()));
    return result;
}
} // namespace

class tst_ProductTypeDescription : public QObject
{
    Q_OBJECT
private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void defaultsOfAnEmptyProductElement();
    void defaultConstructedIsEmpty();
    void validity_data();
    void validity();
    void cards_data();
    void cards();
    void imageEffectsDecideBorderAndShadow_data();
    void imageEffectsDecideBorderAndShadow();
    void spine_data();
    void spine();
    void integerLists();
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
    const ZRProductTypeDescription d = describe(QStringLiteral("<product/>"));
    QVERIFY(!d.productType().isValid());
    QCOMPARE(quint64(d.articleClass().value()), quint64(0));
    QVERIFY(!d.isValid());
    QVERIFY(d.horizontalPages());
    QCOMPARE(d.tiltAngle(), 270);
    QCOMPARE(d.foldSafetyMargin(), -1);
    QCOMPARE(d.pageNumberFontSize(), 24);
    QCOMPARE(d.pageNumberHorizontalIndent().value(), 50.0);
    QCOMPARE(d.pageNumberVerticalIndent().value(), 50.0);
    QCOMPARE(d.pageNumberVerticalIndent().unit().value(), ZRDistanceUnitTenthMM);
    QCOMPARE(d.safetyMargin(ZRPageType(ZRPageTypeCoverFront)), 0);
    QCOMPARE(d.safetyMargin(ZRPageType(ZRPageTypeContent)), 0);
    QVERIFY(d.canHaveBorder() && d.canHaveShadow());
    QVERIFY(!d.hasSpine() && !d.hasTextOnSpine());
    QVERIFY(d.isConvertable());
    QVERIFY(d.includedSpotColors().isEmpty());
    QVERIFY(d.priceListCategory().isNull());
    QVERIFY(d.preview3DDescription()->mesh().isEmpty());
    QCOMPARE(d.contentDropRedirect(4), 4);
    // An absent page list still reads as one empty entry.
    QCOMPARE(d.countAbstractPages(), 1);
}

void tst_ProductTypeDescription::defaultConstructedIsEmpty()
{
    const ZRProductTypeDescription d;
    QVERIFY(!d.isValid());
    QVERIFY(!d.horizontalPages());
    QCOMPARE(d.tiltAngle(), 0);
    QCOMPARE(d.foldSafetyMargin(), 0);
    QCOMPARE(d.pageNumberFontSize(), 0);
    QCOMPARE(d.countAbstractPages(), 0);
    QVERIFY(!d.canHaveBorder());
    QVERIFY(d.pageTypes(10).isEmpty());
}

void tst_ProductTypeDescription::validity_data()
{
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<bool>("valid");
    QTest::newRow("unknown class with binding") << QStringLiteral("class='unknown' binding='hardcover'") << false;
    QTest::newRow("class and binding") << QStringLiteral("class='photobook' binding='hardcover'") << true;
    QTest::newRow("class without binding") << QStringLiteral("class='calendar'") << false;
    QTest::newRow("wall decor needs no binding") << QStringLiteral("class='walldecor'") << true;
    QTest::newRow("wall decor among others") << QStringLiteral("class='walldecor,photoprint'") << true;
    QTest::newRow("unknown binding key") << QStringLiteral("class='card' binding='stapled'") << false;
}

void tst_ProductTypeDescription::validity()
{
    QFETCH(QString, attributes);
    QFETCH(bool, valid);
    QCOMPARE(describe(QStringLiteral("<product name='p' %1/>").arg(attributes)).isValid(), valid);
}

void tst_ProductTypeDescription::cards_data()
{
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<bool>("varioCard");
    QTest::addColumn<bool>("easyCard");
    QTest::newRow("easy card") << QStringLiteral("class='card'") << false << true;
    QTest::newRow("vario card") << QStringLiteral("class='card' isVario='true'") << true << false;
    QTest::newRow("vario card with other class bits")
        << QStringLiteral("class='card,gift' isVario='yes'") << true << false;
    QTest::newRow("easy card needs exactly the card class") << QStringLiteral("class='card,gift'") << false << false;
    QTest::newRow("vario photo book") << QStringLiteral("class='photobook' isVario='1'") << false << false;
}

void tst_ProductTypeDescription::cards()
{
    QFETCH(QString, attributes);
    QFETCH(bool, varioCard);
    QFETCH(bool, easyCard);
    const ZRProductTypeDescription d = describe(QStringLiteral("<product %1/>").arg(attributes));
    QCOMPARE(d.isVarioCard(), varioCard);
    QCOMPARE(d.isEasyCard(), easyCard);
}

void tst_ProductTypeDescription::imageEffectsDecideBorderAndShadow_data()
{
    QTest::addColumn<QString>("effects");
    QTest::addColumn<bool>("decorations");
    QTest::newRow("none") << QStringLiteral("none") << true;
    QTest::newRow("gray") << QStringLiteral("gray") << false;
    QTest::newRow("gray with alpha") << QStringLiteral("PRESERVE_ALPHA_CHANNEL,grayscale") << false;
    QTest::newRow("alpha only") << QStringLiteral("PRESERVE_ALPHA_CHANNEL") << true;
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
    QTest::newRow("spine with inside cover") << QStringLiteral("spine,cover_inside_front") << true << false;
    QTest::newRow("spine alone") << QStringLiteral("cover_front,spine,content_pages,cover_back") << true << true;
    QTest::newRow("wrap cover") << QStringLiteral("wrap_cover,content_pages") << true << true;
    QTest::newRow("no spine, inside covers") << QStringLiteral("cover_front,cover_inside_back") << false << false;
    QTest::newRow("spine only as part of a compound entry") << QStringLiteral("cover_front, covers") << false << false;
}

void tst_ProductTypeDescription::spine()
{
    QFETCH(QString, pages);
    QFETCH(bool, spine);
    QFETCH(bool, text);
    const ZRProductTypeDescription d = describe(QStringLiteral("<product><pages>%1</pages></product>").arg(pages));
    QCOMPARE(d.hasSpine(), spine);
    QCOMPARE(d.hasTextOnSpine(), text);
}

void tst_ProductTypeDescription::integerLists()
{
    const ZRProductTypeDescription d
        = describe(QStringLiteral("<product><pageswithcontent> 1, 2, , x, 4 </pageswithcontent>"
                                  "<productionnumbering>\n 3,\t1 ,2</productionnumbering></product>"));
    QCOMPARE(d.pagesWithContent(), (QList<int> { 1, 2, 4 }));
    QCOMPARE(d.productionNumbering(), (QList<int> { 3, 1, 2 }));
}

void tst_ProductTypeDescription::spotColors_data()
{
    QTest::addColumn<QString>("attribute");
    QTest::addColumn<QList<int>>("colors");
    QTest::newRow("two names with an empty part")
        << QStringLiteral("spotColor='gold,,silver'") << QList<int> { 2, 0, 4 };
    QTest::newRow("empty") << QStringLiteral("spotColor=''") << QList<int>();
    QTest::newRow("missing") << QString() << QList<int>();
    QTest::newRow("blanks and capitals") << QStringLiteral("spotColor=' Emboss , RoseGold'") << QList<int> { 1, 8 };
}

void tst_ProductTypeDescription::spotColors()
{
    QFETCH(QString, attribute);
    QFETCH(QList<int>, colors);
    QList<int> actual;
    const auto included = describe(QStringLiteral("<product %1/>").arg(attribute)).includedSpotColors();
    for (const ZRSpotColor &color : included)
        actual.append(int(color.value()));
    QCOMPARE(actual, colors);
}

void tst_ProductTypeDescription::safetyMargins_data()
{
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<int>("cover");
    QTest::addColumn<int>("content");
    QTest::newRow("neither") << QString() << 0 << 0;
    QTest::newRow("general only") << QStringLiteral("safetymargin='30'") << 30 << 30;
    QTest::newRow("both") << QStringLiteral("safetymargin='30' safetymargincover='80'") << 80 << 30;
    QTest::newRow("cover -1 counts as absent")
        << QStringLiteral("safetymargin='30' safetymargincover='-1'") << 30 << 30;
    QTest::newRow("cover only") << QStringLiteral("safetymargincover='0'") << 0 << 0;
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
    QTest::newRow("back cover takes one content page")
        << QStringLiteral("cover_back, calendar_sheets") << 5u << QList<int> { 64, 10, 12, 10, 12 };
    QTest::newRow("double sheets") << QStringLiteral("calendar_sheets_double") << 6u
                                   << QList<int> { 10, 10, 12, 12, 10, 10 };
    QTest::newRow("grid first") << QStringLiteral("calendar_sheets_grid_first") << 3u << QList<int> { 12, 10, 12 };
    QTest::newRow("content pages") << QStringLiteral("cover_front,content_pages,cover_back") << 3u
                                   << QList<int> { 0x20, 8, 8, 8, 0x40 };
    QTest::newRow("zero content pages") << QStringLiteral("content_pages") << 0u << QList<int>();
    QTest::newRow("wrap cover parts") << QStringLiteral("wrap_cover") << 2u
                                      << QList<int> { 0x80000, 0x20000, 0x40000, 0x10000 };
    QTest::newRow("back cover at zero stays at zero")
        << QStringLiteral("cover_back,content_pages") << 0u << QList<int> { 64 };
    QTest::newRow("other entries are kept") << QStringLiteral("title,panorama") << 9u << QList<int> { 0x10, 0x200000 };
}

void tst_ProductTypeDescription::pageTypes()
{
    QFETCH(QString, pages);
    QFETCH(uint, count);
    QFETCH(QList<int>, expected);
    const ZRProductTypeDescription d = describe(QStringLiteral("<product><pages>%1</pages></product>").arg(pages));
    QCOMPARE(values(d.pageTypes(count)), expected);
}

void tst_ProductTypeDescription::illegalPageTypeWarns()
{
    const ZRProductTypeDescription d
        = describe(QStringLiteral("<product><pages>advent_doors,,cover_front</pages></product>"));
    QTest::ignoreMessage(QtWarningMsg, "Illegaler Seitentyp in der Produktbeschreibung.");
    const QList<int> expanded = values(d.pageTypes(3));
    QCOMPARE(expanded.size(), 1 + 24 + 1);
    QCOMPARE(expanded.first(), 8);
    QCOMPARE(expanded.at(24), 0x408);
    QCOMPARE(expanded.last(), 0x20);
}

void tst_ProductTypeDescription::pageAlignment_data()
{
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<QString>("pages");
    QTest::addColumn<QList<int>>("alignments");
    QTest::newRow("simplex normal, horizontal")
        << QStringLiteral("binding='single'") << QStringLiteral("content,content") << QList<int> { 2, 2 };
    QTest::newRow("simplex normal, vertical") << QStringLiteral("binding='single' horizontalPages='false'")
                                              << QStringLiteral("content,content") << QList<int> { 32, 32 };
    QTest::newRow("simplex card") << QStringLiteral("binding='single' productAlignment='card'")
                                  << QStringLiteral("content,content,content") << QList<int> { 1, 2, 1 };
    QTest::newRow("simplex collegeblock, vertical")
        << QStringLiteral("binding='single' productAlignment='collegeblock' horizontalPages='false'")
        << QStringLiteral("content,content") << QList<int> { 16, 32 };
    QTest::newRow("simplex vario card") << QStringLiteral("binding='single' productAlignment='vario_card'")
                                        << QStringLiteral("content,content") << QList<int> { 4, 4 };
    QTest::newRow("panorama") << QString()
                              << QStringLiteral("cover_front,panorama_page,content,content,content,content")
                              << QList<int> { 1, 2, 2, 2, 1, 2 };
    QTest::newRow("panorama after single start")
        << QString() << QStringLiteral("single_start_page,content,panorama_page,content,content")
        << QList<int> { 1, 1, 2, 2, 1 };
    QTest::newRow("cover with spine") << QString() << QStringLiteral("cover_back,spine,cover_front,content,content")
                                      << QList<int> { 1, 4, 2, 2, 1 };
    QTest::newRow("cover with spine, vertical")
        << QStringLiteral("horizontalPages='false'") << QStringLiteral("cover_back,spine,cover_front,content")
        << QList<int> { 16, 64, 32, 32 };
    QTest::newRow("no spine alternates") << QString() << QStringLiteral("cover_front,content,content")
                                         << QList<int> { 1, 2, 1 };
}

void tst_ProductTypeDescription::pageAlignment()
{
    QFETCH(QString, attributes);
    QFETCH(QString, pages);
    QFETCH(QList<int>, alignments);
    const ZRProductTypeDescription d
        = describe(QStringLiteral("<product %1><pages>%2</pages></product>").arg(attributes, pages));
    ZRPageTypeList list;
    for (const QString &key : pages.split(QLatin1Char(',')))
        list.append(ZRPageType(key));
    QList<int> actual;
    for (int i = 0; i < list.size(); ++i)
        actual.append(int(d.pageAlignment(list, i).value()));
    QCOMPARE(actual, alignments);
}

void tst_ProductTypeDescription::productionNumbering_data()
{
    QTest::addColumn<QString>("numbering");
    QTest::addColumn<int>("count");
    QTest::addColumn<QList<int>>("expected");
    QTest::newRow("counts on") << QStringLiteral("5") << 3 << QList<int> { 5, 6, 7 };
    QTest::newRow("cut") << QStringLiteral("5,9,2,8") << 3 << QList<int> { 5, 9, 2 };
    QTest::newRow("empty starts at 1") << QString() << 2 << QList<int> { 1, 2 };
    QTest::newRow("zero count") << QString() << 0 << QList<int>();
    QTest::newRow("counts on from the last") << QStringLiteral("4,2") << 4 << QList<int> { 4, 2, 3, 4 };
}

void tst_ProductTypeDescription::productionNumbering()
{
    QFETCH(QString, numbering);
    QFETCH(int, count);
    QFETCH(QList<int>, expected);
    const ZRProductTypeDescription d
        = describe(QStringLiteral("<product><productionnumbering>%1</productionnumbering></product>").arg(numbering));
    QCOMPARE(d.productionNumberingList(count), expected);
}

void tst_ProductTypeDescription::contentAllowedOnPage_data()
{
    QTest::addColumn<QString>("children");
    QTest::addColumn<int>("page");
    QTest::addColumn<bool>("allowed");
    QTest::newRow("no list") << QString() << 7 << true;
    QTest::newRow("listed") << QStringLiteral("<pageswithcontent>1,3</pageswithcontent>") << 3 << true;
    QTest::newRow("not listed") << QStringLiteral("<pageswithcontent>1,3</pageswithcontent>") << 2 << false;
    QTest::newRow("content jig disabled")
        << QStringLiteral("<editorAbilities><jigs><content enabled='false'/></jigs></editorAbilities>") << 1 << false;
}

void tst_ProductTypeDescription::contentAllowedOnPage()
{
    QFETCH(QString, children);
    QFETCH(int, page);
    QFETCH(bool, allowed);
    QCOMPARE(describe(QStringLiteral("<product>%1</product>").arg(children)).contentAllowedOnPage(page), allowed);
}

void tst_ProductTypeDescription::subRecordsAreReadAndForwarded()
{
    const ZRProductTypeDescription d = describe(QStringLiteral(R"(
        <product name="calendar-a3" class="calendar" binding="spiral" replacedBy="calendar-a3-2027"
                 conversionStrategy="RewriteOneToTwoPages" foldsafetymargin="12" hasLogoOnSpine="true">
          <tilt angle="90"/>
          <rotationredirects><rotationredirect from="1" to="2"/><rotationredirect from="3" to="2"/></rotationredirects>
          <contentredirects><contentredirect from="0-1" to="2"/></contentredirects>
          <defaults><default pageType="content" alignment="left" templates="B7,L7"/></defaults>
          <pageNumberConfig><margin verticalMargin="30" horizontalMargin="40.5"/><font fontSize="11"/></pageNumberConfig>
          <extra_production_pages><item><target_pages>1-3</target_pages><pdf filename="x.pdf"/></item></extra_production_pages>
          <editorAbilities convertable="false"><assistant enabled="true"/><pageNamingStyle>calendar</pageNamingStyle>
            <pageTilt disabled="true" pages="2"/><startPage>3</startPage>
            <jigs showChangeBaseDesignButton="true"><background rotatable="true" fullOnEachPage="false">
              <categories pageType="content">Natur,Farben</categories></background></jigs>
          </editorAbilities>
          <pricelist><category>calendars</category></pricelist>
          <surroundings><surrounding type="CALENDAR" hasbindingshade="true"/></surroundings>
          <classification cm="30 x 42" inch="12x16" group="Poster"/>
        </product>)"));
    QCOMPARE(d.productType(), ZRProductType(QStringLiteral("calendar-a3")));
    QVERIFY(d.isValid());
    QCOMPARE(d.replacedByProduct().name(), QStringLiteral("calendar-a3-2027"));
    QCOMPARE(int(d.conversionStrategy().value()), 2);
    QCOMPARE(d.foldSafetyMargin(), 12);
    QVERIFY(d.mustPaintZeRaLogoOnSpine());
    QCOMPARE(d.tiltAngle(), 90);
    QCOMPARE(d.tiltRedirectForTargetPage(2).redirects().size(), 2);
    QCOMPARE(d.tiltRedirectForSourcePage(3).redirects().size(), 1);
    QCOMPARE(d.contentDropRedirect(1), 2);
    const ZRPageContext leftContent { ZRPageType(ZRPageTypeContent), ZRPageAlignment(ZRPageAlignmentLeft) };
    QCOMPARE(
        d.findDefaultTemplate(ZRDefaultTemplateKey(leftContent, ZRDefaultTemplateLayout, 4, 12)), QStringLiteral("L7"));
    QCOMPARE(d.pageNumberVerticalIndent().value(), 30.0);
    QCOMPARE(d.pageNumberHorizontalIndent().value(), 40.5);
    QCOMPARE(d.pageNumberFontSize(), 11);
    QCOMPARE(d.extraProductionPageCount(), 3);
    QVERIFY(!d.isConvertable());
    QVERIFY(d.hasAssistant());
    QCOMPARE(d.pageNamingStyle().value(), ZRPageNamingCalendar);
    QVERIFY(!d.userPageTiltAllowed(2));
    QVERIFY(d.userPageTiltAllowed(1));
    QCOMPARE(d.editorStartPage(), 3);
    QVERIFY(d.showChangeDesignButton());
    QVERIFY(d.canRotateBackgrounds());
    QVERIFY(!d.putFullBackgroundOnEachPage());
    const ZRJigType background(ZRJigTypeBackground);
    QCOMPARE(d.allowedJigCategories(ZRPageType(ZRPageTypeContent), background), (QStringList { "Natur", "Farben" }));
    QVERIFY(d.limitJigCategories(ZRPageType(ZRPageTypeContent), background));
    QVERIFY(!d.limitJigCategories(ZRPageType(ZRPageTypeCoverFront), background));
    QCOMPARE(d.priceListCategory(), QStringLiteral("calendars"));
    QVERIFY(d.hasSurroundingWithBindingShade());
    QCOMPARE(d.classification().group().value(), QStringLiteral("Poster"));
    QCOMPARE(d.classification().productType(), d.productType());
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
    QFETCH(int, x);
    QFETCH(int, y);
    QFETCH(int, width);
    QFETCH(int, height);
    QCOMPARE(ZRProductCoordinates::posX(rect), x);
    QCOMPARE(ZRProductCoordinates::posY(rect), y);
    QCOMPARE(ZRProductCoordinates::posWidth(rect), width);
    QCOMPARE(ZRProductCoordinates::posHeight(rect), height);
    QCOMPARE(ZRProductCoordinates::posWidthMM(rect), width / 100.0);
}

void tst_ProductTypeDescription::paperAndBinding()
{
    const ZRPaperAndBinding layFlat { ZRPaperType(ZRPaperTypePremiumMatt), ZRPageBinding(ZRPageBindingLayflat) };
    QVERIFY(layFlat.isIndigoLayFlat());
    QVERIFY(
        !ZRPaperAndBinding(ZRPaperType(ZRPaperTypeDigitalMatt), ZRPageBinding(ZRPageBindingLayflat)).isIndigoLayFlat());
    QVERIFY(!ZRPaperAndBinding(ZRPaperType(ZRPaperTypePhotoMatt), ZRPageBinding(ZRPageBindingGlued)).isIndigoLayFlat());
    QCOMPARE(layFlat.describe(), QStringLiteral("Layflat-Bindung / Premium-Fotopapier matt"));
    QCOMPARE(layFlat, ZRPaperAndBinding(ZRPaperType(ZRPaperTypePremiumMatt), ZRPageBinding(ZRPageBindingLayflat)));
}

QTEST_GUILESS_MAIN(tst_ProductTypeDescription)
#include "tst_producttypedescription.moc"
