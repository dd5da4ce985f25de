#include "ZRHumanReadable.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QTest>

#include "ContextTaggingTranslator.h"

class tst_HumanReadable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void templateName_data();
    void templateName();
    void everyKeyTranslatedInOwnContext();
    void singletonKeepsFirstLanguage();
};

void tst_HumanReadable::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
}

void tst_HumanReadable::templateName_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("name");

    QTest::newRow("canvas") << "canvas_without_frame"
                            << "Leinwand Ohne Rahmen";
    QTest::newRow("german key") << "Havanna Frame Rot"
                                << "Havanna Frame Rot";
    QTest::newRow("key without umlaut") << "Home Gruen"
                                        << "Home Grün";
    QTest::newRow("big poster") << "bigposter_without_frame"
                                << "Premium Poster digital Ohne Rahmen";
    QTest::newRow("sento") << "sento_goldgreen"
                           << "Sento";
    QTest::newRow("copper") << "designer_metalcopper"
                            << "Designer Kupfer Metall";
    QTest::newRow("driftwood") << "lancaster_driftwooddark"
                               << "Lancaster Treibholz dunkel";
    QTest::newRow("confetti white") << "confetti_white"
                                    << "Confetti Weiß";
    QTest::newRow("passepartout white") << "passepartout_white"
                                        << "Weiß";
    QTest::newRow("passepartout black") << "passepartout_black"
                                        << "Schwarz";
    QTest::newRow("passepartout gray") << "passepartout_gray"
                                       << "Grau";
    QTest::newRow("passepartout cream") << "passepartout_cream"
                                        << "Cremeweiß";
    QTest::newRow("glass") << "premiumposter_glas"
                           << "Glas";
    QTest::newRow("laminated") << "premiumposter_laminated"
                               << "Kaschierung";
    QTest::newRow("unknown key comes back") << "bamboo_frame"
                                            << "bamboo_frame";
    QTest::newRow("display name is no key") << "Home Grün"
                                            << "Home Grün";
    QTest::newRow("keys are case-sensitive") << "home gruen"
                                             << "home gruen";
    QTest::newRow("empty key") << ""
                               << "";
}

void tst_HumanReadable::templateName()
{
    QFETCH(QString, key);
    QFETCH(QString, name);

    QCOMPARE(ZRHumanReadable().templateName(key), name);
}

void tst_HumanReadable::everyKeyTranslatedInOwnContext()
{
    const QStringList keys = { "canvas_without_frame", "Havanna Frame Creme", "Havanna Frame Rot", "Havanna Frame Blau",
        "Art silber", "Art schwarz", "Art hellgold", "Poster Ohne Rahmen", "Home Gruen", "Home Kirsche", "Home Schwarz",
        "Home Gelb", "Home Blau", "Home Kiefer", "Home Ahorn", "Home Rotbuche", "Style Silber-Gold", "Style Gold",
        "Style Silber", "Style Bronze", "Style Natur", "Style Gelb", "Style Blau", "Style Rot", "Style Creme",
        "bigposter_without_frame", "luxor_pine", "confetti_black", "confetti_white", "natura_walnut", "sento_goldgreen",
        "designer_metalblack", "designer_metalsilver", "designer_metalcopper", "designer_metalgold",
        "lancaster_driftwooddark", "unique_precioussilver", "plastic_black", "plastic_white", "passepartout_white",
        "passepartout_black", "passepartout_gray", "passepartout_cream", "premiumposter_glas",
        "premiumposter_laminated" };
    QCOMPARE(keys.size(), 45);

    ContextTaggingTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    const ZRHumanReadable names;
    QCoreApplication::removeTranslator(&translator);

    const QString prefix = QStringLiteral("[ZRHumanReadable]");
    for (const QString &key : keys) {
        const QString name = names.templateName(key);
        QVERIFY2(name.startsWith(prefix), qPrintable(key + QStringLiteral(" -> ") + name));
        if (!key.contains(QLatin1Char('_')) && key != QStringLiteral("Home Gruen"))
            QCOMPARE(name.mid(prefix.size()), key);
    }
    QCOMPARE(names.templateName(QStringLiteral("Luxor Kiefer")), QStringLiteral("Luxor Kiefer"));
}

void tst_HumanReadable::singletonKeepsFirstLanguage()
{
    ZRHumanReadable *first = ZRSingleton<ZRHumanReadable>::instance();
    QVERIFY(first);
    QCOMPARE(first->metaObject()->className(), "ZRHumanReadable");
    QVERIFY(!first->parent());

    ContextTaggingTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCOMPARE(ZRSingleton<ZRHumanReadable>::instance(), first);
    QCOMPARE(first->templateName(QStringLiteral("plastic_white")), QStringLiteral("Kunststoff Weiß"));
    QCoreApplication::removeTranslator(&translator);
}

QTEST_GUILESS_MAIN(tst_HumanReadable)
#include "tst_humanreadable.moc"
