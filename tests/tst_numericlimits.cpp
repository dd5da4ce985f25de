#include "ZRProductTypeDescription.h"
#include "ZRSpiralConfig.h"

#include <QDomDocument>
#include <QRegularExpression>
#include <QTest>

#include <limits>

namespace {
constexpr int largest = std::numeric_limits<int>::max();
constexpr int smallest = std::numeric_limits<int>::min();

QDomElement parse(const QString &xml)
{
    QDomDocument document;
    if (!document.setContent(xml))
        qFatal("bad test XML");
    return document.documentElement();
}
} // namespace

/**
 * Numbers at the ends of the range of int in product descriptions: the answers stay within int instead
 * of overflowing (the fuzz target of product descriptions found these faults).
 */
class tst_NumericLimits : public QObject
{
    Q_OBJECT
private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void productionNumberingStopsAtTheLargestInt_data();
    void productionNumberingStopsAtTheLargestInt();
    void spiralSizeIsHeldToTheRangeOfInt_data();
    void spiralSizeIsHeldToTheRangeOfInt();
    void hookTooHighToDrawGivesNoImage();
};

void tst_NumericLimits::productionNumberingStopsAtTheLargestInt_data()
{
    QTest::addColumn<QString>("numbers");
    QTest::addColumn<int>("count");
    QTest::addColumn<QList<int>>("expected");

    QTest::newRow("counting on to the largest int")
        << "2147483646" << 3 << QList<int> { largest - 1, largest, largest };
    QTest::newRow("starting at the largest int") << "2147483647" << 2 << QList<int> { largest, largest };
    QTest::newRow("ordinary numbers") << "5" << 3 << QList<int> { 5, 6, 7 };
}

void tst_NumericLimits::productionNumberingStopsAtTheLargestInt()
{
    QFETCH(QString, numbers);
    QFETCH(int, count);
    QFETCH(QList<int>, expected);

    const ZRProductTypeDescription description(parse(
        QStringLiteral("<product name='book'><productionnumbering>%1</productionnumbering></product>").arg(numbers)));
    QCOMPARE(description.productionNumberingList(count), expected);
}

void tst_NumericLimits::spiralSizeIsHeldToTheRangeOfInt_data()
{
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<int>("length");

    QTest::newRow("ordinary row") << "count='3'" << 3 * 54 + 2 * 30;
    QTest::newRow("largest count") << "count='2147483647'" << largest;
    QTest::newRow("smallest count") << "count='-2147483648'" << smallest;
    QTest::newRow("huge loops") << "count='2' loopWidth='2147483647' loopDistance='2147483647'" << largest;
    QTest::newRow("huge negative distance") << "count='3' loopDistance='-2147483648'" << smallest;
}

void tst_NumericLimits::spiralSizeIsHeldToTheRangeOfInt()
{
    QFETCH(QString, attributes);
    QFETCH(int, length);

    const ZRSpiralConfig spiral(parse(QStringLiteral("<spirals %1/>").arg(attributes)));
    QCOMPARE(spiral.spiralSize(Qt::Horizontal), QSize(length, 150));
    QCOMPARE(spiral.spiralSize(Qt::Vertical), QSize(150, length));
}

void tst_NumericLimits::hookTooHighToDrawGivesNoImage()
{
    // Twice the hook height does not fit in int: no image, and no overflow computing its size.
    const ZRSpiralConfig spiral(parse(QStringLiteral("<spirals count='5' hookWidth='10' hookHeight='2147483647'/>")));
    QVERIFY(spiral.spiralHookImage().isNull());
}

QTEST_MAIN(tst_NumericLimits)
#include "tst_numericlimits.moc"
