#include "ZRArticleClass.h"
#include "ZRJigType.h"
#include "ZRPageAlignment.h"
#include "ZRPageNamingStyle.h"
#include "ZRPageType.h"
#include "ZRXMLRewriterStrategy.h"

#include <QRegularExpression>
#include <QTest>

namespace {
enum ProbeEnum : int
{
    ProbeNone = 0,
    ProbeLow = 1,
    ProbeHigh = 2,
    ProbeWide = 4,
};

/** A value class that widens by an extra flag, to see that expandTo(wrapper) dispatches to the override. */
class Probe : public ZREnumWrapper<ProbeEnum>
{
public:
    Probe(ProbeEnum value = ProbeNone)
        : ZREnumWrapper(value)
    { }
    using ZREnumWrapper::expandTo;
    ZREnumWrapper &expandTo(ProbeEnum other) override
    {
        m_value = ProbeEnum(m_value | other | ProbeWide);
        return *this;
    }

protected:
    void fillTable(Table *table) const override { table->insert({ { "low", ProbeLow }, { "high", ProbeHigh } }); }
};

/** A second wrapper of an enumeration whose table lives in a library, with rows of its own. */
template<typename E> class ForeignRows : public ZREnumWrapper<E>
{
protected:
    void fillTable(typename ZREnumWrapper<E>::Table *table) const override
    {
        table->insert(QStringLiteral("probe-only-row"), E(1));
    }
};
} // namespace

class tst_EnumTable : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void decodeCSV_data();
    void decodeCSV();
    void encodeCSV_data();
    void encodeCSV();
    void synonymsKeepTheFirstKeyForOutput();
    void laterRowOverwritesTheValueOfAKey();
    void combinedRowsEncodeExactlyButListBitByBit();
    void signedComparison();
    void flagArithmetic();
    void expandToWithWrapperUsesOverride();
    void splitToBits_data();
    void splitToBits();
    void articleClassKeepsAll64Bits();
    void oneTablePerEnumerationAcrossLibraries();
};

void tst_EnumTable::decodeCSV_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("expected");
    QTest::newRow("empty") << QString() << 0;
    QTest::newRow("comma between blanks") << " , " << 0;
    QTest::newRow("capitals and blanks") << "  LEFT , Right " << int(ZRPageAlignmentLeft | ZRPageAlignmentRight);
    QTest::newRow("known and unknown") << "top,sideways" << int(ZRPageAlignmentTop);
    QTest::newRow("empty parts between keys") << "top,,bottom," << int(ZRPageAlignmentTop | ZRPageAlignmentBottom);
    QTest::newRow("all") << "all" << 0x7F;
    QTest::newRow("default surrounding alignments") << "left,right,top,bottom,center,middle" << 0x77;
}

void tst_EnumTable::decodeCSV()
{
    QFETCH(QString, text);
    QTEST(int(ZRPageAlignment(text).value()), "expected");
}

void tst_EnumTable::encodeCSV_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QStringList>("list");
    // clang-format off
    QTest::newRow("zero gives the unknown text") << 0 << "UNKOWN" << QStringList();
    QTest::newRow("two bits, lower first") << (2 | 1) << "book, calendar" << QStringList { "book", "calendar" };
    QTest::newRow("bit without key") << (128 | 1) << "book, UNKOWN" << QStringList { "book", "UNKOWN" };
    QTest::newRow("bit 21 is none") << 0x200000 << "none" << QStringList { "none" };
    QTest::newRow("bit 31 alone") << int(0x80000000u) << "UNKOWN" << QStringList();
    QTest::newRow("bit 31 with others") << int(0x80000001u) << "UNKOWN" << QStringList();
    // clang-format on
}

void tst_EnumTable::encodeCSV()
{
    QFETCH(int, value);
    const ZRPageNamingStyle style { ZRPageNamingStyleEnum(value) };
    QTEST(style.encodeCSV(), "expected");
    QTEST(style.enumToStringTable()->encodeAsList(style.value()), "list");
}

void tst_EnumTable::synonymsKeepTheFirstKeyForOutput()
{
    const ZRJigType frame(QStringLiteral("rahmen"));
    QCOMPARE(frame.value(), ZRJigTypeFrame);
    QCOMPARE(frame.encode(), QStringLiteral("frame"));
    QCOMPARE(ZRJigType(QStringLiteral("HINTERGRUND")).encode(), QStringLiteral("background"));
    QCOMPARE(ZRJigType(QStringLiteral("Layouts")).encode(), QStringLiteral("layout"));
    // A combination of flags has no key of its own.
    QCOMPARE(ZRJigType(QStringLiteral("frame,layout")).encode(), QString());
    QCOMPARE(ZRPageNamingStyle(QStringLiteral("slipcase")).encode(), QStringLiteral("slipcase"));
}

void tst_EnumTable::laterRowOverwritesTheValueOfAKey()
{
    ZREnumToStringTable<ProbeEnum> table;
    table.insert({ { "Low", ProbeLow }, { "low", ProbeHigh } });
    QCOMPARE(table.decodeCSV(QStringLiteral("LOW")), ProbeHigh);
    QCOMPARE(table.keyOf(ProbeLow), QStringLiteral("Low"));
    QCOMPARE(table.keyOf(ProbeHigh), QStringLiteral("low"));
}

