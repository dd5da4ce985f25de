#include "ZRHumanReadable.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QTest>

#include "ContextTaggingTranslator.h"

class tst_HumanReadable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void templateName_data();
    void templateName();
    void translatedInOwnContext();
    void singletonKeepsFirstLanguage();
};

void tst_HumanReadable::templateName_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("name");
    // clang-format off
    QTest::newRow("canvas") << "canvas_without_frame" << "Leinwand Ohne Rahmen";
    QTest::newRow("german key") << "Havanna Frame Rot" << "Havanna Frame Rot";
    QTest::newRow("key without umlaut") << "Home Gruen" << "Home Grün";
    QTest::newRow("passepartout colour alone") << "passepartout_cream" << "Cremeweiß";
    QTest::newRow("unknown key comes back") << "bamboo_frame" << "bamboo_frame";
    QTest::newRow("display name is no key") << "Home Grün" << "Home Grün";
    QTest::newRow("keys are case-sensitive") << "home gruen" << "home gruen";
    QTest::newRow("empty key") << "" << "";
    // clang-format on
}

void tst_HumanReadable::templateName()
{
    QFETCH(QString, key);

    QTEST(ZRHumanReadable().templateName(key), "name");
}

void tst_HumanReadable::translatedInOwnContext()
{
    ContextTaggingTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    const ZRHumanReadable names;
    QCoreApplication::removeTranslator(&translator);

    QCOMPARE(names.templateName(QStringLiteral("Style Gold")), QStringLiteral("[ZRHumanReadable]Style Gold"));
    QCOMPARE(names.templateName(QStringLiteral("Home Gruen")), QStringLiteral("[ZRHumanReadable]Home Grün"));
    QCOMPARE(
        names.templateName(QStringLiteral("premiumposter_laminated")), QStringLiteral("[ZRHumanReadable]Kaschierung"));
    QCOMPARE(names.templateName(QStringLiteral("Luxor Kiefer")), QStringLiteral("Luxor Kiefer"));
}

void tst_HumanReadable::singletonKeepsFirstLanguage()
{
    ZRHumanReadable *first = ZRSingleton<ZRHumanReadable>::instance();
    QVERIFY(first);
    ContextTaggingTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCOMPARE(ZRSingleton<ZRHumanReadable>::instance(), first);
    QCOMPARE(first->templateName(QStringLiteral("plastic_white")), QStringLiteral("Kunststoff Weiß"));
    QCoreApplication::removeTranslator(&translator);
}

QTEST_GUILESS_MAIN(tst_HumanReadable)
#include "tst_humanreadable.moc"
