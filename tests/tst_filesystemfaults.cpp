#include "ZRDirectoryConfig.h"
#include "ZRLegacyProductTypeConfigRegistry.h"
#include "ZRLocaleAndTranslationManager.h"
#include "ZRProductTypeConfigRegistryAbstract.h"
#include "ZRProductTypeDescription.h"
#include "ZRProductTypeDescriptionReader.h"
#include "ZRThematicCategory.h"
#include "ZRThematicCategoryTranslationRegistry.h"

#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace {
enum class Fault
{
    Missing,
    Directory,
    Fifo,
    LinkToFifo,
    LinkToDevice,
    DanglingLink,
    LinkLoop,
    Empty,
    Sparse
};

const QList<QPair<const char *, Fault>> faults { { "directory", Fault::Directory }, { "FIFO", Fault::Fifo },
    { "link to a FIFO", Fault::LinkToFifo }, { "link to /dev/zero", Fault::LinkToDevice },
    { "dangling link", Fault::DanglingLink }, { "link to itself", Fault::LinkLoop }, { "0 bytes", Fault::Empty },
    { "sparse 3 GiB", Fault::Sparse } };

constexpr qint64 threeGiB = qint64(3) << 30;

/** The file name stem of a fault ("link_to_a_FIFO"). */
QString stem(const char *faultName)
{
    return QString::fromLatin1(faultName).replace(QRegularExpression(QStringLiteral("\\W")), QStringLiteral("_"));
}

bool write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(content) == content.size();
}

bool makeFifo(const QString &path)
{
    return ::mkfifo(QFile::encodeName(path).constData(), 0644) == 0;
}

/** Puts @p fault at @p path; false when the file system refuses. */
bool make(Fault fault, const QString &path)
{
    switch (fault) {
    case Fault::Missing:
        return !QFileInfo::exists(path);
    case Fault::Directory:
        return QDir().mkpath(path);
    case Fault::Fifo:
        return makeFifo(path);
    case Fault::LinkToFifo:
        return makeFifo(path + QStringLiteral(".pipe")) && QFile::link(path + QStringLiteral(".pipe"), path);
    case Fault::LinkToDevice:
        return QFile::link(QStringLiteral("/dev/zero"), path);
    case Fault::DanglingLink:
        return QFile::link(path + QStringLiteral(".missing"), path);
    case Fault::LinkLoop:
        return QFile::link(path, path);
    case Fault::Empty:
        return write(path, QByteArray());
    case Fault::Sparse: {
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.resize(threeGiB);
    }
    }
    return false;
}

QByteArray product(const char *name)
{
    return QByteArray("<products><product name='") + name + "' class='mug' binding='wrapped'/></products>";
}

QByteArray translations(const char *source, const char *translation)
{
    return QByteArray("<!DOCTYPE TS><TS version='2.1' language='en'><context><message><source>") + source
        + "</source><translation>" + translation + "</translation></message></context></TS>";
}

/** Expects @p message (with the path for "%1") once for every entry that @p it lists and that is not one of @p good. */
void expectPerListedFault(QDirIterator &it, const QStringList &good, const QString &message)
{
    while (it.hasNext()) {
        it.next();
        if (!good.contains(it.fileName()))
            QTest::ignoreMessage(QtWarningMsg,
                qPrintable(
                    message.contains(QLatin1String("%1")) ? message.arg(it.fileInfo().absoluteFilePath()) : message));
    }
}

class DirectoryRegistry : public ZRProductTypeConfigRegistryAbstract
{
public:
    explicit DirectoryRegistry(const QDir &dir)
        : m_dir(dir)
    {
        load();
    }
    QList<QDir> supervisedDirs() const override { return { m_dir }; }

private:
    QDir m_dir;
};

class TranslationRegistry : public ZRThematicCategoryTranslationRegistry
{
};

const QStringList goodProducts { QStringLiteral("good.xml"), QStringLiteral("second.xml") };
} // namespace

Q_DECLARE_METATYPE(Fault)

class tst_FileSystemFaults : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void readFileRefuses_data();
    void readFileRefuses();
    void colourTableRefuses_data();
    void colourTableRefuses();
    void changedAfterListing_data();
    void changedAfterListing();
    void readDirLoadsTheGoodFiles();
    void registriesLoadTheGoodFiles();
    void unreadableFileIsSkipped();

private:
    QString path(const QString &name) const { return m_dir.filePath(name); }

    QTemporaryDir m_dir;
};

