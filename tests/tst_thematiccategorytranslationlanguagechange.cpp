#include "ZRDirectoryConfig.h"
#include "ZRLocaleAndTranslationManager.h"
#include "ZRThematicCategoryTranslationRegistry.h"
#include "thematiccategorytestdata.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace ThematicCategoryTestData;

// The registry is first used after the language was switched during the run: it reads the
// handed-over document instead of the translation files.
class tst_ThematicCategoryTranslationLanguageChange : public QObject
{
    Q_OBJECT
private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void firstUseReadsHandedOverDocument();
};

void tst_ThematicCategoryTranslationLanguageChange::firstUseReadsHandedOverDocument()
{
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    QVERIFY(writeFile(dir.path(), QStringLiteral("cats_en_a.ts"),
        tsDocument(QStringLiteral("en"),
            { { QStringLiteral("Farben"), QStringLiteral("From file") },
                { QStringLiteral("Papierkorb"), QStringLiteral("Bin") } })));
    ZRSingleton<ZRDirectoryConfig>::instance()->setGlimmerThematicTranslationsDirectories({ dir.path() });
    ZRLocaleAndTranslationManager *locale = ZRSingleton<ZRLocaleAndTranslationManager>::instance();
    locale->setLocale(QLocale(QStringLiteral("en_GB")));
    locale->setLanguageChanged(true);
    locale->setThematicTranslations(
        tsDocument(QStringLiteral("en"), { { QStringLiteral("Farben"), QStringLiteral("From document") } }));

    const auto *registry = ZRSingleton<ZRThematicCategoryTranslationRegistry>::instance();
    const QLocale british(QStringLiteral("en_GB"));
    QCOMPARE(registry->translate(QStringLiteral("Farben"), british), QStringLiteral("From document"));
    QCOMPARE(registry->translate(QStringLiteral("Papierkorb"), british), QStringLiteral("Papierkorb"));
}

QTEST_GUILESS_MAIN(tst_ThematicCategoryTranslationLanguageChange)
#include "tst_thematiccategorytranslationlanguagechange.moc"
