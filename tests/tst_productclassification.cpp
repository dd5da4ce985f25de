#include "ZRProductClassificationManager.h"
#include "ZRTestSupport.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QTest>

#include "ContextTaggingTranslator.h"

namespace {
ZRProductClassification classification(
    const QString &name, const QString &group, const QString &cm, const QString &inch = QString())
{
    return ZRProductClassification(ZRTest::parseElement(
        QStringLiteral("<product name='%1'><classification group='%2' cm='%3' inch='%4'/></product>")
            .arg(name, group, cm, inch)));
}

// Entries are "name;group;cm;inch".
ZRProductClassificationManager manager(const QStringList &entries)
{
    QList<ZRProductClassification> list;
    for (const QString &entry : entries) {
        const QStringList parts = entry.split(QLatin1Char(';'));
        list.append(classification(parts.value(0), parts.value(1), parts.value(2), parts.value(3)));
    }
    return ZRProductClassificationManager(list);
}

const QStringList catalogue = {
    QStringLiteral("canvas_30x20;Leinwand;30x20;12x8"), // diagonal 36.06
    QStringLiteral("canvas_20x30;Leinwand;20x30;8x12"), // same diagonal, portrait
    QStringLiteral("canvas_60x40;Leinwand;60x40;24x16"), // 72.11
    QStringLiteral("canvas_90x60;Leinwand;90x60;36x24"), // 108.17
    QStringLiteral("poster_40x30;Poster;40x30;16x12"), // 50
    QStringLiteral("poster_30x40;Poster;30x40;12x16"), // 50
    QStringLiteral("poster_75x50;Poster;75x50;30x20"), // 90.14
    QStringLiteral("alu_45x30;Foto auf Alu-Dibond;45x30;18x12"), // 54.08
    QStringLiteral("canvas_60x40_duplicate;Leinwand;60x40;24x16"),
};
} // namespace

class tst_ProductClassification : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void sizeParsing_data();
    void sizeParsing();
    void groupLatin1RoundTrip_data();
    void groupLatin1RoundTrip();
    void canCustomFormat_data();
    void canCustomFormat();
    void visibleDescription_data();
    void visibleDescription();
    void descriptionsTranslatedInGroupContext();

    void closestProduct_data();
    void closestProduct();
    void typeBySizeName_data();
    void typeBySizeName();
    void lookupsByProductType();
    void namesAndGroupsInListOrder();
};

void tst_ProductClassification::sizeParsing_data()
{
    QTest::addColumn<QString>("cm");
    QTest::addColumn<QString>("inch");
    QTest::addColumn<QSize>("sizeCm");
    QTest::addColumn<QSize>("sizeInch");
    // clang-format off
    QTest::newRow("plain") << "60x40" << "24x16" << QSize(60, 40) << QSize(24, 16);
    QTest::newRow("blanks around x") << "60 x 40" << " 24x 16 " << QSize(60, 40) << QSize(24, 16);
    QTest::newRow("width only") << "60" << "24x" << QSize(60, 0) << QSize(24, 0);
    QTest::newRow("not a number") << "abcx40" << "24xone" << QSize(0, 40) << QSize(24, 0);
    QTest::newRow("capital X is no separator") << "60X40" << "24X16" << QSize(0, 0) << QSize(0, 0);
    // clang-format on
}

void tst_ProductClassification::sizeParsing()
{
    QFETCH(QString, cm);
    QFETCH(QString, inch);
    QFETCH(QSize, sizeCm);

    const ZRProductClassification c = classification(QStringLiteral("poster"), QStringLiteral("Poster"), cm, inch);
    QCOMPARE(c.dimensions(ZRDistanceUnit(ZRDistanceUnitCM)), sizeCm);
    QCOMPARE(c.dimensions(ZRDistanceUnit(ZRDistanceUnitTenthMM)), sizeCm);
    QTEST(c.dimensions(ZRDistanceUnit(ZRDistanceUnitInch)), "sizeInch");
    QCOMPARE(c.visibleName(ZRDistanceUnit(ZRDistanceUnitMM)), cm);
    QCOMPARE(c.sizeDiagonal(), std::hypot(double(sizeCm.width()), double(sizeCm.height())));
    QCOMPARE(c.sizeNameWithUnit(ZRDistanceUnit(ZRDistanceUnitInch)), inch + QStringLiteral(" Zoll"));
}