void tst_FileSystemFaults::initTestCase()
{
    QVERIFY(m_dir.isValid());
    ZRSingleton<ZRLocaleAndTranslationManager>::instance()->setLocale(QLocale(QLocale::English));
    ZRDirectoryConfig *config = ZRSingleton<ZRDirectoryConfig>::instance();
    config->setResourcesDir(QDir(path(QStringLiteral("resources"))));
    config->setGlimmerThematicTranslationsDirectories({ path(QStringLiteral("translations")) });

    const QString legacy = QStringLiteral("resources/products/legacy/");
    QVERIFY(QDir().mkpath(path(legacy)) && QDir().mkpath(path(QStringLiteral("translations"))));
    QVERIFY(QDir().mkpath(path(QStringLiteral("products"))));
    QVERIFY(write(path(QStringLiteral("products/good.xml")), product("good")));
    QVERIFY(write(path(QStringLiteral("products/second.xml")), product("second")));
    QVERIFY(write(path(legacy + QStringLiteral("good.xml")), product("retired")));
    QVERIFY(write(path(QStringLiteral("translations/cats_en_good.ts")), translations("Rot", "Red")));
    for (const auto &[name, fault] : faults) {
        const QString file = stem(name);
        QVERIFY2(make(fault, path(QStringLiteral("products/") + file + QStringLiteral(".xml"))), name);
        QVERIFY2(make(fault, path(legacy + file + QStringLiteral(".xml"))), name);
        QVERIFY2(make(fault, path(QStringLiteral("translations/cats_en_") + file + QStringLiteral(".ts"))), name);
    }
}

void tst_FileSystemFaults::readFileRefuses_data()
{
    QTest::addColumn<QString>("file");
    for (const auto &[name, fault] : faults)
        QTest::newRow(name) << stem(name);
}

void tst_FileSystemFaults::readFileRefuses()
{
    QFETCH(QString, file);
    const QFileInfo info(path(QStringLiteral("products/") + file + QStringLiteral(".xml")));
    QTest::ignoreMessage(QtWarningMsg, qPrintable(QStringLiteral("could not open ") + info.absoluteFilePath()));
    QElapsedTimer timer;
    timer.start();
    QVERIFY(!std::unique_ptr<ZRProductTypeDescription>(ZRProductTypeDescriptionReader(info.dir()).readFile(info)));
    QVERIFY2(timer.elapsed() < 1000, qPrintable(QStringLiteral("took %1 ms").arg(timer.elapsed())));
}

void tst_FileSystemFaults::colourTableRefuses_data()
{
    QTest::addColumn<Fault>("fault");
    for (const auto &[name, fault] : faults)
        QTest::newRow(name) << fault;
}

void tst_FileSystemFaults::colourTableRefuses()
{
    QFETCH(Fault, fault);
    QTemporaryDir resources;
    QVERIFY(make(fault, resources.filePath(QStringLiteral("colors.xml"))));
    ZRSingleton<ZRDirectoryConfig>::instance()->setResourcesDir(QDir(resources.path()));
    QElapsedTimer timer;
    timer.start();
    QVERIFY(ZRThematicCategory::readColorsXML().isEmpty());
    QVERIFY2(timer.elapsed() < 1000, qPrintable(QStringLiteral("took %1 ms").arg(timer.elapsed())));
    ZRSingleton<ZRDirectoryConfig>::instance()->setResourcesDir(QDir(path(QStringLiteral("resources"))));
}

void tst_FileSystemFaults::changedAfterListing_data()
{
    QTest::addColumn<Fault>("replacement");
    QTest::newRow("removed") << Fault::Missing;
    QTest::newRow("replaced by a FIFO") << Fault::Fifo;
    QTest::newRow("replaced by a directory") << Fault::Directory;
    QTest::newRow("grown to 3 GiB") << Fault::Sparse;
}

// The listing's file information is out of date by the time the file is read.
void tst_FileSystemFaults::changedAfterListing()
{
    QFETCH(Fault, replacement);
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("product.xml"));
    QVERIFY(write(file, product("changing")));
    const QFileInfoList listed = QDir(dir.path()).entryInfoList({ QStringLiteral("*.xml") }, QDir::Files);
    QCOMPARE(listed.size(), 1);
    if (replacement != Fault::Sparse)
        QVERIFY(QFile::remove(file));
    QVERIFY(make(replacement, file));

    QTest::ignoreMessage(
        QtWarningMsg, qPrintable(QStringLiteral("could not open ") + listed.first().absoluteFilePath()));
    QElapsedTimer timer;
    timer.start();
    QVERIFY(!std::unique_ptr<ZRProductTypeDescription>(
        ZRProductTypeDescriptionReader(QDir(dir.path())).readFile(listed.first())));
    QVERIFY2(timer.elapsed() < 1000, qPrintable(QStringLiteral("took %1 ms").arg(timer.elapsed())));
}

