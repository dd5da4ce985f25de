#include "ZRBasisSettings.h"
#include "ZRCSSSkinManager.h"
#include "ZRDefaultTemplateKey.h"
#include "ZRDirectoryConfig.h"
#include "ZRHumanReadable.h"
#include "ZRInitializer.h"
#include "ZRJigType.h"
#include "ZRLegacyProductTypeConfigRegistry.h"
#include "ZRLocaleAndTranslationManager.h"
#include "ZRPreview3DDescription.h"
#include "ZRProductCheckerRegistry.h"
#include "ZRProductTypeConfigRegistry.h"
#include "ZRProductTypeDescription.h"
#include "ZRSpiralConfig.h"
#include "ZRSurroundingKey.h"
#include "ZRTestSupport.h"
#include "ZRThematicCategory.h"
#include "ZRThematicCategoryRegistry.h"
#include "ZRThematicCategoryTranslationRegistry.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QThreadPool>
#include <QUrl>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace {
constexpr int threadCount = 16;
// A phase that has not finished after this long is stuck in a deadlock (the sanitizer builds are slow).
constexpr std::chrono::seconds deadlockTimeout(60);

/** Lets all threads start their work at the same moment, once every one of them is ready. */
class StartingGate
{
public:
    explicit StartingGate(int threads)
        : m_expected(threads)
    { }
    void arriveAndWait()
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        if (++m_arrived == m_expected)
            m_open.notify_all();
        else
            m_open.wait(lock, [this] { return m_arrived == m_expected; });
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_open;
    int m_arrived = 0;
    const int m_expected;
};