void tst_ProductClassification::groupLatin1RoundTrip_data()
{
    QTest::addColumn<QString>("written");
    QTest::addColumn<QString>("read");
    QTest::newRow("latin-1 umlaut survives") << "Glänzend Ölbild"
                                             << "Glänzend Ölbild";
    QTest::newRow("euro sign is lost") << "Poster €"
                                       << "Poster ?";
    QTest::newRow("polish letters are lost") << "Łódź"
                                             << "?ód?";
}

void tst_ProductClassification::groupLatin1RoundTrip()
{
    QFETCH(QString, written);

    const ZRProductClassification c = classification(QStringLiteral("p"), written, QStringLiteral("10x10"));
    QTEST(c.group().value(), "read");
}

void tst_ProductClassification::canCustomFormat_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("expected");
    // clang-format off
    QTest::newRow("own group not listed") << "Leinwand" << "" << false;
    QTest::newRow("own group listed") << "Gallery Print digital" << "" << true;
    QTest::newRow("named group overrides own") << "Leinwand" << "Foto auf Alu-Dibond" << true;
    QTest::newRow("named group not listed") << "Gallery Print digital" << "Leinwand" << false;
    QTest::newRow("match is case-sensitive") << "gallery print digital" << "" << false;
    QTest::newRow("default group") << "" << "" << false;
    // clang-format on
}

void tst_ProductClassification::canCustomFormat()
{
    QFETCH(QString, group);
    QFETCH(QString, name);

    QTEST(ZRProductClassificationGroup(group).canCustomFormat(name), "expected");
}

void tst_ProductClassification::visibleDescription_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<QString>("description");
    QTest::newRow("decoration poster") << "Deko-Poster"
                                       << "Poster";
    QTest::newRow("rail") << "PGAP"
                          << "Fotoleiste als Gallery Print (Direktdruck)";
    QTest::newRow("last entry") << "MLP"
                                << "Photo Streetmap Poster";
    QTest::newRow("unknown") << "Holz"
                             << "";
    QTest::newRow("default group") << ""
                                   << "";
}

void tst_ProductClassification::visibleDescription()
{
    QFETCH(QString, group);

    QTEST(ZRProductClassificationGroup(group).visibleDescription(), "description");
}

void tst_ProductClassification::descriptionsTranslatedInGroupContext()
{
    ContextTaggingTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    ZRLookUpTable<QString, QString> table;
    ZRProductClassificationGroup().initDescriptions(&table);
    QCoreApplication::removeTranslator(&translator);

    QCOMPARE(table.size(), 24);
    QCOMPARE(table.value(QStringLiteral("Leinwand")), QStringLiteral("[ZRProductClassificationGroup]Fotoleinwand"));
    QCOMPARE(table.value(QStringLiteral("PF")), QStringLiteral("[ZRProductClassificationGroup]Foto im Rahmen"));
}

void tst_ProductClassification::closestProduct_data()
{
    QTest::addColumn<QStringList>("entries");
    QTest::addColumn<QString>("reference");
    QTest::addColumn<QString>("group");
    QTest::addColumn<QString>("expected");
    // clang-format off
    QTest::newRow("smaller material, earliest of a tie") << catalogue << "poster_40x30" << "Leinwand" << "canvas_30x20";
    QTest::newRow("nearest larger") << catalogue << "canvas_60x40" << "Poster" << "poster_75x50";
    QTest::newRow("beyond the largest") << catalogue << "canvas_90x60" << "Poster" << "poster_75x50";
    QTest::newRow("portrait and landscape tie") << catalogue << "alu_45x30" << "Poster" << "poster_40x30";
    QTest::newRow("own group gives itself") << catalogue << "canvas_60x40" << "Leinwand" << "canvas_60x40";
    QTest::newRow("missing reference gives smallest") << catalogue << "mug" << "Leinwand" << "canvas_30x20";
    QTest::newRow("group without products") << catalogue << "canvas_60x40" << "Holz" << "";
    QTest::newRow("group is case-sensitive") << catalogue << "canvas_60x40" << "leinwand" << "";
    QTest::newRow("empty manager") << QStringList() << "canvas_60x40" << "Leinwand" << "";
    // The tie goes to whichever comes first in the list, portrait or landscape.
    QTest::newRow("tie, portrait first") << QStringList { "poster_30x40;Poster;30x40", "poster_40x30;Poster;40x30", "alu_45x30;Alu;45x30" }
                                         << "alu_45x30" << "Poster" << "poster_30x40";
    // clang-format on
}