void tst_FileSystemFaults::readDirLoadsTheGoodFiles()
{
    const QDir products(path(QStringLiteral("products")));
    QDirIterator listing(products.path(), { QStringLiteral("*.xml") }, QDir::Files);
    expectPerListedFault(listing, goodProducts, QStringLiteral("could not open %1"));
    QElapsedTimer timer;
    timer.start();
    const auto read = ZRProductTypeDescriptionReader(products).readDir();
    QVERIFY2(timer.elapsed() < 1000, qPrintable(QStringLiteral("took %1 ms").arg(timer.elapsed())));
    QStringList names;
    for (const ZRProductType &type : read.keys())
        names.append(type.name());
    names.sort();
    qDeleteAll(read);
    QCOMPARE(names, QStringList({ QStringLiteral("good"), QStringLiteral("second") }));
}

void tst_FileSystemFaults::registriesLoadTheGoodFiles()
{
    QDirIterator products(path(QStringLiteral("products")), { QStringLiteral("*.xml") }, QDir::Files);
    expectPerListedFault(products, goodProducts, QStringLiteral("could not open %1"));
    QDirIterator legacy(path(QStringLiteral("resources/products/legacy")), { QStringLiteral("*.xml") }, QDir::Files);
    expectPerListedFault(legacy, goodProducts, QStringLiteral("could not open %1"));
    QDirIterator ts(path(QStringLiteral("translations")), { QStringLiteral("*_en_*.ts") }, QDir::Files,
        QDirIterator::Subdirectories);
    expectPerListedFault(ts, { QStringLiteral("cats_en_good.ts") }, QStringLiteral("No TS element at beginning."));

    QElapsedTimer timer;
    timer.start();
    const DirectoryRegistry registry(QDir(path(QStringLiteral("products"))));
    const ZRLegacyProductTypeConfigRegistry *legacyRegistry
        = ZRSingleton<ZRLegacyProductTypeConfigRegistry>::instance();
    const TranslationRegistry translationRegistry;
    QVERIFY2(timer.elapsed() < 1000, qPrintable(QStringLiteral("took %1 ms").arg(timer.elapsed())));

    QVERIFY(registry.exists(ZRProductType(QStringLiteral("good"))));
    QVERIFY(registry.exists(ZRProductType(QStringLiteral("second"))));
    QVERIFY(legacyRegistry->exists(ZRProductType(QStringLiteral("retired"))));
    QCOMPARE(translationRegistry.translation(QStringLiteral("Rot"), QLocale(QLocale::English)), QStringLiteral("Red"));
}

// Root reads every file, so the check runs this test again as an unprivileged user.
void tst_FileSystemFaults::unreadableFileIsSkipped()
{
    if (::geteuid() == 0) {
        const QString setpriv = QStandardPaths::findExecutable(QStringLiteral("setpriv"));
        if (setpriv.isEmpty())
            QSKIP("Running as root and setpriv is missing: an unreadable file cannot be made.");
        QProcess child;
        child.setProcessChannelMode(QProcess::MergedChannels);
        child.start(setpriv,
            { QStringLiteral("--reuid=nobody"), QStringLiteral("--regid=nogroup"), QStringLiteral("--clear-groups"),
                QCoreApplication::applicationFilePath(), QStringLiteral("unreadableFileIsSkipped") });
        QVERIFY(child.waitForFinished(60000));
        const QByteArray output = child.readAll();
        // setpriv's own exit codes when it cannot run the program as that user.
        if (child.exitCode() == 126 || child.exitCode() == 127)
            QSKIP(qPrintable(QStringLiteral("Cannot run the test as nobody: ") + QString::fromLocal8Bit(output)));
        QVERIFY2(child.exitStatus() == QProcess::NormalExit && child.exitCode() == 0, output.constData());
        return;
    }

    QTemporaryDir dir;
    const QString locked = dir.filePath(QStringLiteral("locked.xml"));
    QVERIFY(write(locked, product("locked")));
    QVERIFY(write(dir.filePath(QStringLiteral("good.xml")), product("good")));
    QVERIFY(QFile::setPermissions(locked, QFileDevice::Permissions()));
    QTest::ignoreMessage(
        QtWarningMsg, qPrintable(QStringLiteral("could not open ") + QFileInfo(locked).absoluteFilePath()));
    QElapsedTimer timer;
    timer.start();
    const auto read = ZRProductTypeDescriptionReader(QDir(dir.path())).readDir();
    QVERIFY2(timer.elapsed() < 1000, qPrintable(QStringLiteral("took %1 ms").arg(timer.elapsed())));
    QCOMPARE(read.size(), 1);
    QVERIFY(read.contains(ZRProductType(QStringLiteral("good"))));
    qDeleteAll(read);
}

QTEST_GUILESS_MAIN(tst_FileSystemFaults)
#include "tst_filesystemfaults.moc"
