#include "ZREmptyMeansAllSet.h"
#include "ZRPageAlignment.h"
#include "ZRPageTypeList.h"
#include "ZRTestSupport.h"

#include <QRegularExpression>
#include <QTest>

class tst_Sets : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void sharesRealKeysWith_data();
    void sharesRealKeysWith();
    void decompose_data();
    void decompose();
    void pageTypeListFromText_data();
    void pageTypeListFromText();
    void containsMatch_data();
    void containsMatch();
    void containsPanoPageType();
    void appendEnumKeepsOrder();
};

void tst_Sets::sharesRealKeysWith_data()
{
    using Set = ZREmptyMeansAllSet<ZRPageType>;
    QTest::addColumn<Set>("a");
    QTest::addColumn<Set>("b");
    QTest::addColumn<bool>("shares");
    QTest::newRow("two empty sets") << Set() << Set() << false;
    QTest::newRow("one value and empty") << Set { ZRPageTypeContent } << Set() << false;
    QTest::newRow("common value") << Set { ZRPageTypeContent, ZRPageTypeSpine } << Set { ZRPageTypeSpine } << true;
    QTest::newRow("disjoint") << Set { ZRPageTypeContent } << Set { ZRPageTypeSpine } << false;
    // Values are compared whole, not by overlapping flags.
    QTest::newRow("overlapping but different") << Set { ZRPageTypePanoramaPage } << Set { ZRPageTypeContent } << false;
}

void tst_Sets::sharesRealKeysWith()
{
    using Set = ZREmptyMeansAllSet<ZRPageType>;
    QFETCH(Set, a);
    QFETCH(Set, b);
    QFETCH(bool, shares);
    QCOMPARE(a.sharesRealKeysWith(b), shares);
    QCOMPARE(b.sharesRealKeysWith(a), shares);
}

void tst_Sets::decompose_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QList<int>>("singles");
    QTest::newRow("three flags") << (ZRPageTypeSpine | ZRPageTypeContent | ZRPageTypeCoverFront)
                                 << QList<int> { ZRPageTypeSpine, ZRPageTypeContent, ZRPageTypeCoverFront };
    QTest::newRow("zero") << 0 << QList<int>();
    QTest::newRow("covers") << int(ZRPageTypeCovers)
                            << QList<int> { ZRPageTypeSpine, ZRPageTypeCoverFront, ZRPageTypeCoverBack,
                                   ZRPageTypeCoverFlap, ZRPageTypeCoverInsideFront, ZRPageTypeCoverInsideBack,
                                   ZRPageTypeWrapBack, ZRPageTypeWrapSpine, ZRPageTypeWrapFlap, ZRPageTypeWrapFront };
}

void tst_Sets::decompose()
{
    QFETCH(int, value);
    QFETCH(QList<int>, singles);
    QCOMPARE(
        ZRTest::sortedValues(ZREmptyMeansAllSet<ZRPageType>::decompose(ZRPageType(ZRPageTypeEnum(value)))), singles);
    const auto alignments = ZREmptyMeansAllSet<ZRPageAlignment>::decompose(ZRPageAlignment(ZRPageAlignmentAll));
    QCOMPARE(alignments.size(), 7);
}

void tst_Sets::pageTypeListFromText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QList<int>>("values");
    // clang-format off
    QTest::newRow("blanks around keys") << " cover_front , spine,content_pages ,cover_back" << QList<int> { ZRPageTypeCoverFront, ZRPageTypeSpine, ZRPageTypeContentPages, ZRPageTypeCoverBack };
    QTest::newRow("compound entry") << "panorama,content" << QList<int> { ZRPageTypePanorama, ZRPageTypeContent };
    QTest::newRow("empty text is one empty entry") << QString() << QList<int> { 0 };
    QTest::newRow("unknown key stays as 0") << "spine,flyleaf" << QList<int> { ZRPageTypeSpine, ZRPageTypeNone };
    // clang-format on
}

void tst_Sets::pageTypeListFromText()
{
    QFETCH(QString, text);
    QFETCH(QList<int>, values);
    QCOMPARE(ZRTest::values(ZRPageTypeList(text)), values);
}

void tst_Sets::containsMatch_data()
{
    QTest::addColumn<int>("probe");
    QTest::addColumn<bool>("match");
    QTest::newRow("single shared bit") << int(ZRPageTypeInsideCovers) << true;
    QTest::newRow("zero") << 0 << false;
    QTest::newRow("no shared bit") << int(ZRPageTypeDoor) << false;
}

void tst_Sets::containsMatch()
{
    QFETCH(int, probe);
    ZRPageTypeList list { ZRPageTypeCoverFront, ZRPageTypeCoverInsideBack, ZRPageTypeContentPages };
    const ZRPageTypeList copy = list;
    QTEST(list.containsMatch(ZRPageType(ZRPageTypeEnum(probe))), "match");
    QCOMPARE(list, copy);
    QVERIFY(!ZRPageTypeList().containsMatch(ZRPageType(ZRPageTypeAll)));
}

void tst_Sets::containsPanoPageType()
{
    QVERIFY(!ZRPageTypeList(QStringLiteral("cover_front,panorama")).containsPanoPageType());
    QVERIFY(ZRPageTypeList({ ZRPageTypeCoverFront, ZRPageTypePanoramaPage }).containsPanoPageType());
    QVERIFY(!ZRPageTypeList().containsPanoPageType());
}

void tst_Sets::appendEnumKeepsOrder()
{
    ZRPageTypeList list { ZRPageTypeSpine };
    list.appendEnum({ ZRPageTypeWrapFront, ZRPageTypeWrapSpine });
    QCOMPARE(list.toString(), QStringLiteral("spine, wrap_front, wrap_spine"));
}

QTEST_GUILESS_MAIN(tst_Sets)
#include "tst_sets.moc"
