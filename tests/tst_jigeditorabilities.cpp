#include "ZRJigEditorAbilities.h"
#include "ZRTestSupport.h"

#include <QRegularExpression>
#include <QTest>

using ZRTest::parseElement;

class tst_JigEditorAbilities : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void booleans_data();
    void booleans();
    void categories_data();
    void categories();
    void equality_data();
    void equality();
};

void tst_JigEditorAbilities::booleans_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QList<bool>>("expected"); // enabled, alignable, rotatable, fullOnEachPage, exactArticle

    QTest::newRow("null element") << QString() << QList<bool> { true, true, false, true, false };
    QTest::newRow("no attributes") << "<background/>" << QList<bool> { true, true, false, true, false };
    QTest::newRow("all flipped") << R"(<clipart enabled="NO" alignable="0" rotatable="Yes" fullOnEachPage="false" )"
                                    R"(exactArticle="true"/>)"
                                 << QList<bool> { false, false, true, false, true };
    QTest::newRow("malformed keeps defaults") << R"(<clipart enabled="maybe" rotatable="2" exactArticle=""/>)"
                                              << QList<bool> { true, true, false, true, false };
}

void tst_JigEditorAbilities::booleans()
{
    QFETCH(QString, xml);
    const ZRJigEditorAbilities a(parseElement(xml));
    const QList<bool> actual { a.isEnabled(), a.alignable(), a.rotatable(), a.fullOnEachPage(),
        a.requiresExactArticle() };
    QTEST(actual, "expected");
}

void tst_JigEditorAbilities::categories_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<int>("pageType");
    QTest::addColumn<QStringList>("expected");

    const QString several = QStringLiteral(R"(<c><categories pageType="content, COVER_FRONT">a,b</categories></c>)");
    // clang-format off
    QTest::newRow("several page types, first") << several << int(ZRPageTypeContent) << QStringList { "a", "b" };
    QTest::newRow("several page types, second") << several << int(ZRPageTypeCoverFront) << QStringList { "a", "b" };
    QTest::newRow("no entry") << several << int(ZRPageTypeTitle) << QStringList();
    QTest::newRow("compound type is stored by its flags") << R"(<c><categories pageType="photo,content">a</categories></c>)"
                                                          << int(ZRPageTypePhotoPage) << QStringList();
    QTest::newRow("empty parts skipped, keys kept as written") << R"(<c><categories pageType="title">,a,, B ,</categories></c>)"
                                                               << int(ZRPageTypeTitle) << QStringList { "a", " B " };
    QTest::newRow("later element replaces") << R"(<c><categories pageType="content,title">a</categories>)"
                                               R"(<categories pageType="content">b</categories></c>)" << int(ZRPageTypeContent) << QStringList { "b" };
    QTest::newRow("unknown key beside a known one") << R"(<c><categories pageType="bogus,title">a</categories></c>)"
                                                    << int(ZRPageTypeTitle) << QStringList { "a" };
    // clang-format on
}

void tst_JigEditorAbilities::categories()
{
    QFETCH(QString, xml);
    QFETCH(int, pageType);
    QTEST(ZRJigEditorAbilities(parseElement(xml)).allowedCategories(ZRPageTypeEnum(pageType)), "expected");
}

void tst_JigEditorAbilities::equality_data()
{
    QTest::addColumn<QString>("left");
    QTest::addColumn<QString>("right");
    QTest::addColumn<bool>("equal");

    const QString emptyList = QStringLiteral(R"(<c><categories pageType="content"/></c>)");
    // clang-format off
    const QString titleA = QStringLiteral(R"(<c rotatable="1"><categories pageType="title">a</categories></c>)");
    QTest::newRow("two reads of one text") << titleA << titleA << true;
    QTest::newRow("one boolean differs") << "<c/>" << R"(<c exactArticle="true"/>)" << false;
    QTest::newRow("pageType decoding to 0 stores nothing")
        << "<c/>" << R"(<c><categories pageType="bogus">a</categories><categories>b</categories></c>)" << true;
    QTest::newRow("empty text stores an empty list") << "<c/>" << emptyList << false;
    QTest::newRow("commas only store an empty list") << emptyList << R"(<c><categories pageType="content">,,,</categories></c>)"
                                                     << true;
    QTest::newRow("category order counts") << R"(<c><categories pageType="content">a,b</categories></c>)"
                                           << R"(<c><categories pageType="content">b,a</categories></c>)" << false;
    // clang-format on
}

void tst_JigEditorAbilities::equality()
{
    QFETCH(QString, left);
    QFETCH(QString, right);
    const ZRJigEditorAbilities a(parseElement(left));
    const ZRJigEditorAbilities b(parseElement(right));
    QTEST(a == b, "equal");
    QTEST(b == a, "equal");
}

QTEST_GUILESS_MAIN(tst_JigEditorAbilities)
#include "tst_jigeditorabilities.moc"
