#include "ZRDateRangeConstraint.h"
#include "ZRTestSupport.h"

#include <QRegularExpression>
#include <QTest>

class tst_ZRDateRangeConstraint : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }
    void allowedDates_data();
    void allowedDates();
};

void tst_ZRDateRangeConstraint::allowedDates_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<bool>("enforced");
    QTest::addColumn<int>("firstYear");
    QTest::addColumn<int>("lastYear");

    // clang-format off
    QTest::newRow("null element") << QString() << false << 0 << 0;
    QTest::newRow("enforced, two years ahead") << "<c isEnforced='true' minimumFromCurrentYear='0' maximumFromCurrentYear='2'/>" << true << 0 << 2;
    QTest::newRow("not enforced") << "<c isEnforced='false' minimumFromCurrentYear='0' maximumFromCurrentYear='2'/>" << false << 0 << 2;
    QTest::newRow("enforced, from last year") << "<c isEnforced='1' minimumFromCurrentYear='-1' maximumFromCurrentYear='1'/>" << true << -1 << 1;
    QTest::newRow("enforced, bounds missing") << "<c isEnforced='yes'/>" << true << 0 << 0;
    // clang-format on
}

void tst_ZRDateRangeConstraint::allowedDates()
{
    QFETCH(QString, xml);
    QFETCH(bool, enforced);
    QFETCH(int, firstYear);
    QFETCH(int, lastYear);

    const ZRDateRangeConstraint constraint(ZRTest::parseElement(xml));
    const int year = QDate::currentDate().year();
    const QDate from(year + firstYear, 1, 1);
    const QDate to(year + lastYear, 1, 1);
    QCOMPARE(constraint.enforce(), enforced);
    // The upper bound is the first day of the last allowed year.
    QCOMPARE(constraint.allowedDateRange(), ZRDateRange(from, to));

    const QDate given(1999, 5, 17);
    QCOMPARE(constraint.maximumAllowedDate(given), enforced ? to : given);
    QCOMPARE(constraint.minimumAllowedDateSince(given), enforced ? from : given);
}

QTEST_GUILESS_MAIN(tst_ZRDateRangeConstraint)
#include "tst_daterangeconstraint.moc"
