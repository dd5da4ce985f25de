#include "ZREmptyMeansAllSet.h"
#include "ZRPageAlignment.h"
#include "ZRPageTypeList.h"
#include "ZRSingleton.h"
#include "ZRTestSupport.h"

#include <QAtomicInt>
#include <QRegularExpression>
#include <QSemaphore>
#include <QTest>
#include <QThread>

#include <memory>
#include <vector>

namespace {
QAtomicInt constructions;

/** Slow to build, so that concurrent first calls really overlap. */
class SlowService
{
public:
    SlowService()
    {
        constructions.ref();
        QThread::msleep(50);
    }
};
} // namespace

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
    void concurrentFirstInstanceCreatesOne();
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
                                 << QList<int> { 1, 8, 0x20 };
    QTest::newRow("zero") << 0 << QList<int>();
    QTest::newRow("covers") << int(ZRPageTypeCovers)
                            << QList<int> { 1, 0x20, 0x40, 0x80, 0x100, 0x200, 0x10000, 0x20000, 0x40000, 0x80000 };
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
    QTest::newRow("blanks around keys") << " cover_front , spine,content_pages ,cover_back" << QList<int> { 0x20, 1, 0x800, 0x40 };
    QTest::newRow("compound entry") << "panorama,content" << QList<int> { 0x200000, 8 };
    QTest::newRow("empty text is one empty entry") << QString() << QList<int> { 0 };
    QTest::newRow("unknown key stays as 0") << "spine,flyleaf" << QList<int> { 1, 0 };
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

void tst_Sets::concurrentFirstInstanceCreatesOne()
{
    constexpr int threadCount = 16;
    QSemaphore start;
    std::vector<SlowService *> seen(threadCount, nullptr);
    std::vector<std::unique_ptr<QThread>> threads;
    for (int i = 0; i < threadCount; ++i) {
        threads.emplace_back(QThread::create([&, i] {
            start.acquire();
            seen[i] = ZRSingleton<SlowService>::instance();
        }));
        threads.back()->start();
    }
    start.release(threadCount);
    for (auto &thread : threads)
        QVERIFY(thread->wait(10000));
    QCOMPARE(constructions.loadRelaxed(), 1);
    for (SlowService *instance : seen)
        QCOMPARE(instance, ZRSingleton<SlowService>::instance());
}

QTEST_GUILESS_MAIN(tst_Sets)
#include "tst_sets.moc"
