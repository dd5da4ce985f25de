#include "ZRDirectoryConfig.h"
#include "ZRLocaleAndTranslationManager.h"
#include "ZRTestSupport.h"
#include "ZRThematicCategoryRegistry.h"
#include "thematiccategorytestdata.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using ThematicCategoryTestData::tsDocument;

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
private Q_SLOTS:
    void initTestCase();
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void keysStartAtOne();
    void sameCategory_data();
    void sameCategory();
    void namesOfKeys();
    void setVisibleName();

private:
    QTemporaryDir m_dir;
};

void tst_ThematicCategoryRegistry::initTestCase()
{
    QVERIFY(m_dir.isValid());
    QVERIFY(ZRTest::writeFile(m_dir.path(), u"categories_en_test.ts"_s,
        tsDocument(u"en"_s,
            { { u"Farben"_s, u"Colours"_s }, { u"Farbtöne"_s, u"colours"_s }, { u"InterneRahmen"_s, u"Frames"_s },
                { u"Rahmen"_s, u"Frames"_s }, { u"Papierkorb"_s, u"Bin"_s } })));
    ZRSingleton<ZRDirectoryConfig>::instance()->setGlimmerThematicTranslationsDirectories({ m_dir.path() });
    ZRSingleton<ZRLocaleAndTranslationManager>::instance()->setLocale(QLocale(u"en_GB"_s));
}

void tst_ThematicCategoryRegistry::keysStartAtOne()
{
    QCOMPARE(registry()->key(u"Erster"_s), 1);
    QCOMPARE(registry()->key(u"Zweiter"_s), 2);
    QCOMPARE(registry()->key(u"ERSTER"_s), 1);
    QCOMPARE(registry()->keys(), QList<int>({ 1, 2 }));
}

void tst_ThematicCategoryRegistry::sameCategory_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::addColumn<bool>("same");

    QTest::newRow("letter case") << u"Urlaub"_s << u"URLAUB"_s << true;
    QTest::newRow("translated form") << u"Farben"_s << u"Colours"_s << true;
    QTest::newRow("translated form in other case") << u"Farben"_s << u"cOLOURS"_s << true;
    QTest::newRow("same translation") << u"Farben"_s << u"Farbtöne"_s << true;
    QTest::newRow("internal frames never aliased") << u"InterneRahmen"_s << u"Rahmen"_s << false;
    QTest::newRow("different names") << u"Gold"_s << u"Silber"_s << false;
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

void tst_ThematicCategoryRegistry::namesOfKeys()
{
    // "Farbtöne" joined "Farben" through its visible name; the alias was stored as internal name.
    const int colours = registry()->key(u"farben"_s);
    QCOMPARE(registry()->internalName(colours), u"Farbtöne"_s);
    QCOMPARE(registry()->visibleName(colours), u"colours"_s);
    // Spellings in another case do not replace the internal name.
    QCOMPARE(registry()->internalName(registry()->key(u"urlaub"_s)), u"Urlaub"_s);

    QCOMPARE(registry()->internalName(0), QString());
    QCOMPARE(registry()->visibleName(0), QString());
    QCOMPARE(registry()->internalName(100000), QString());

    const int empty = registry()->key(QString());
    QVERIFY(empty > 0);
    QCOMPARE(registry()->key(u""_s), empty);
    QVERIFY(registry()->key(u"Noch eins"_s) != empty);
}

void tst_ThematicCategoryRegistry::setVisibleName()
{
    const int key = registry()->key(u"Papierkorb"_s);
    QCOMPARE(registry()->visibleName(key), u"Bin"_s);

    registry()->setVisibleName(key, u"Trash"_s);
    QCOMPARE(registry()->visibleName(key), u"Trash"_s);
    QCOMPARE(registry()->internalName(key), u"Papierkorb"_s);
    // The old visible name still finds the category, the new one does not.
    QCOMPARE(registry()->key(u"bin"_s), key);
    QVERIFY(registry()->key(u"Trash"_s) != key);

    registry()->setVisibleName(key, QString());
    QCOMPARE(registry()->visibleName(key), u"Bin"_s);
}

QTEST_GUILESS_MAIN(tst_ThematicCategoryRegistry)
#include "tst_thematiccategoryregistry.moc"
