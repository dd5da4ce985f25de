#include "ZRProductionExtraPageGroupList.h"

#include <QDomDocument>
#include <QRegularExpression>
#include <QTest>

class tst_ZRProductionExtraPages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void pageList_data();
    void pageList();
    void group_data();
    void group();
    void groupList_data();
    void groupList();
};

static QDomElement parse(const QString &xml)
{
    QDomDocument document;
    if (!xml.isEmpty() && !document.setContent(xml))
        qFatal("bad test XML");
    return document.documentElement();
}

void tst_ZRProductionExtraPages::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
}

void tst_ZRProductionExtraPages::pageList_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QList<int>>("pages");

    QTest::newRow("pages and range") << "1, 3-4 ,10" << QList<int> { 1, 3, 4, 10 };
    QTest::newRow("backwards range") << "7-5" << QList<int> { 5, 6, 7 };
    QTest::newRow("open start") << "-3" << QList<int> { 0, 1, 2, 3 };
    QTest::newRow("open end") << "2-" << QList<int> { 0, 1, 2 };
    QTest::newRow("junk start") << "x-2" << QList<int> { 0, 1, 2 };
    QTest::newRow("junk dropped") << "x,4" << QList<int> { 4 };
    QTest::newRow("first and last piece") << "1-9-3" << QList<int> { 1, 2, 3 };
    QTest::newRow("too large counts as 0") << "99999999999-1" << QList<int> { 0, 1 };
    QTest::newRow("duplicates and order kept") << "9,2,9,2-3" << QList<int> { 9, 2, 9, 2, 3 };
    QTest::newRow("empty parts") << " , ,4,, " << QList<int> { 4 };
    QTest::newRow("empty") << QString() << QList<int>();
}

void tst_ZRProductionExtraPages::pageList()
{
    QFETCH(QString, text);
    QFETCH(QList<int>, pages);

    QDomDocument document;
    QDomElement element = document.createElement(QStringLiteral("target_pages"));
    element.appendChild(document.createTextNode(text));
    QCOMPARE(ZRProductionExtraPageGroup().decodeIntList(element), pages);
}

void tst_ZRProductionExtraPages::group_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QList<int>>("pages");
    QTest::addColumn<QString>("filename");
    QTest::addColumn<QString>("type");
    QTest::addColumn<int>("layer");

    QTest::newRow("complete") << "<item><target_pages>2, 5-6</target_pages>"
                                 "<pdf filename=\"insert.pdf\" type=\"design\" layer=\"3\"/></item>"
                              << QList<int> { 2, 5, 6 } << "insert.pdf"
                              << "design" << 3;
    QTest::newRow("no target pages") << "<item><pdf filename=\"insert.pdf\"/></item>" << QList<int>() << "insert.pdf"
                                     << QString() << 0;
    QTest::newRow("no pdf") << "<item><target_pages>1</target_pages></item>" << QList<int> { 1 } << QString()
                            << QString() << 0;
    QTest::newRow("malformed layer") << "<item><pdf filename=\"a.pdf\" layer=\"top\"/></item>" << QList<int>()
                                     << "a.pdf" << QString() << 0;
    QTest::newRow("first children only") << "<item><target_pages>1</target_pages><target_pages>2</target_pages>"
                                            "<pdf filename=\"a.pdf\"/><pdf filename=\"b.pdf\"/></item>"
                                         << QList<int> { 1 } << "a.pdf" << QString() << 0;
}

void tst_ZRProductionExtraPages::group()
{
    QFETCH(QString, xml);
    QFETCH(QList<int>, pages);
    QFETCH(QString, filename);
    QFETCH(QString, type);
    QFETCH(int, layer);

    const ZRProductionExtraPageGroup group(parse(xml));
    QCOMPARE(group.targetPages(), pages);
    QCOMPARE(group.content().filename(), filename);
    QCOMPARE(group.content().templateType(), type);
    QCOMPARE(group.content().targetLayer(), layer);
}

void tst_ZRProductionExtraPages::groupList_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QStringList>("filenames");
    QTest::addColumn<int>("totalPages");

    QTest::newRow("null element") << QString() << QStringList() << 0;
    QTest::newRow("one group") << "<extra_production_pages><item><target_pages>1, 3-4 ,10</target_pages>"
                                  "<pdf filename=\"a.pdf\"/></item></extra_production_pages>"
                               << QStringList { QStringLiteral("a.pdf") } << 4;
    QTest::newRow("groups in order, duplicates counted")
        << "<extra_production_pages><item><target_pages>1,1</target_pages><pdf filename=\"a.pdf\"/></item>"
           "<other/><item><pdf filename=\"b.pdf\"/></item>"
           "<item><target_pages>7-5</target_pages><pdf filename=\"c.pdf\"/></item></extra_production_pages>"
        << QStringList { QStringLiteral("a.pdf"), QStringLiteral("b.pdf"), QStringLiteral("c.pdf") } << 5;
}

void tst_ZRProductionExtraPages::groupList()
{
    QFETCH(QString, xml);
    QFETCH(QStringList, filenames);
    QFETCH(int, totalPages);

    const ZRProductionExtraPageGroupList list(parse(xml));
    QStringList read;
    for (const ZRProductionExtraPageGroup &group : list.groups())
        read.append(group.content().filename());
    QCOMPARE(read, filenames);
    QCOMPARE(list.totalPages(), totalPages);
}

QTEST_GUILESS_MAIN(tst_ZRProductionExtraPages)
#include "tst_productionextrapages.moc"