/** Stops the test process with a message when a phase runs into a deadlock instead of hanging it. */
class Watchdog
{
public:
    explicit Watchdog(const char *phase)
        : m_thread([this, phase] {
            std::unique_lock<std::mutex> lock(m_mutex);
            if (!m_done.wait_for(lock, deadlockTimeout, [this] { return m_finished; }))
                qFatal("Deadlock: \"%s\" did not finish within %lld seconds", phase,
                    static_cast<long long>(deadlockTimeout.count()));
        })
    { }
    ~Watchdog()
    {
        {
            std::lock_guard<std::mutex> lock(m_mutex);
            m_finished = true;
        }
        m_done.notify_all();
        m_thread.join();
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_done;
    bool m_finished = false;
    std::thread m_thread;
};

/**
 * Runs @p work(thread index) on threadCount threads released together, under a watchdog; the calling
 * thread, released with them, runs @p meanwhile unless it is empty.
 */
void runTogether(const char *phase, const std::function<void()> &meanwhile, const std::function<void(int)> &work)
{
    const Watchdog watchdog(phase);
    StartingGate gate(threadCount + 1);
    std::vector<std::thread> threads;
    threads.reserve(threadCount);
    for (int t = 0; t < threadCount; ++t) {
        threads.emplace_back([t, &gate, &work] {
            gate.arriveAndWait();
            work(t);
        });
    }
    gate.arriveAndWait();
    if (meanwhile)
        meanwhile();
    for (std::thread &thread : threads)
        thread.join();
}

/** A singleton of the test's own that counts how often it is constructed. */
class CountedService : public ZRSingleton<CountedService>
{
public:
    static std::atomic<int> constructions;
    CountedService()
    {
        ++constructions;
        // A slow constructor keeps the other threads waiting at the lock while the instance is made.
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
};
std::atomic<int> CountedService::constructions { 0 };

QString sharedName(int i)
{
    return QStringLiteral("Thema %1").arg(i);
}

QString translatedName(int i)
{
    return QStringLiteral("Topic %1").arg(i);
}

constexpr int sharedNames = 1000;
constexpr int ownNames = 100;
constexpr int writerThreads = 4;
constexpr int renamedNames = 20;

QString renamedName(int i)
{
    return QStringLiteral("Umbenannt %1").arg(i);
}

/** The visible names a renamed category may have: its English and its French translation, the name it is given. */
QStringList renamedVisibleNames(int i)
{
    return { QStringLiteral("Renamed %1").arg(i), QStringLiteral("Renommé %1").arg(i),
        QStringLiteral("Neuer Name %1").arg(i) };
}

QByteArray tsDocument(const QString &language, const QList<QPair<QString, QString>> &messages)
{
    QByteArray xml = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<!DOCTYPE TS>\n<TS version=\"2.1\" language=\""
        + language.toUtf8() + "\">\n<context>\n<name>Categories</name>\n";
    for (const auto &message : messages) {
        xml += "<message><source>" + message.first.toUtf8() + "</source><translation>" + message.second.toUtf8()
            + "</translation></message>\n";
    }
    return xml + "</context>\n</TS>\n";
}

bool writeFile(const QString &path, const QByteArray &content)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

/** Everything the editor asks of one product, as one text to compare across threads. */
QString productAnswers(const ZRProductTypeConfigRegistry *registry, const ZRProductType &type)
{
    const ZRProductTypeDescription *description = registry->description(type);
    QStringList answers { registry->articleClass(type).encodeCSV(), QString::number(registry->horizontalPages(type)),
        registry->pageTypes(type, 24).toString(), QString::number(description->safetyMargin(ZRPageType())),
        description->preview3DDescription()->url(true).toString(),
        description->classification().sizeNameWithUnit(ZRDistanceUnit(ZRDistanceUnitCM)),
        description->dateRangeContraint().maximumAllowedDate(QDate()).toString(Qt::ISODate) };
    for (int number : registry->productionNumberingList(type, 6))
        answers.append(QString::number(number));
    const ZRPageTypeList pages = description->pageTypes(24);
    for (int index = 0; index < pages.size(); ++index) {
        const ZRPageContext context(pages.at(index), description->pageAlignment(pages, index));
        answers.append(context.alignment().encodeCSV());
        const ZRSurroundingDescription surrounding = description->findSurrounding(ZRSurroundingKey(context, index));
        answers.append(surrounding.imageResource());
        // Spiral pictures are drawn on demand, each thread its own copy of the surrounding.
        const ZRSpiralConfig spiral = surrounding.spiralConfig();
        answers.append(QString::number(spiral.spiralHookImage().width()));
        const QString layout = description->findDefaultTemplate(ZRDefaultTemplateKey(context, ZRDefaultTemplateLayout));
        answers.append(ZRSingleton<ZRHumanReadable>::instance()->templateName(layout));
        for (const ZRJigTypeEnum jig : { ZRJigTypeBackground, ZRJigTypeClipart, ZRJigTypeContent, ZRJigTypeLayout }) {
            answers.append(QString::number(description->supportsJigType(ZRJigType(jig))));
            answers.append(description->allowedJigCategories(pages.at(index), ZRJigType(jig)).join(QLatin1Char('|')));
        }
    }
    return answers.join(QLatin1Char(';'));
}
} // namespace

/**
 * The process-wide registries used from many threads at once: first use of every singleton, category
 * lookups while translations are added, categories are renamed and the language changes, and queries
 * of the loaded product registry while the main thread draws a spiral binding. Each phase releases all
 * threads together; a watchdog ends the process with a message on a deadlock. Runs in a process of its
 * own: the singletons are first used inside the test.
 */
class tst_Concurrency : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void firstUseMakesOneInstanceOfEverySingleton();
    void categoryLookupsWhileTranslationsAreAdded();
    void productQueriesOnTheLoadedRegistry();

private:
    QTemporaryDir m_dir;
};

