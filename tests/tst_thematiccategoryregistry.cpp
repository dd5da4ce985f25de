#include "ZRDirectoryConfig.h"
#include "ZRLocaleAndTranslationManager.h"
#include "ZRThematicCategoryRegistry.h"
#include "thematiccategorytestdata.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace ThematicCategoryTestData;

namespace {
ZRThematicCategoryRegistry *registry()
{
    return ZRSingleton<ZRThematicCategoryRegistry>::instance();
}
} // namespace

// The test functions run in order and share the process-wide registry: keys depend on what came before.
class tst_ThematicCategoryRegistry : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void keysStartAtOne();
    void sameCategory_data();
    void sameCategory();
    void aliasTakesOverInternalName();
    void unknownKeysHaveNoNames();
    void emptyNameHasKeyOfItsOwn();
    void setVisibleName();

private:
    QTemporaryDir m_dir;
};

void tst_ThematicCategoryRegistry::initTestCase()
{
    QVERIFY(m_dir.isValid());
    QVERIFY(writeFile(m_dir.path(), QStringLiteral("categories_en_test.ts"),
        tsDocument(QStringLiteral("en"),
            {
                { QStringLiteral("Farben"), QStringLiteral("Colours") },
                { QStringLiteral("Farbtöne"), QStringLiteral("colours") },
                { QStringLiteral("InterneRahmen"), QStringLiteral("Frames") },
                { QStringLiteral("Rahmen"), QStringLiteral("Frames") },
                { QStringLiteral("Papierkorb"), QStringLiteral("Bin") },
            })));
    ZRSingleton<ZRDirectoryConfig>::instance()->setGlimmerThematicTranslationsDirectories({ m_dir.path() });
    ZRSingleton<ZRLocaleAndTranslationManager>::instance()->setLocale(QLocale(QStringLiteral("en_GB")));
}

void tst_ThematicCategoryRegistry::keysStartAtOne()
{
    QCOMPARE(registry()->key(QStringLiteral("Erster")), 1);
    QCOMPARE(registry()->key(QStringLiteral("Zweiter")), 2);
    QCOMPARE(registry()->key(QStringLiteral("ERSTER")), 1);
    QCOMPARE(registry()->keys(), QList<int>({ 1, 2 }));
}

void tst_ThematicCategoryRegistry::sameCategory_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::addColumn<bool>("same");

    QTest::newRow("letter case") << "Farben"
                                 << "FARBEN" << true;
    QTest::newRow("translated form") << "Farben"
                                     << "Colours" << true;
    QTest::newRow("translated form in other case") << "Farben"
                                                   << "cOLOURS" << true;
    QTest::newRow("same translation") << "Farben"
                                      << "Farbtöne" << true;
    QTest::newRow("internal frames never aliased") << "InterneRahmen"
                                                   << "Rahmen" << false;
    QTest::newRow("different names") << "Gold"
                                     << "Silber" << false;
    QTest::newRow("untranslated names") << "Urlaub"
                                        << "urlaub" << true;
}

void tst_ThematicCategoryRegistry::sameCategory()
{
    QFETCH(QString, first);
    QFETCH(QString, second);
    QFETCH(bool, same);

    const int firstKey = registry()->key(first);
    const qsizetype known = registry()->keys().size();
    const int secondKey = registry()->key(second);
    QVERIFY(firstKey > 0);
    QVERIFY(secondKey > 0);
    QCOMPARE(firstKey == secondKey, same);
    QCOMPARE(registry()->keys().size(), same ? known : known + 1);
}

void tst_ThematicCategoryRegistry::aliasTakesOverInternalName()
{
    // "Farbtöne" joined "Farben" through its visible name; the alias was stored as internal name.
    const int key = registry()->key(QStringLiteral("farben"));
    QCOMPARE(registry()->internalName(key), QStringLiteral("Farbtöne"));
    QCOMPARE(registry()->visibleName(key), QStringLiteral("colours"));

    // Spellings in another case do not replace the internal name.
    const int urlaub = registry()->key(QStringLiteral("URLAUB"));
    QCOMPARE(registry()->internalName(urlaub), QStringLiteral("Urlaub"));
}

void tst_ThematicCategoryRegistry::unknownKeysHaveNoNames()
{
    QCOMPARE(registry()->internalName(0), QString());
    QCOMPARE(registry()->visibleName(0), QString());
    QCOMPARE(registry()->internalName(100000), QString());
    QCOMPARE(registry()->visibleName(-1), QString());
}

void tst_ThematicCategoryRegistry::emptyNameHasKeyOfItsOwn()
{
    const int key = registry()->key(QString());
    QVERIFY(key > 0);
    QCOMPARE(registry()->key(QStringLiteral("")), key);
    QCOMPARE(registry()->internalName(key), QString());
    QVERIFY(registry()->key(QStringLiteral("Noch eins")) != key);
}

void tst_ThematicCategoryRegistry::setVisibleName()
{
    const int key = registry()->key(QStringLiteral("Papierkorb"));
    QCOMPARE(registry()->visibleName(key), QStringLiteral("Bin"));

    registry()->setVisibleName(key, QStringLiteral("Trash"));
    QCOMPARE(registry()->visibleName(key), QStringLiteral("Trash"));
    QCOMPARE(registry()->internalName(key), QStringLiteral("Papierkorb"));
    // The old visible name still finds the category, the new one does not.
    QCOMPARE(registry()->key(QStringLiteral("bin")), key);
    QVERIFY(registry()->key(QStringLiteral("Trash")) != key);

    registry()->setVisibleName(key, QString());
    QCOMPARE(registry()->visibleName(key), QStringLiteral("Bin"));
}

QTEST_GUILESS_MAIN(tst_ThematicCategoryRegistry)
#include "tst_thematiccategoryregistry.moc"