void tst_EnumTable::combinedRowsEncodeExactlyButListBitByBit()
{
    const ZRXMLRewriterStrategy strategy(QStringLiteral("RewriteOneSidedEasyToTwoSidedVario"));
    QCOMPARE(int(strategy.value()), 5);
    QCOMPARE(strategy.encode(), QStringLiteral("RewriteOneSidedEasyToTwoSidedVario"));
    QCOMPARE(strategy.encodeCSV(), QStringLiteral("RewriteOneToTwoSides, RewriteEasyToVario"));
    QCOMPARE(int(ZRXMLRewriterStrategy(QStringLiteral("RewriteOneSidedVario10ToTwoSidedVario5")).value()), 9);
    QCOMPARE(int(ZRXMLRewriterStrategy(QStringLiteral("disabled")).value()), 0);
}

void tst_EnumTable::signedComparison()
{
    const ZRPageNamingStyle slipcase(ZRPageNamingSlipcase);
    const ZRPageNamingStyle book(ZRPageNamingBook);
    const ZRPageNamingStyle unknown;
    QVERIFY(slipcase < unknown);
    QVERIFY(slipcase < book);
    QVERIFY(book > unknown);
    QVERIFY(book <= book);
    QVERIFY(!(book < book));
}

void tst_EnumTable::flagArithmetic()
{
    ZRPageType type(ZRPageTypeContent);
    type |= ZRPageTypePanorama;
    QCOMPARE(type.value(), ZRPageTypePanoramaPage);
    QCOMPARE(type & ZRPageType(ZRPageTypePanorama), ZRPageTypePanorama);
    QCOMPARE(type.reducedTo(ZRPageTypeContent), ZRPageTypeContent);
    QCOMPARE(type.value(), ZRPageTypePanoramaPage);
    type.exclude(ZRPageTypePanorama);
    QCOMPARE(type.value(), ZRPageTypeContent);
    type.reduceTo(ZRPageTypeSpine);
    QVERIFY(!type.isValid());
    QVERIFY(ZRPageType(ZRPageTypeCovers) != ZRPageType(ZRPageTypeAll));
}

void tst_EnumTable::expandToWithWrapperUsesOverride()
{
    Probe probe(ProbeLow);
    const Probe other(ProbeHigh);
    ZREnumWrapper<ProbeEnum> &base = probe;
    base.expandTo(other);
    QCOMPARE(probe.value(), ProbeEnum(ProbeLow | ProbeHigh | ProbeWide));
}

void tst_EnumTable::splitToBits_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QList<int>>("bits");
    QTest::newRow("zero") << 0 << QList<int>();
    QTest::newRow("three flags") << 0x300008 << QList<int> { 8, 0x100000, 0x200000 };
    QTest::newRow("bits without keys count too") << 0x80000 << QList<int> { 0x80000 };
    QTest::newRow("sign bit") << int(0x80000008u) << QList<int>();
}

void tst_EnumTable::splitToBits()
{
    QFETCH(int, value);
    const QSet<ZRPageTypeEnum> split = ZRPageType().enumToStringTable()->splitToBits(ZRPageTypeEnum(value));
    QList<int> actual;
    for (ZRPageTypeEnum bit : split)
        actual.append(int(bit));
    std::sort(actual.begin(), actual.end());
    QTEST(actual, "bits");
}

void tst_EnumTable::articleClassKeepsAll64Bits()
{
    const ZRArticleClass wallDecor(QStringLiteral("walldecor, card"));
    QCOMPARE(quint64(wallDecor.value()), (quint64(1) << 44) | 8);
    QCOMPARE(wallDecor.encodeCSV(), QStringLiteral("card, walldecor"));
    QCOMPARE(quint64(ZRArticleClass(QStringLiteral("unknown")).value()), quint64(0));
}

void tst_EnumTable::oneTablePerEnumerationAcrossLibraries()
{
    // The tables are built inside the libraries first; a wrapper with other rows must then see them,
    // not build a second table of its own in this program.
    QCOMPARE(ZRPageType(QStringLiteral("content")).value(), ZRPageTypeContent);
    QCOMPARE(ZRJigType(QStringLiteral("layout")).value(), ZRJigTypeLayout);
    const ForeignRows<ZRPageTypeEnum> pageTypeProbe;
    QVERIFY(pageTypeProbe.enumToStringTable()->containsKey(QStringLiteral("content")));
    QVERIFY(!pageTypeProbe.enumToStringTable()->containsKey(QStringLiteral("probe-only-row")));
    const ForeignRows<ZRJigTypeEnum> jigProbe;
    QVERIFY(jigProbe.enumToStringTable()->containsKey(QStringLiteral("Hintergrund")));
    QVERIFY(!jigProbe.enumToStringTable()->containsKey(QStringLiteral("probe-only-row")));
}

QTEST_GUILESS_MAIN(tst_EnumTable)
#include "tst_enumtable.moc"
