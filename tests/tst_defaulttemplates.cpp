#include "ZRDefaultTemplateMap.h"
#include "ZRTestSupport.h"

#include <QRegularExpression>
#include <QTest>

namespace {
using ZRTest::parseElement;

ZRDefaultTemplateKey key(ZRPageTypeEnum pageType, ZRPageAlignmentEnum alignment, ZRDefaultTemplateType type,
    int pageNumber = -1, int scenePageCount = -1)
{
    return ZRDefaultTemplateKey(ZRPageContext(pageType, alignment), type, pageNumber, scenePageCount);
}
} // namespace

class tst_DefaultTemplates : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void readNames_data();
    void readNames();
    void expansion_data();
    void expansion();
    void laterDefaultWins();
    void findTemplate_data();
    void findTemplate();
    void removeUmlauts_data();
    void removeUmlauts();
    void pageNumberAndCountAreNotHashed();
};

void tst_DefaultTemplates::readNames_data()
{
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<QString>("layout");
    QTest::addColumn<QString>("background");
    QTest::addColumn<QString>("design");

    // clang-format off
    QTest::newRow("short form") << R"(templates="B1,L1")" << "L1" << "B1" << "";
    QTest::newRow("short form, background only") << R"(templates="B1")" << "" << "B1" << "";
    QTest::newRow("nothing given") << "" << "" << "201" << "";
    QTest::newRow("three entries") << R"(templates="B1,L1,X")" << "" << "B1" << "";
    QTest::newRow("empty entry dropped") << R"(templates="B1,,L1")" << "L1" << "B1" << "";
    QTest::newRow("short form trimmed") << R"(templates=" B1 , L1 ")" << "L1" << "B1" << "";
    QTest::newRow("attributes win") << R"(templates="B1,L1" layout="L2" background="B2")" << "L2" << "B2" << "";
    QTest::newRow("empty background attribute") << R"(background="")" << "" << "" << "";
    QTest::newRow("design not trimmed") << R"(layout=" L " design=" D ")" << "L" << "201" << " D ";
    QTest::newRow("umlauts")
        << R"(layout="Größe" background="Über" design="Weiß")" << "Groesse" << "ueber" << "Weiss";
    // clang-format on
}

void tst_DefaultTemplates::readNames()
{
    QFETCH(QString, attributes);

    const ZRDefaultTemplateMap map(parseElement(
        QStringLiteral(R"(<defaults><default pageType="content" alignment="left" %1/></defaults>)").arg(attributes)));
    QCOMPARE(map.size(), 3);
    QTEST(map.value(key(ZRPageTypeContent, ZRPageAlignmentLeft, ZRDefaultTemplateLayout)), "layout");
    QTEST(map.value(key(ZRPageTypeContent, ZRPageAlignmentLeft, ZRDefaultTemplateBackground)), "background");
    QTEST(map.value(key(ZRPageTypeContent, ZRPageAlignmentLeft, ZRDefaultTemplateDesign)), "design");
}

void tst_DefaultTemplates::expansion_data()
{
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<int>("entries");
    QTest::addColumn<ZRDefaultTemplateKey>("probe");
    // clang-format off
    QTest::newRow("one type, one alignment") << R"(pageType="content" alignment="left")" << 3 << key(ZRPageTypeContent, ZRPageAlignmentLeft, ZRDefaultTemplateBackground);
    QTest::newRow("every alignment by default") << R"(pageType="content")" << 18 << key(ZRPageTypeContent, ZRPageAlignmentMiddle, ZRDefaultTemplateDesign);
    QTest::newRow("two types, two alignments") << R"(pageType="cover_front, content" alignment="left,right")" << 12
                                               << key(ZRPageTypeCoverFront, ZRPageAlignmentRight, ZRDefaultTemplateLayout);
    QTest::newRow("each listed page type") << R"(pageType="photo,content" alignment="top")" << 6 << key(ZRPageTypePhoto, ZRPageAlignmentTop, ZRDefaultTemplateLayout);
    QTest::newRow("keys carry page number and count") << R"(pageType="content" alignment="left" pageNr="2" scenePageCount="24")" << 3
                                                      << key(ZRPageTypeContent, ZRPageAlignmentLeft, ZRDefaultTemplateLayout, 2, 24);
    // clang-format on
}

void tst_DefaultTemplates::expansion()
{
    QFETCH(QString, attributes);
    QFETCH(ZRDefaultTemplateKey, probe);

    const ZRDefaultTemplateMap map(parseElement(QStringLiteral("<defaults><default %1/></defaults>").arg(attributes)));
    QTEST(int(map.size()), "entries");
    QVERIFY(map.contains(probe));
}