void tst_Concurrency::initTestCase()
{
    QVERIFY(m_dir.isValid());
    // One unreadable file in each place a registry reads: its warning shows how often the registry loaded.
    QVERIFY(writeFile(m_dir.filePath(QStringLiteral("current/broken.xml")), "<product"));
    QVERIFY(writeFile(m_dir.filePath(QStringLiteral("resources/products/legacy/broken.xml")), "<product"));
    QVERIFY(writeFile(m_dir.filePath(QStringLiteral("translations/broken_en_a.ts")), "<NotTS/>"));
    QList<QPair<QString, QString>> messages;
    for (int i = 0; i < sharedNames; i += 3)
        messages.append({ sharedName(i), translatedName(i) });
    for (int i = 0; i < renamedNames; ++i)
        messages.append({ renamedName(i), renamedVisibleNames(i).at(0) });
    QVERIFY(writeFile(
        m_dir.filePath(QStringLiteral("translations/categories_en_b.ts")), tsDocument(QStringLiteral("en"), messages)));

    // Read by the base services on their first use, which happens inside the test.
    qputenv("ZR_RESOURCES_DIR", m_dir.filePath(QStringLiteral("resources")).toUtf8());
    qputenv("ZR_PRODUCTS_DIR", m_dir.filePath(QStringLiteral("current")).toUtf8());
    qputenv("ZR_PRODUCTS_FALLBACK_DIR", QByteArray(ZR_EXAMPLES_DIR "/products"));
    qputenv("ZR_THEMATIC_TRANSLATIONS_DIRS", m_dir.filePath(QStringLiteral("translations")).toUtf8());
    qputenv("ZR_THUMBNAILS_DIR", QByteArray(ZR_EXAMPLES_DIR "/resources/thumbnails"));
    qputenv("ZR_LOCALE", "en_GB");
    // QtGui draws large images on the workers of Qt's pool. The workers share the pool's lists under a
    // lock inside Qt that ThreadSanitizer cannot see, in frames without a name to suppress: one worker.
    QThreadPool::globalInstance()->setMaxThreadCount(1);
}

void tst_Concurrency::firstUseMakesOneInstanceOfEverySingleton()
{
    // Each registry warns once about its unreadable file: a second construction would warn again.
    QTest::ignoreMessage(QtWarningMsg,
        qPrintable(QStringLiteral("could not open ") + m_dir.filePath(QStringLiteral("current/broken.xml"))));
    QTest::ignoreMessage(QtWarningMsg,
        qPrintable(QStringLiteral("could not open ")
            + m_dir.filePath(QStringLiteral("resources/products/legacy/broken.xml"))));
    QTest::ignoreMessage(QtWarningMsg, "No TS element at beginning.");

    using Instances = std::vector<const void *>;
    std::vector<Instances> seen(threadCount);
    runTogether("first use of the singletons", {}, [&seen](int t) {
        // Half of the threads ask in the opposite order, so that constructions overlap in every way.
        std::vector<std::function<const void *()>> uses {
            [] { return ZRSingleton<CountedService>::instance(); },
            [] { return ZRSingleton<ZRDirectoryConfig>::instance(); },
            [] { return ZRSingleton<ZRLocaleAndTranslationManager>::instance(); },
            [] { return ZRSingleton<ZRBasisSettings>::instance(); },
            [] { return ZRSingleton<ZRInitializer>::instance(); },
            [] { return ZRSingleton<ZRProductCheckerRegistry>::instance(); },
            [] { return ZRSingleton<ZRCSSSkinManager>::instance(); },
            [] { return ZRSingleton<ZRProductTypeConfigRegistry>::instance(); },
            [] { return ZRSingleton<ZRLegacyProductTypeConfigRegistry>::instance(); },
            [] { return ZRSingleton<ZRThematicCategoryTranslationRegistry>::instance(); },
            [] { return ZRSingleton<ZRThematicCategoryRegistry>::instance(); },
            [] { return ZRSingleton<ZRHumanReadable>::instance(); },
        };
        seen[t].resize(uses.size());
        for (size_t i = 0; i < uses.size(); ++i) {
            const size_t use = t % 2 ? uses.size() - 1 - i : i;
            seen[t][use] = uses[use]();
        }
    });

    QCOMPARE(CountedService::constructions.load(), 1);
    for (int t = 0; t < threadCount; ++t) {
        for (size_t i = 0; i < seen[t].size(); ++i) {
            QVERIFY(seen[t][i] != nullptr);
            QCOMPARE(seen[t][i], seen[0][i]);
        }
    }
    // The instances are the ones everybody else reaches afterwards, loaded from the configured places.
    QCOMPARE(seen[0][7], static_cast<const void *>(ZRProductTypeConfigRegistry::instance()));
    QVERIFY(ZRSingleton<ZRProductTypeConfigRegistry>::instance()->exists(
        ZRProductType(QStringLiteral("mug_classic_330ml"))));
    QCOMPARE(ZRSingleton<ZRThematicCategoryTranslationRegistry>::instance()->translate(
                 sharedName(3), QLocale(QStringLiteral("en_GB"))),
        translatedName(3));
}

