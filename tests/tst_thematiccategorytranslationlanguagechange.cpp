#include "ZRDirectoryConfig.h"
#include "ZRLocaleAndTranslationManager.h"
#include "ZRTestSupport.h"
#include "ZRThematicCategoryTranslationRegistry.h"
#include "thematiccategorytestdata.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using ThematicCategoryTestData::tsDocument;

// The registry is first used after the language was switched during the run: it reads the
// handed-over document instead of the translation files.
class tst_ThematicCategoryTranslationLanguageChange : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void firstUseReadsHandedOverDocument();
};

void tst_ThematicCategoryTranslationLanguageChange::firstUseReadsHandedOverDocument()
{
    QTemporaryDir dir;
    QVERIFY(ZRTest::writeFile(dir.path(), u"cats_en_a.ts"_s,
        tsDocument(u"en"_s, { { u"Farben"_s, u"From file"_s }, { u"Papierkorb"_s, u"Bin"_s } })));
    ZRSingleton<ZRDirectoryConfig>::instance()->setGlimmerThematicTranslationsDirectories({ dir.path() });
    ZRLocaleAndTranslationManager *locale = ZRSingleton<ZRLocaleAndTranslationManager>::instance();
    locale->setLocale(QLocale(u"en_GB"_s));
    locale->setLanguageChanged(true);
    locale->setThematicTranslations(tsDocument(u"en"_s, { { u"Farben"_s, u"From document"_s } }));

    const auto *registry = ZRSingleton<ZRThematicCategoryTranslationRegistry>::instance();
    QCOMPARE(registry->translate(u"Farben"_s, locale->locale()), u"From document"_s);
    QCOMPARE(registry->translate(u"Papierkorb"_s, locale->locale()), u"Papierkorb"_s);
}

QTEST_GUILESS_MAIN(tst_ThematicCategoryTranslationLanguageChange)
#include "tst_thematiccategorytranslationlanguagechange.moc"
