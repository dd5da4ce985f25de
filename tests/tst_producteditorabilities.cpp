#include "ZRProductEditorAbilities.h"
#include "ZRTestSupport.h"

#include <QRegularExpression>
#include <QTest>

using ZRTest::parseElement;

static ZRProductEditorAbilities read(const QString &xml)
{
    return ZRProductEditorAbilities(parseElement(xml));
}

// An "editorAbilities" element with @p content inside its "jigs" child.
static ZRProductEditorAbilities withJigs(const QString &content)
{
    return read(QStringLiteral("<editorAbilities><jigs>%1</jigs></editorAbilities>").arg(content));
}

class tst_ProductEditorAbilities : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void productAttributes_data();
    void productAttributes();
    void tiltAndDateRangeReadFromTheirChildren();
    void jigTags_data();
    void jigTags();
    void nonElementChildLandsUnderJigZero_data();
    void nonElementChildLandsUnderJigZero();
    void backgroundQueries_data();
    void backgroundQueries();
    void perJigQueries();
    void equality_data();
    void equality();
};

void tst_ProductEditorAbilities::productAttributes_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<bool>("assistant");
    QTest::addColumn<bool>("convertable");
    QTest::addColumn<int>("namingStyle");
    QTest::addColumn<int>("startPage");
    QTest::addColumn<bool>("button");
    QTest::addColumn<bool>("backgroundEnabled");

    // Everything in here differs from the defaults, so reading any of it shows.
    const QString body
        = QStringLiteral(R"( convertable="false"><assistant enabled="true"/>)"
                         R"(<pageNamingStyle>Book, CALENDAR</pageNamingStyle><startPage> 4 </startPage>)"
                         R"(<jigs showChangeBaseDesignButton="yes"><background enabled="false"/></jigs>)");
    QTest::newRow("all set") << QString("<editorAbilities" + body + "</editorAbilities>") << true << false
                             << int(ZRPageNamingBook | ZRPageNamingCalendar) << 4 << true << false;
    // clang-format off
    QTest::newRow("null element") << QString() << false << true << 0 << 0 << false << true;
    QTest::newRow("tag in other case") << QString("<EditorAbilities" + body + "</EditorAbilities>") << false << true << 0 << 0
                                       << false << true;
    QTest::newRow("unknown style, malformed page, attributes in the wrong place")
        << R"(<editorAbilities enabled="true" showChangeBaseDesignButton="true"><assistant/><jigs/>)"
           R"(<pageNamingStyle>scroll</pageNamingStyle><startPage>two</startPage></editorAbilities>)"
        << false << true << 0 << 0 << false << true;
    // clang-format on
}

void tst_ProductEditorAbilities::productAttributes()
{
    QFETCH(QString, xml);
    const ZRProductEditorAbilities abilities = read(xml);
    QTEST(abilities.hasAssistant(), "assistant");
    QTEST(abilities.isConvertable(), "convertable");
    QTEST(int(abilities.pageNamingStyle().value()), "namingStyle");
    QTEST(abilities.editorStartPage(), "startPage");
    QTEST(abilities.showChangeBaseDesignButton(), "button");
    QTEST(abilities.isJigEnabled(ZRJigTypeBackground), "backgroundEnabled");
}

void tst_ProductEditorAbilities::tiltAndDateRangeReadFromTheirChildren()
{
    const QString tilt = QStringLiteral(R"(<pageTilt disabled="true" pages="1, 3"/>)");
    const QString range = QStringLiteral(R"(<dateRangeConstraint isEnforced="true" maximumFromCurrentYear="2"/>)");
    const ZRProductEditorAbilities abilities = read("<editorAbilities>" + tilt + range + "</editorAbilities>");
    QCOMPARE(abilities.userPageTiltConfig(), ZRUserPageTiltConfig(parseElement(tilt)));
    QCOMPARE(abilities.dateRangeConstraint(), ZRDateRangeConstraint(parseElement(range)));
}

void tst_ProductEditorAbilities::jigTags_data()
{
    QTest::addColumn<QString>("jigs");
    QTest::addColumn<int>("jigType");
    QTest::addColumn<bool>("enabled");
    // clang-format off
    QTest::newRow("key") << R"(<clipart enabled="false"/>)" << int(ZRJigTypeClipart) << false;
    QTest::newRow("upper case") << R"(<BACKGROUND enabled="false"/>)" << int(ZRJigTypeBackground) << false;
    QTest::newRow("synonym") << R"(<Hintergrund enabled="false"/>)" << int(ZRJigTypeBackground) << false;
    QTest::newRow("plural synonym") << R"(<masks enabled="false"/>)" << int(ZRJigTypeMask) << false;
    QTest::newRow("other jig untouched") << R"(<clipart enabled="false"/>)" << int(ZRJigTypeBackground) << true;
    QTest::newRow("unknown tag lands under 0") << R"(<sparkles enabled="false"/>)" << int(ZRJigTypeUnknown) << false;
    QTest::newRow("last element wins") << R"(<background enabled="false"/><background/>)" << int(ZRJigTypeBackground) << true;
    QTest::newRow("last element wins across synonyms") << R"(<background/><clipart/><Hintergrund enabled="false"/>)"
                                                       << int(ZRJigTypeBackground) << false;
    // clang-format on
}

void tst_ProductEditorAbilities::jigTags()
{
    QFETCH(QString, jigs);
    QFETCH(int, jigType);
    QTEST(withJigs(jigs).isJigEnabled(ZRJigTypeEnum(jigType)), "enabled");
}