void tst_ProductClassification::closestProduct()
{
    QFETCH(QStringList, entries);
    QFETCH(QString, reference);
    QFETCH(QString, group);
    QFETCH(QString, expected);

    const ZRProductType result = manager(entries).closestProduct(ZRProductType(reference), group);
    QCOMPARE(result, ZRProductType(expected));
    QCOMPARE(result.isValid(), !expected.isEmpty());
}

void tst_ProductClassification::typeBySizeName_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<QString>("sizeName");
    QTest::addColumn<int>("unit");
    QTest::addColumn<QString>("expected");
    // clang-format off
    QTest::newRow("first of duplicates") << "Leinwand" << "60x40" << int(ZRDistanceUnitMM) << "canvas_60x40";
    QTest::newRow("inch") << "Poster" << "12x16" << int(ZRDistanceUnitInch) << "poster_30x40";
    QTest::newRow("metric name with inch unit") << "Poster" << "30x40" << int(ZRDistanceUnitInch) << "";
    QTest::newRow("size of another group") << "Poster" << "60x40" << int(ZRDistanceUnitCM) << "";
    QTest::newRow("names compared exactly") << "Leinwand" << "60 x 40" << int(ZRDistanceUnitCM) << "";
    // clang-format on
}

void tst_ProductClassification::typeBySizeName()
{
    QFETCH(QString, group);
    QFETCH(QString, sizeName);
    QFETCH(int, unit);
    QFETCH(QString, expected);

    QCOMPARE(manager(catalogue).type(
                 ZRProductClassificationGroup(group), sizeName, ZRDistanceUnit(ZRDistanceUnitEnum(unit))),
        ZRProductType(expected));
}

void tst_ProductClassification::lookupsByProductType()
{
    const ZRProductClassificationManager m = manager(catalogue);
    const ZRProductType alu(QStringLiteral("alu_45x30"));
    QCOMPARE(m.classificationName(alu, ZRDistanceUnit(ZRDistanceUnitCM)), QStringLiteral("45x30"));
    QCOMPARE(m.classificationName(alu, ZRDistanceUnit(ZRDistanceUnitInch)), QStringLiteral("18x12"));
    QCOMPARE(m.classificationGroup(alu), ZRProductClassificationGroup(QStringLiteral("Foto auf Alu-Dibond")));

    // A product without a classification element still names its product type.
    const ZRProductType mug(QStringLiteral("mug"));
    const ZRProductClassification unclassified(ZRTest::parseElement(QStringLiteral("<product name='mug'/>")));
    QCOMPARE(unclassified.productType(), mug);
    QCOMPARE(ZRProductClassificationManager({ unclassified }).classificationName(mug, ZRDistanceUnit(ZRDistanceUnitCM)),
        QString());
    QCOMPARE(m.classificationGroup(mug), ZRProductClassificationGroup());
}

void tst_ProductClassification::namesAndGroupsInListOrder()
{
    const ZRProductClassificationManager m = manager(catalogue);
    const auto names = [&m](const QString &group, ZRDistanceUnitEnum unit) {
        return m.classificationNames(ZRProductClassificationGroup(group), ZRDistanceUnit(unit));
    };
    QCOMPARE(names(QStringLiteral("Leinwand"), ZRDistanceUnitCM),
        QStringList({ "30x20", "20x30", "60x40", "90x60", "60x40" }));
    QCOMPARE(names(QStringLiteral("Poster"), ZRDistanceUnitInch), QStringList({ "16x12", "12x16", "30x20" }));
    QCOMPARE(names(QString(), ZRDistanceUnitCM), QStringList());
    QList<QString> groups;
    for (const ZRProductClassificationGroup &group : m.classificationGroups())
        groups.append(group.value());
    QCOMPARE(groups, QStringList({ "Leinwand", "Poster", "Foto auf Alu-Dibond" }));
}

QTEST_GUILESS_MAIN(tst_ProductClassification)
#include "tst_productclassification.moc"