void tst_Concurrency::categoryLookupsWhileTranslationsAreAdded()
{
    QList<QPair<QString, QString>> frenchMessages;
    for (int i = 0; i < renamedNames; ++i)
        frenchMessages.append({ renamedName(i), renamedVisibleNames(i).at(1) });
    const QByteArray frenchDocument = tsDocument(QStringLiteral("fr"), frenchMessages);
    std::vector<QHash<QString, int>> seen(threadCount);
    std::atomic<int> wrongTranslations { 0 };
    std::atomic<int> wrongVisibleNames { 0 };
    runTogether("category lookups while translations are added", {}, [&](int t) {
        auto *translations = ZRSingleton<ZRThematicCategoryTranslationRegistry>::instance();
        const QLocale british(QStringLiteral("en_GB"));
        const QLocale french(QStringLiteral("fr_FR"));
        if (t < writerThreads) {
            // Writers add tables of another language, entry by entry, read by the lookups below.
            for (int i = 0; i < sharedNames; ++i) {
                translations->addTranslations(french.name(), { { sharedName(i), QStringLiteral("Thème %1").arg(i) } });
                if (t == 0 && i == sharedNames / 2) {
                    // The user switches to French. The handed-over document is read before the locale
                    // follows, so no category is ever shown untranslated.
                    auto *locale = ZRSingleton<ZRLocaleAndTranslationManager>::instance();
                    locale->setThematicTranslations(frenchDocument);
                    locale->setLanguageChanged(true);
                    translations->init();
                    locale->setLocale(french);
                }
            }
            return;
        }
        ZRThematicCategoryRegistry *registry = ZRSingleton<ZRThematicCategoryRegistry>::instance();
        for (int i = 0; i < sharedNames; ++i) {
            const int n = (i * (t + 1) * 7919) % sharedNames; // a different order in each thread
            // Translations match the source's case, so only names without one are also spelt in capitals.
            const QString name = t % 2 && n % 3 ? sharedName(n).toUpper() : sharedName(n);
            const ZRThematicCategory category(name);
            seen[t].insert(sharedName(n), category.hashValue());
            category.visibleName();
            category.internalName();
            if (n % 3 == 0) {
                // The visible name, a translation in the language of the moment the category was made,
                // joins the category.
                seen[t].insert(QStringLiteral("translated ") + sharedName(n), registry->key(category.visibleName()));
                if (translations->translate(sharedName(n), british) != translatedName(n))
                    ++wrongTranslations;
            }
            const QString inFrench = translations->translate(sharedName(n), french);
            if (inFrench != sharedName(n) && inFrench != QStringLiteral("Thème %1").arg(n))
                ++wrongTranslations;
            if (i < ownNames) {
                const QString own = QStringLiteral("Faden %1 Name %2").arg(t).arg(i);
                seen[t].insert(own, registry->key(own));
            }
            // Some threads rename categories, each pass alternately to a name and back to the
            // translation, while all of them read the visible names.
            const int renamed = i % renamedNames;
            const int renamedKey = registry->key(renamedName(renamed));
            if (t % 4 == 0)
                registry->setVisibleName(
                    renamedKey, i / renamedNames % 2 ? QString() : renamedVisibleNames(renamed).at(2));
            if (!renamedVisibleNames(renamed).contains(registry->visibleName(renamedKey)))
                ++wrongVisibleNames;
        }
    });

    QCOMPARE(wrongTranslations.load(), 0);
    QCOMPARE(wrongVisibleNames.load(), 0);
    ZRThematicCategoryRegistry *registry = ZRSingleton<ZRThematicCategoryRegistry>::instance();
    for (int i = 0; i < renamedNames; ++i) {
        const int key = registry->key(renamedName(i));
        QVERIFY(renamedVisibleNames(i).contains(registry->visibleName(key)));
        // The language has changed: the translation restored is the French one.
        registry->setVisibleName(key, QString());
        QCOMPARE(registry->visibleName(key), renamedVisibleNames(i).at(1));
    }
    QHash<QString, int> keyOfName;
    for (const QHash<QString, int> &names : seen) {
        for (auto it = names.cbegin(); it != names.cend(); ++it) {
            QString name = it.key();
            if (name.startsWith(QLatin1String("translated ")))
                name = name.mid(11);
            const auto known = keyOfName.constFind(name);
            if (known == keyOfName.cend())
                keyOfName.insert(name, it.value());
            else
                QCOMPARE(it.value(), known.value());
        }
    }
    const qsizetype names = sharedNames + (threadCount - writerThreads) * ownNames;
    QCOMPARE(keyOfName.size(), names);
    const QList<int> keys = keyOfName.values();
    QCOMPARE(QSet<int>(keys.cbegin(), keys.cend()).size(), names);
    for (int i = 0; i < sharedNames; ++i) {
        QCOMPARE(ZRSingleton<ZRThematicCategoryTranslationRegistry>::instance()->translate(
                     sharedName(i), QLocale(QStringLiteral("fr_FR"))),
            QStringLiteral("Thème %1").arg(i));
    }
}

