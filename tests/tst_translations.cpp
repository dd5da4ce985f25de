// The built English translation, loaded the way an application loads it, seen through the library's own
// calls for every translation context.
#include "ZRDistanceUnit.h"
#include "ZRFotoBookShape.h"
#include "ZRFotoPaperType.h"
#include "ZRHumanReadable.h"
#include "ZRJigType.h"
#include "ZRPageConstraint.h"
#include "ZRPaperAndBinding.h"
#include "ZRPreview3DDescription.h"
#include "ZRProductClassificationGroup.h"
#include "ZRTestSupport.h"
#include "ZRThematicCategory.h"
#include "ZRThematicCategorySet.h"

#include <QCoreApplication>
#include <QLocale>
#include <QRegularExpression>
#include <QTest>
#include <QTranslator>
#include <QUrlQuery>

class tst_Translations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }
    void english_data();
    void english();

private:
    QTranslator m_translator;
};

void tst_Translations::initTestCase()
{
    // Before the first call into the library: several of its tables are translated once per process.
    QVERIFY2(m_translator.load(QLocale(QLocale::English, QLocale::UnitedStates), QStringLiteral("ZRProductProperties"),
                 QStringLiteral("_"), QStringLiteral(ZR_TRANSLATIONS_BUILD_DIR)),
        ZR_TRANSLATIONS_BUILD_DIR "/ZRProductProperties_en.qm");
    QVERIFY(QCoreApplication::installTranslator(&m_translator));
}

void tst_Translations::english_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("english");

    ZRThematicCategorySet various;
    various.insertCategoryVarious();
    const ZRPreview3DDescription preview(
        ZRTest::parseElement(QStringLiteral("<product><preview3D><mesh file=\"mug.obj\"/></preview3D></product>")));
    QTest::newRow("ZRJigType") << ZRJigType(ZRJigTypeFrame).describe() << "Frame";
    QTest::newRow("ZRJigType passe-partout key describes the mask")
        << ZRJigType(QStringLiteral("passepartout")).describe() << "Mask";
    QTest::newRow("ZRFotoBookShape product title")
        << ZRFotoBookShape(QStringLiteral("a4-landscape")).completeDescription()
        << "ZERA PHOTO BOOK Large Panorama (approx. 28 x 21 cm)";
    QTest::newRow("ZRThematicCategory show-all key") << ZRThematicCategory::categoryAll().internalName() << "Show all";
    QTest::newRow("ZRThematicCategorySet various") << various.toDataStringList().join(QLatin1Char(',')) << "Other";
    QTest::newRow("ZRProductClassificationGroup shares a text")
        << ZRProductClassificationGroup(QStringLiteral("Deko-Poster")).visibleDescription() << "Poster";
    QTest::newRow("ZRHumanReadable key without umlaut")
        << ZRSingleton<ZRHumanReadable>::instance()->templateName(QStringLiteral("Home Gruen")) << "Home Green";
    QTest::newRow("QObject preview title")
        << QUrlQuery(preview.url(false)).queryItemValue(QStringLiteral("title"), QUrl::FullyDecoded)
        << "Product preview";
    QTest::newRow("ZRPageConstraint diagnostic, untranslated")
        << ZRPageConstraint(ZRPageType(QStringLiteral("spine"))).describe() << "SeitenTypen: {spine} Alignment {}";
    QTest::newRow("ZRPageBinding and ZRPaperType")
        << ZRPaperAndBinding(ZRPaperType(ZRPaperTypePremiumMatt), ZRPageBinding(ZRPageBindingLayflat)).describe()
        << "Layflat binding / Premium matte photo paper";
    QTest::newRow("ZRFotoPaperType") << ZRFotoPaperType(ZRFotoPaperTypeSilk).humanReadableName() << "Silk finish";
    QTest::newRow("ZRDistanceUnit") << ZRDistanceUnit(ZRDistanceUnitInch).humanReadableName() << "in";
}

void tst_Translations::english()
{
    QFETCH(QString, text);
    QFETCH(QString, english);
    QCOMPARE(text, english);
}

QTEST_GUILESS_MAIN(tst_Translations)

#include "tst_translations.moc"
