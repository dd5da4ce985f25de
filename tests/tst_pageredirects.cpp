#include "ZRContentDropRedirectList.h"
#include "ZRPageTiltRedirectList.h"
#include "ZRTestSupport.h"
#include "ZRUserPageTiltConfig.h"

#include <QRegularExpression>
#include <QTest>

class tst_ZRPageRedirects : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }
    void contentDrop_data();
    void contentDrop();
    void tiltRedirects_data();
    void tiltRedirects();
    void tiltFilters_data();
    void tiltFilters();
    void tiltPageList_data();
    void tiltPageList();
    void rotationDisabled_data();
    void rotationDisabled();
};

using Redirects = QList<ZRPageTiltRedirect>;
using PageMap = QMap<int, int>;

using ZRTest::parseElement;

void tst_ZRPageRedirects::contentDrop_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<int>("warnings");
    QTest::addColumn<PageMap>("redirects");
    // clang-format off
    QTest::newRow("null element") << QString() << 0 << PageMap();
    QTest::newRow("range") << "<r><contentredirect from='3-5' to='2'/></r>" << 0 << PageMap { { 3, 2 }, { 4, 2 }, { 5, 2 } };
    QTest::newRow("single page") << "<r><contentredirect from='7' to='0'/></r>" << 0 << PageMap { { 7, 0 } };
    QTest::newRow("later wins") << "<r><contentredirect from='1-2' to='5'/><contentredirect from='2' to='9'/></r>" << 0
                                << PageMap { { 1, 5 }, { 2, 9 } };
    QTest::newRow("backwards range") << "<r><contentredirect from='5-3' to='1'/></r>" << 0 << PageMap();
    QTest::newRow("other elements ignored") << "<r><redirect from='1' to='2'/></r>" << 0 << PageMap();
    QTest::newRow("missing to") << "<r><contentredirect from='3'/></r>" << 1 << PageMap();
    QTest::newRow("negative to") << "<r><contentredirect from='3' to='-4'/></r>" << 1 << PageMap();
    QTest::newRow("missing from") << "<r><contentredirect to='4'/></r>" << 1 << PageMap();
    QTest::newRow("not a number") << "<r><contentredirect from='x' to='4'/></r>" << 1 << PageMap();
    QTest::newRow("negative from") << "<r><contentredirect from='-3' to='4'/></r>" << 1 << PageMap();
    QTest::newRow("bad range end") << "<r><contentredirect from='3-y' to='4'/></r>" << 1 << PageMap();
    QTest::newRow("bad ones skipped") << "<r><contentredirect from='x' to='4'/><contentredirect from='8' to='1'/>"
                                         "<contentredirect from='9'/></r>" << 2 << PageMap { { 8, 1 } };
    // clang-format on
}

void tst_ZRPageRedirects::contentDrop()
{
    QFETCH(QString, xml);
    QFETCH(int, warnings);
    QFETCH(PageMap, redirects);

    for (int i = 0; i < warnings; ++i)
        QTest::ignoreMessage(QtWarningMsg, "parse error");
    const ZRContentDropRedirectList list(parseElement(xml));
    QCOMPARE(PageMap(list), redirects);
    for (int page = -1; page <= 10; ++page)
        QCOMPARE(list.targetPage(page), redirects.value(page, page));
}

void tst_ZRPageRedirects::tiltRedirects_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<Redirects>("redirects");
    // clang-format off
    QTest::newRow("null element") << QString() << Redirects();
    QTest::newRow("all attributes") << "<r><rotationredirect from='1' to='2' angleinvert='-1'/></r>"
                                    << Redirects { ZRPageTiltRedirect(1, 2, -1) };
    QTest::newRow("angle not inverted by default") << "<r><rotationredirect from='1' to='2'/></r>"
                                                   << Redirects { ZRPageTiltRedirect(1, 2, 1) };
    QTest::newRow("page -1 kept") << "<r><rotationredirect from='-1' to='0'/></r>" << Redirects { ZRPageTiltRedirect(-1, 0, 1) };
    QTest::newRow("missing to") << "<r><rotationredirect from='1'/></r>" << Redirects();
    QTest::newRow("below -1") << "<r><rotationredirect from='-2' to='1'/></r>" << Redirects();
    QTest::newRow("document order") << "<r><rotationredirect from='4' to='3'/><rotationredirect to='3'/>"
                                       "<rotationredirect from='1' to='2' angleinvert='0'/></r>"
                                    << Redirects { ZRPageTiltRedirect(4, 3, 1), ZRPageTiltRedirect(1, 2, 0) };
    // clang-format on
}