void tst_DefaultTemplates::laterDefaultWins()
{
    ZRDefaultTemplateMap map(parseElement(QStringLiteral(R"(<defaults>
        <default pageType="content" alignment="left,right" layout="first" background="B"/>
        <ignored pageType="content" alignment="left" layout="ignored"/>
        <default pageType="content" alignment="left" layout="second"/>
        </defaults>)")));
    QCOMPARE(map.size(), 6);
    QCOMPARE(map.findTemplate(key(ZRPageTypeContent, ZRPageAlignmentLeft, ZRDefaultTemplateLayout)), "second");
    QCOMPARE(map.findTemplate(key(ZRPageTypeContent, ZRPageAlignmentLeft, ZRDefaultTemplateBackground)), "201");
    QCOMPARE(map.findTemplate(key(ZRPageTypeContent, ZRPageAlignmentRight, ZRDefaultTemplateLayout)), "first");

    map.applyDefaultsNode(parseElement(
        QStringLiteral(R"(<defaults><default pageType="content" alignment="right" layout="third"/></defaults>)")));
    QCOMPARE(map.findTemplate(key(ZRPageTypeContent, ZRPageAlignmentRight, ZRDefaultTemplateLayout)), "third");
    QCOMPARE(map.findTemplate(key(ZRPageTypeContent, ZRPageAlignmentLeft, ZRDefaultTemplateLayout)), "second");
}

void tst_DefaultTemplates::findTemplate_data()
{
    QTest::addColumn<ZRDefaultTemplateKey>("query");
    QTest::addColumn<QString>("expected");

    const auto content = [](ZRDefaultTemplateType type, int pageNumber, int count) {
        return key(ZRPageTypeContent, ZRPageAlignmentLeft, type, pageNumber, count);
    };
    const auto leftRight = ZRPageAlignmentEnum(ZRPageAlignmentLeft | ZRPageAlignmentRight);
    // clang-format off
    QTest::newRow("exact") << content(ZRDefaultTemplateLayout, 3, 10) << "L-3-10";
    QTest::newRow("empty name goes on to any page") << content(ZRDefaultTemplateBackground, 3, 10) << "B-any-10";
    QTest::newRow("empty names go on to any count") << content(ZRDefaultTemplateDesign, 3, 10) << "D-any-any";
    QTest::newRow("other page, same count") << content(ZRDefaultTemplateLayout, 4, 10) << "L-any-10";
    QTest::newRow("page without count") << content(ZRDefaultTemplateLayout, 3, -1) << "L-3-any";
    QTest::newRow("other page without count") << content(ZRDefaultTemplateLayout, 4, -1) << "L-any-any";
    QTest::newRow("other count") << content(ZRDefaultTemplateLayout, 4, 11) << "L-any-any";
    QTest::newRow("page with count skips page without count") << content(ZRDefaultTemplateLayout, 3, 11) << "L-any-any";
    QTest::newRow("other page type") << key(ZRPageTypeCoverFront, ZRPageAlignmentLeft, ZRDefaultTemplateLayout, 3, 10) << "";
    QTest::newRow("other alignment") << key(ZRPageTypeContent, ZRPageAlignmentRight, ZRDefaultTemplateLayout) << "";
    QTest::newRow("no fallback over alignments") << key(ZRPageTypeContent, leftRight, ZRDefaultTemplateLayout) << "";
    QTest::newRow("no fallback over page types") << key(ZRPageTypePhotoPage, ZRPageAlignmentLeft, ZRDefaultTemplateLayout) << "";
    // clang-format on
}

void tst_DefaultTemplates::findTemplate()
{
    QFETCH(ZRDefaultTemplateKey, query);

    const ZRDefaultTemplateMap map(parseElement(QStringLiteral(R"(<defaults>
        <default pageType="content" alignment="left" pageNr="3" scenePageCount="10" layout="L-3-10" background="" />
        <default pageType="content" alignment="left" scenePageCount="10" layout="L-any-10" background="B-any-10"/>
        <default pageType="content" alignment="left" pageNr="3" layout="L-3-any" background="B-3-any"/>
        <default pageType="content" alignment="left" layout="L-any-any" background="B-any-any" design="D-any-any"/>
        </defaults>)")));
    QTEST(map.findTemplate(query), "expected");
}

void tst_DefaultTemplates::removeUmlauts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");

    // clang-format off
    QTest::newRow("sharp s") << "Größe" << "Groesse";
    QTest::newRow("capital folds to lower case") << "Über" << "ueber";
    QTest::newRow("all of them") << "ÄÖÜäöüß" << "aeoeueaeoeuess";
    QTest::newRow("other letters untouched") << "Café Ñ Ø" << "Café Ñ Ø";
    QTest::newRow("capital sharp s folds to sharp s") << "GROẞ" << "GROss";
    QTest::newRow("plain text") << "L-2-Fotos-quer" << "L-2-Fotos-quer";
    QTest::newRow("umlaut after plain text") << "L-Größe-Mischung" << "L-Groesse-Mischung";
    QTest::newRow("empty") << "" << "";
    // clang-format on
}

void tst_DefaultTemplates::removeUmlauts()
{
    QFETCH(QString, text);
    QTEST(ZRDefaultTemplateMap().removeUmlauts(text), "expected");
}

void tst_DefaultTemplates::pageNumberAndCountAreNotHashed()
{
    const ZRDefaultTemplateKey any = key(ZRPageTypeContent, ZRPageAlignmentLeft, ZRDefaultTemplateLayout);
    const ZRDefaultTemplateKey specific = key(ZRPageTypeContent, ZRPageAlignmentLeft, ZRDefaultTemplateLayout, 3, 10);
    QCOMPARE(qHash(specific, 17), qHash(any, 17));
    QVERIFY(specific != any);
}

QTEST_GUILESS_MAIN(tst_DefaultTemplates)
#include "tst_defaulttemplates.moc"
