#include "ZRDateRangeConstraint.h"

#include <QDomDocument>
#include <QRegularExpression>
#include <QTest>

class tst_ZRDateRangeConstraint : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void allowedDates_data();
    void allowedDates();
};

static QDomElement parse(const QString &xml)
{
    QDomDocument document;
    if (!xml.isEmpty() && !document.setContent(xml))
        qFatal("bad test XML");
    return document.documentElement();
}

void tst_ZRDateRangeConstraint::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
}

void tst_ZRDateRangeConstraint::allowedDates_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<bool>("enforced");
    QTest::addColumn<int>("firstYear");
    QTest::addColumn<int>("lastYear");

    QTest::newRow("null element") << QString() << false << 0 << 0;
    QTest::newRow("enforced, two years ahead")
        << "<dateRangeConstraint isEnforced=\"true\" minimumFromCurrentYear=\"0\" maximumFromCurrentYear=\"2\"/>"
        << true << 0 << 2;
    QTest::newRow("not enforced")
        << "<dateRangeConstraint isEnforced=\"false\" minimumFromCurrentYear=\"0\" maximumFromCurrentYear=\"2\"/>"
        << false << 0 << 2;
    QTest::newRow("enforced, from last year")
        << "<dateRangeConstraint isEnforced=\"1\" minimumFromCurrentYear=\"-1\" maximumFromCurrentYear=\"1\"/>" << true
        << -1 << 1;
    QTest::newRow("enforced, bounds missing") << "<dateRangeConstraint isEnforced=\"yes\"/>" << true << 0 << 0;
}

void tst_ZRDateRangeConstraint::allowedDates()
{
    QFETCH(QString, xml);
    QFETCH(bool, enforced);
    QFETCH(int, firstYear);
    QFETCH(int, lastYear);

    const ZRDateRangeConstraint constraint(parse(xml));
    const int year = QDate::currentDate().year();
    const QDate from(year + firstYear, 1, 1);
    const QDate to(year + lastYear, 1, 1);
    QCOMPARE(constraint.enforce(), enforced);
    QCOMPARE(constraint.allowedDateRange(), ZRDateRange(from, to));

    const QDate given(1999, 5, 17);
    QCOMPARE(constraint.maximumAllowedDate(given), enforced ? to : given);
    QCOMPARE(constraint.minimumAllowedDateSince(given), enforced ? from : given);
}

QTEST_GUILESS_MAIN(tst_ZRDateRangeConstraint)
#include "tst_daterangeconstraint.moc"