void tst_ZRPageRedirects::tiltRedirects()
{
    QFETCH(QString, xml);
    QFETCH(Redirects, redirects);

    QCOMPARE(Redirects(ZRPageTiltRedirectList(parseElement(xml))), redirects);
}

void tst_ZRPageRedirects::tiltFilters_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<Redirects>("bySource");
    QTest::addColumn<Redirects>("byTarget");
    // clang-format off

    QTest::newRow("page 1") << 1 << Redirects { ZRPageTiltRedirect(1, 2, 1), ZRPageTiltRedirect(1, 3, -1) }
                            << Redirects { ZRPageTiltRedirect(2, 1, 1) };
    QTest::newRow("page 3") << 3 << Redirects() << Redirects { ZRPageTiltRedirect(1, 3, -1) };
    QTest::newRow("page 9") << 9 << Redirects() << Redirects();
    // clang-format on
}

void tst_ZRPageRedirects::tiltFilters()
{
    QFETCH(int, page);

    const ZRPageTiltRedirectList list(parseElement(QStringLiteral("<r><rotationredirect from='1' to='2'/>"
                                                                  "<rotationredirect from='2' to='1'/>"
                                                                  "<rotationredirect from='1' to='3' angleinvert='-1'/>"
                                                                  "</r>")));
    QTEST(Redirects(list.filterBySourcePage(page)), "bySource");
    QTEST(Redirects(list.filterByTargetPage(page)), "byTarget");
}

void tst_ZRPageRedirects::tiltPageList_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QList<int>>("pages");

    QTest::newRow("with blanks and junk") << "1, 3, x,5" << QList<int> { 1, 3, 5 };
    QTest::newRow("no ranges") << "2,3-5,6" << QList<int> { 2, 6 };
    QTest::newRow("order and duplicates kept") << "4,1,4" << QList<int> { 4, 1, 4 };
    QTest::newRow("empty pieces") << "1,,2," << QList<int> { 1, 2 };
    QTest::newRow("line breaks") << "\n 7\t,\n8 " << QList<int> { 7, 8 };
}

void tst_ZRPageRedirects::tiltPageList()
{
    QFETCH(QString, text);

    QTEST(ZRUserPageTiltConfig::decodeIntList(text), "pages");
}

void tst_ZRPageRedirects::rotationDisabled_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<int>("page");
    QTest::addColumn<bool>("disabled");
    // clang-format off
    QTest::newRow("null element") << QString() << 1 << false;
    QTest::newRow("pages but not disabled") << "<pageTilt pages='1,2'/>" << 1 << false;
    QTest::newRow("disabled everywhere") << "<pageTilt disabled='true'/>" << 17 << true;
    QTest::newRow("disabled, listed page") << "<pageTilt disabled='true' pages='1, 3'/>" << 3 << true;
    QTest::newRow("disabled, other page") << "<pageTilt disabled='true' pages='1, 3'/>" << 2 << false;
    QTest::newRow("only junk listed means all") << "<pageTilt disabled='true' pages='x'/>" << 2 << true;
    // clang-format on
}

void tst_ZRPageRedirects::rotationDisabled()
{
    QFETCH(QString, xml);
    QFETCH(int, page);

    QTEST(ZRUserPageTiltConfig(parseElement(xml)).isPageRotationDisabled(page), "disabled");
}

QTEST_GUILESS_MAIN(tst_ZRPageRedirects)
#include "tst_pageredirects.moc"