void tst_ProductEditorAbilities::nonElementChildLandsUnderJigZero_data()
{
    QTest::addColumn<QString>("jigs");

    QTest::newRow("comment") << "<!-- no jigs yet -->";
    QTest::newRow("text") << "background";
    QTest::newRow("CDATA") << "<![CDATA[<background/>]]>";
    QTest::newRow("unknown tag") << "<sparkles/>";
}

void tst_ProductEditorAbilities::nonElementChildLandsUnderJigZero()
{
    QFETCH(QString, jigs);
    const ZRProductEditorAbilities abilities = withJigs(jigs);
    // A default entry under jig type 0 is not the same as no entry at all.
    QCOMPARE(abilities, withJigs(QStringLiteral("<unknown/>")));
    QVERIFY(abilities != withJigs(QString()));
    QVERIFY(abilities.isJigEnabled(ZRJigTypeBackground));

    // Coming last, the node replaces an earlier entry for jig type 0 with the defaults.
    const ZRProductEditorAbilities replaced = withJigs(R"(<unknown enabled="false"/>)" + jigs);
    QVERIFY(replaced.isJigEnabled(ZRJigTypeUnknown));
    QCOMPARE(replaced, abilities);
}

void tst_ProductEditorAbilities::backgroundQueries_data()
{
    QTest::addColumn<QString>("jigs");
    QTest::addColumn<bool>("align");
    QTest::addColumn<bool>("rotate");
    QTest::addColumn<bool>("fullOnEachPage");

    const QString flipped = QStringLiteral(R"( alignable="false" rotatable="true" fullOnEachPage="false"/>)");
    QTest::newRow("no jigs") << QString() << true << false << true;
    QTest::newRow("no background entry") << QString("<clipart" + flipped) << true << false << true;
    QTest::newRow("background entry") << QString("<backgrounds" + flipped) << false << true << false;
}

void tst_ProductEditorAbilities::backgroundQueries()
{
    QFETCH(QString, jigs);
    const ZRProductEditorAbilities abilities = withJigs(jigs);
    QTEST(abilities.canAlignBackgrounds(), "align");
    QTEST(abilities.canRotateBackgrounds(), "rotate");
    QTEST(abilities.fullBackgroundOnEachPage(), "fullOnEachPage");
}

void tst_ProductEditorAbilities::perJigQueries()
{
    const ZRProductEditorAbilities abilities = withJigs(QStringLiteral(
        R"(<clipart exactArticle="true"><categories pageType="title">flowers,pets</categories></clipart>)"));
    QVERIFY(abilities.requiresExactArticle(ZRJigTypeClipart));
    QVERIFY(!abilities.requiresExactArticle(ZRJigTypeFrame));
    QCOMPARE(abilities.allowedCategories(ZRJigTypeClipart, ZRPageTypeTitle), QStringList({ "flowers", "pets" }));
    QVERIFY(abilities.allowedCategories(ZRJigTypeClipart, ZRPageTypeContent).isEmpty());
    QVERIFY(abilities.allowedCategories(ZRJigTypeBackground, ZRPageTypeTitle).isEmpty());
}

void tst_ProductEditorAbilities::equality_data()
{
    QTest::addColumn<QString>("left");
    QTest::addColumn<QString>("right");
    QTest::addColumn<bool>("equal");

    const QString plain = QStringLiteral("<editorAbilities/>");
    const QString categories = QStringLiteral(
        R"(<editorAbilities><jigs><clipart><categories pageType="title">%1</categories></clipart></jigs></editorAbilities>)");
    // clang-format off
    QTest::newRow("only page tilt differs") << plain
                                            << R"(<editorAbilities><pageTilt disabled="true" pages="2"/></editorAbilities>)"
                                            << true;
    QTest::newRow("only date range differs") << plain
                                             << R"(<editorAbilities><dateRangeConstraint isEnforced="true" maximumFromCurrentYear="3"/></editorAbilities>)"
                                             << true;
    QTest::newRow("assistant") << plain << R"(<editorAbilities><assistant enabled="true"/></editorAbilities>)" << false;
    QTest::newRow("convertable") << plain << R"(<editorAbilities convertable="false"/>)" << false;
    QTest::newRow("naming style") << plain << "<editorAbilities><pageNamingStyle>book</pageNamingStyle></editorAbilities>"
                                  << false;
    QTest::newRow("start page") << plain << "<editorAbilities><startPage>2</startPage></editorAbilities>" << false;
    QTest::newRow("button") << plain << R"(<editorAbilities><jigs showChangeBaseDesignButton="true"/></editorAbilities>)"
                            << false;
    QTest::newRow("jig entry with default abilities") << plain << "<editorAbilities><jigs><clipart/></jigs></editorAbilities>"
                                                      << false;
    QTest::newRow("jig categories differ") << categories.arg("a") << categories.arg("b") << false;
    QTest::newRow("synonym tags are the same jig") << "<editorAbilities><jigs><Hintergrund/></jigs></editorAbilities>"
                                                   << "<editorAbilities><jigs><background/></jigs></editorAbilities>" << true;
    // clang-format on
}

void tst_ProductEditorAbilities::equality()
{
    QFETCH(QString, left);
    QFETCH(QString, right);
    QTEST(read(left) == read(right), "equal");
    QTEST(read(right) == read(left), "equal");
}

QTEST_GUILESS_MAIN(tst_ProductEditorAbilities)
#include "tst_producteditorabilities.moc"
