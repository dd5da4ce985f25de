#include "ZRCalendarHoleConfig.h"
#include "ZRTestSupport.h"

#include <QRegularExpression>
#include <QTest>

class tst_ZRCalendarHoleConfig : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }
    void read_data();
    void read();
    void compare_data();
    void compare();
};

using ZRTest::parseElement;

void tst_ZRCalendarHoleConfig::read_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<int>("diameter");
    QTest::addColumn<int>("distanceY");
    QTest::addColumn<bool>("hasHole");

    QTest::newRow("null element") << QString() << 0 << 0 << false;
    QTest::newRow("both") << "<hole diameter='6' distanceY='40'/>" << 6 << 40 << true;
    QTest::newRow("diameter only") << "<hole diameter='6'/>" << 6 << 0 << false;
    QTest::newRow("distance only") << "<hole distanceY='40'/>" << 0 << 40 << false;
    QTest::newRow("negative") << "<hole diameter='-6' distanceY='-1'/>" << -6 << -1 << true;
}

void tst_ZRCalendarHoleConfig::read()
{
    QFETCH(QString, xml);
    QFETCH(int, diameter);
    QFETCH(int, distanceY);
    QFETCH(bool, hasHole);

    const ZRCalendarHoleConfig holes(parseElement(xml));
    QCOMPARE(holes.diameter(), diameter);
    QCOMPARE(holes.distanceY(), distanceY);
    QCOMPARE(holes.hasHole(), hasHole);
}

void tst_ZRCalendarHoleConfig::compare_data()
{
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");
    QTest::addColumn<bool>("equal");
    QTest::addColumn<bool>("aLessB");
    QTest::addColumn<bool>("bLessA");

    // clang-format off
    QTest::newRow("same") << "<hole diameter='3' distanceY='2'/>" << "<hole diameter='3' distanceY='2'/>" << true << false << false;
    // Not lexicographic: each one is less than the other by a different field.
    QTest::newRow("crossed") << "<hole diameter='5' distanceY='1'/>" << "<hole diameter='3' distanceY='2'/>" << false << true << true;
    QTest::newRow("smaller distance") << "<hole diameter='3' distanceY='1'/>" << "<hole diameter='3' distanceY='2'/>" << false << true << false;
    QTest::newRow("default against holes") << QString() << "<hole diameter='3' distanceY='2'/>" << false << true << false;
    // clang-format on
}

void tst_ZRCalendarHoleConfig::compare()
{
    QFETCH(QString, a);
    QFETCH(QString, b);
    QFETCH(bool, equal);

    const ZRCalendarHoleConfig first(parseElement(a));
    const ZRCalendarHoleConfig second(parseElement(b));
    QCOMPARE(first == second, equal);
    QCOMPARE(first != second, !equal);
    QTEST(first < second, "aLessB");
    QTEST(second < first, "bLessA");
}

QTEST_GUILESS_MAIN(tst_ZRCalendarHoleConfig)
#include "tst_calendarholeconfig.moc"