void tst_Concurrency::productQueriesOnTheLoadedRegistry()
{
    const ZRProductTypeConfigRegistry *registry = ZRSingleton<ZRProductTypeConfigRegistry>::instance();
    const ZRProductTypeList products = registry->allProducts();
    QCOMPARE(products.size(), 11);
    QHash<QString, QString> expected;
    for (const ZRProductType &type : products)
        expected.insert(type.name(), productAnswers(registry, type));
    // The wall calendar's binding, drawn by the main thread as the editor's user interface does.
    const QDomElement spirals
        = ZRTest::parseElement(QStringLiteral("<spirals count='33' hookWidth='200' hookHeight='60'/>"));
    const ZRSpiralConfig calendarSpiral(spirals);
    const QImage strip = calendarSpiral.spiralImage(Qt::Vertical);
    const QImage hook = calendarSpiral.spiralHookImage();
    // 33 loops of the default 54 by 150 with a loop width between them, turned upright.
    QCOMPARE(strip.size(), QSize(150, 33 * 54 + 32 * 54));
    QCOMPARE(hook.size(), QSize(200, 2 * 60));

    int differentPictures = 0;
    const auto drawSpirals = [&] {
        for (int round = 0; round < 5; ++round) {
            // A new spiral each round: it loads and scales its loop picture again.
            const ZRSpiralConfig spiral(spirals);
            if (spiral.spiralImage(Qt::Vertical) != strip || spiral.spiralHookImage() != hook)
                ++differentPictures;
        }
    };

    std::atomic<int> differences { 0 };
    runTogether("product queries", drawSpirals, [&](int t) {
        const ZRLegacyProductTypeConfigRegistry *legacy = ZRSingleton<ZRLegacyProductTypeConfigRegistry>::instance();
        for (int round = 0; round < 10; ++round) {
            for (int i = 0; i < products.size(); ++i) {
                const ZRProductType &type = products.at((i + t) % products.size());
                if (productAnswers(registry, type) != expected.value(type.name()))
                    ++differences;
                legacy->replacedByProduct(type);
                registry->firstValidProduct(products);
            }
            registry->allAvailableProducts();
            ZRThematicCategory::colorsCategory().color();
        }
    });
    QCOMPARE(differences.load(), 0);
    QCOMPARE(differentPictures, 0);
}

QTEST_MAIN(tst_Concurrency)
#include "tst_concurrency.moc"
