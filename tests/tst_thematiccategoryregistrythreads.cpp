#include "ZRDirectoryConfig.h"
#include "ZRLocaleAndTranslationManager.h"
#include "ZRTestSupport.h"
#include "ZRThematicCategoryRegistry.h"
#include "ZRThematicCategoryTranslationRegistry.h"
#include "thematiccategorytestdata.h"

#include <QDeadlineTimer>
#include <QRegularExpression>
#include <QSemaphore>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <atomic>
#include <memory>
#include <vector>

using namespace ThematicCategoryTestData;

namespace {
constexpr int threadCount = 8;
constexpr int sharedNames = 1500;
constexpr int ownNames = 500;

QString sharedName(int i)
{
    return QStringLiteral("Thema %1").arg(i);
}

QString ownName(int thread, int i)
{
    return QStringLiteral("Faden %1 Name %2").arg(thread).arg(i);
}
} // namespace

class tst_ThematicCategoryRegistryThreads : public QObject
{
    Q_OBJECT
private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void concurrentLookupsGiveOneKeyPerName();
};

void tst_ThematicCategoryRegistryThreads::concurrentLookupsGiveOneKeyPerName()
{
    QTemporaryDir dir;
    Messages messages;
    for (int i = 0; i < sharedNames; i += 10)
        messages.append({ sharedName(i), QStringLiteral("Topic %1").arg(i) });
    QVERIFY(
        ZRTest::writeFile(dir.path(), QStringLiteral("threads_en_a.ts"), tsDocument(QStringLiteral("en"), messages)));
    ZRSingleton<ZRDirectoryConfig>::instance()->setGlimmerThematicTranslationsDirectories({ dir.path() });
    ZRSingleton<ZRLocaleAndTranslationManager>::instance()->setLocale(QLocale(QStringLiteral("en_GB")));

    // Every thread looks up the shared names (half of the threads in capitals, some by their
    // translation), its own names, and translates, while one more thread keeps adding translations.
    std::vector<QList<QPair<QString, int>>> seen(threadCount); // a name and the key of its category
    QSemaphore start;
    std::vector<QThread *> threads;
    for (int t = 0; t < threadCount; ++t) {
        threads.push_back(QThread::create([t, &seen, &start] {
            start.acquire();
            ZRThematicCategoryRegistry *registry = ZRSingleton<ZRThematicCategoryRegistry>::instance();
            const auto *translations = ZRSingleton<ZRThematicCategoryTranslationRegistry>::instance();
            const QLocale british(QStringLiteral("en_GB"));
            for (int i = 0; i < sharedNames; ++i) {
                const int n = (i * (t + 1) * 7919) % sharedNames; // a different order in each thread
                // Translations match the source's case: only names without translation are spelt in capitals.
                const QString name = t % 2 && n % 10 ? sharedName(n).toUpper() : sharedName(n);
                seen[t].append({ sharedName(n), registry->key(name) });
                if (n % 10 == 0 && t % 4 == 0) // a translation names the category of its source
                    seen[t].append({ sharedName(n), registry->key(QStringLiteral("Topic %1").arg(n)) });
                translations->translate(sharedName(n), british);
                if (i < ownNames)
                    seen[t].append({ ownName(t, i), registry->key(ownName(t, i)) });
            }
        }));
    }
    std::atomic<bool> stop { false };
    std::unique_ptr<QThread> writer(QThread::create([&stop] {
        auto *translations = ZRSingleton<ZRThematicCategoryTranslationRegistry>::instance();
        for (int i = 0; !stop.load(); ++i)
            translations->addTranslations(
                QStringLiteral("fr_FR"), { { sharedName(i % sharedNames), QStringLiteral("x") } });
    }));
    writer->start();
    for (QThread *thread : threads)
        thread->start();
    start.release(threadCount);

    // A deadlock leaves the threads running: the test fails instead of hanging (the threads are then leaked).
    const QDeadlineTimer deadline(std::chrono::seconds(120));
    for (QThread *thread : threads)
        QVERIFY2(thread->wait(deadline), "lookups did not finish: deadlock");
    stop.store(true);
    QVERIFY2(writer->wait(deadline), "translation writer did not finish");
    qDeleteAll(threads);

    QHash<QString, int> keyOfName;
    for (const auto &lookups : seen) {
        for (const auto &[name, key] : lookups) {
            const auto known = keyOfName.constFind(name);
            QCOMPARE(known == keyOfName.cend() ? key : *known, key);
            keyOfName.insert(name, key);
        }
    }
    const qsizetype names = sharedNames + threadCount * ownNames;
    QCOMPARE(keyOfName.size(), names);
    const QList<int> keys = keyOfName.values();
    QCOMPARE(QSet<int>(keys.cbegin(), keys.cend()).size(), names);
    QCOMPARE(ZRSingleton<ZRThematicCategoryRegistry>::instance()->keys().size(), names);
    QCOMPARE(ZRSingleton<ZRThematicCategoryRegistry>::instance()->keys().last(), int(names));
}

QTEST_GUILESS_MAIN(tst_ThematicCategoryRegistryThreads)
#include "tst_thematiccategoryregistrythreads.moc"
