#include "ZRDirectoryConfig.h"
#include "ZRLegacyProductTypeConfigRegistry.h"
#include "ZRLocaleAndTranslationManager.h"
#include "ZRProductTypeDescription.h"
#include "ZRProductTypeDescriptionReader.h"
#include "ZRTestSupport.h"
#include "ZRThematicCategory.h"
#include "ZRThematicCategoryTranslationRegistry.h"
#include "thematiccategorytestdata.h"

#include <QDirIterator>
#include <QElapsedTimer>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <functional>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {
bool makeFifo(const QString &path)
{
    return ::mkfifo(QFile::encodeName(path).constData(), 0644) == 0;
}

/** Each fault with the function that puts it at a path; false when the file system refuses. */
const QList<QPair<const char *, std::function<bool(const QString &)>>> faults {
    { "directory", [](const QString &path) { return QDir().mkpath(path); } },
    { "FIFO", makeFifo },
    { "link to a FIFO",
        [](const QString &path) { return makeFifo(path + u".pipe"_s) && QFile::link(path + u".pipe"_s, path); } },
    { "link to /dev/zero", [](const QString &path) { return QFile::link(u"/dev/zero"_s, path); } },
    { "dangling link", [](const QString &path) { return QFile::link(path + u".missing"_s, path); } },
    { "link to itself", [](const QString &path) { return QFile::link(path, path); } },
    { "0 bytes", [](const QString &path) { return ZRTest::writeFile(path, QByteArray()); } },
    { "sparse 3 GiB",
        [](const QString &path) { return ZRTest::writeFile(path, {}) && QFile::resize(path, qint64(3) << 30); } },
    { "removed", [](const QString &path) { return !QFileInfo::exists(path); } },
};

QByteArray product(const char *name)
{
    return QByteArray("<products><product name='") + name + "' class='mug' binding='wrapped'/></products>";
}

/** Expects @p message (with the path for "%1") once for every entry that @p it lists and that is not one of @p good. */
void expectPerListedFault(QDirIterator &&it, const QStringList &good, const QString &message)
{
    while (it.hasNext()) {
        it.next();
        if (!good.contains(it.fileName()))
            QTest::ignoreMessage(QtWarningMsg,
                qPrintable(
                    message.contains(QLatin1String("%1")) ? message.arg(it.fileInfo().absoluteFilePath()) : message));
    }
}

} // namespace

// A fault is refused at once: nothing may block on a FIFO or read 3 GiB.
#define VERIFY_QUICK(timer) QVERIFY2((timer).elapsed() < 1000, qPrintable(u"took %1 ms"_s.arg((timer).elapsed())))

class tst_FileSystemFaults : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void readFileRefuses_data();
    void readFileRefuses();
    void directoriesLoadTheGoodFiles();
    void unreadableFileIsSkipped();
};

void tst_FileSystemFaults::readFileRefuses_data()
{
    QTest::addColumn<int>("fault");
    QTest::addColumn<bool>("colourTable");
    for (int fault = 0; fault < faults.size(); ++fault) {
        QTest::addRow("product file, %s", faults.at(fault).first) << fault << false;
        QTest::addRow("colour table, %s", faults.at(fault).first) << fault << true;
    }
}

// The file was a good one when it was listed: the listing's information is out of date when it is read.
void tst_FileSystemFaults::readFileRefuses()
{
    QFETCH(int, fault);
    QFETCH(bool, colourTable);
    QTemporaryDir dir;
    const QString path = dir.filePath(colourTable ? u"colors.xml"_s : u"product.xml"_s);
    QVERIFY(ZRTest::writeFile(path, product("changing")));
    const QFileInfo listed(path);
    QVERIFY(listed.isFile());
    QVERIFY(QFile::remove(path));
    QVERIFY(faults.at(fault).second(path));
    ZRSingleton<ZRDirectoryConfig>::instance()->setResourcesDir(QDir(dir.path()));

    QElapsedTimer timer;
    timer.start();
    if (colourTable) {
        QVERIFY(ZRThematicCategory::readColorsXML().isEmpty());
    } else {
        QTest::ignoreMessage(QtWarningMsg, qPrintable("could not open " + listed.absoluteFilePath()));
        QVERIFY(!std::unique_ptr<ZRProductTypeDescription>(
            ZRProductTypeDescriptionReader(QDir(dir.path())).readFile(listed)));
    }
    VERIFY_QUICK(timer);
}

void tst_FileSystemFaults::directoriesLoadTheGoodFiles()
{
    QTemporaryDir dir;
    const auto path = [&dir](const QString &name) { return dir.filePath(name); };
    const QString legacy = u"resources/products/legacy/"_s;
    QVERIFY(ZRTest::writeFile(path(u"products/good.xml"_s), product("good")));
    QVERIFY(ZRTest::writeFile(path(u"products/second.xml"_s), product("second")));
    QVERIFY(ZRTest::writeFile(path(legacy + u"good.xml"_s), product("retired")));
    QVERIFY(ZRTest::writeFile(path(u"translations/cats_en_good.ts"_s),
        ThematicCategoryTestData::tsDocument(u"en"_s, { { u"Rot"_s, u"Red"_s } })));
    for (const auto &[name, make] : faults) {
        const QString file = QString::fromLatin1(name).replace(QRegularExpression(u"\\W"_s), u"_"_s);
        QVERIFY2(make(path(u"products/"_s + file + u".xml"_s)), name);
        QVERIFY2(make(path(legacy + file + u".xml"_s)), name);
        QVERIFY2(make(path(u"translations/cats_en_"_s + file + u".ts"_s)), name);
    }
    ZRSingleton<ZRLocaleAndTranslationManager>::instance()->setLocale(QLocale(QLocale::English));
    ZRDirectoryConfig *config = ZRSingleton<ZRDirectoryConfig>::instance();
    config->setResourcesDir(QDir(path(u"resources"_s)));
    config->setGlimmerThematicTranslationsDirectories({ path(u"translations"_s) });

    const QStringList goodProducts { u"good.xml"_s, u"second.xml"_s };
    expectPerListedFault(
        QDirIterator(path(u"products"_s), { u"*.xml"_s }, QDir::Files), goodProducts, u"could not open %1"_s);
    expectPerListedFault(QDirIterator(path(legacy), { u"*.xml"_s }, QDir::Files), goodProducts, u"could not open %1"_s);
    expectPerListedFault(
        QDirIterator(path(u"translations"_s), { u"*_en_*.ts"_s }, QDir::Files, QDirIterator::Subdirectories),
        { u"cats_en_good.ts"_s }, u"No TS element at beginning."_s);

    QElapsedTimer timer;
    timer.start();
    const auto products = ZRProductTypeDescriptionReader(QDir(path(u"products"_s))).readDir();
    const auto *legacyRegistry = ZRSingleton<ZRLegacyProductTypeConfigRegistry>::instance();
    const ZRThematicCategoryTranslationRegistry translationRegistry;
    VERIFY_QUICK(timer);

    QCOMPARE(ZRTest::sortedNames(products.keys()), QStringList({ u"good"_s, u"second"_s }));
    qDeleteAll(products);
    QVERIFY(legacyRegistry->exists(ZRProductType(u"retired"_s)));
    QCOMPARE(translationRegistry.translation(u"Rot"_s, QLocale(QLocale::English)), u"Red"_s);
}

// Root reads every file, so the check runs this test again as an unprivileged user.
void tst_FileSystemFaults::unreadableFileIsSkipped()
{
    if (::geteuid() == 0) {
        const QString setpriv = QStandardPaths::findExecutable(u"setpriv"_s);
        if (setpriv.isEmpty())
            QSKIP("Running as root and setpriv is missing: an unreadable file cannot be made.");
        QProcess child;
        child.setProcessChannelMode(QProcess::MergedChannels);
        child.start(setpriv,
            { u"--reuid=nobody"_s, u"--regid=nogroup"_s, u"--clear-groups"_s, QCoreApplication::applicationFilePath(),
                u"unreadableFileIsSkipped"_s });
        QVERIFY(child.waitForFinished(60000));
        const QByteArray output = child.readAll();
        // setpriv's own exit codes when it cannot run the program as that user.
        if (child.exitCode() == 126 || child.exitCode() == 127)
            QSKIP(qPrintable(u"Cannot run the test as nobody: "_s + QString::fromLocal8Bit(output)));
        QVERIFY2(child.exitStatus() == QProcess::NormalExit && child.exitCode() == 0, output.constData());
        return;
    }

    QTemporaryDir dir;
    const QString locked = dir.filePath(u"locked.xml"_s);
    QVERIFY(ZRTest::writeFile(locked, product("locked")));
    QVERIFY(ZRTest::writeFile(dir.filePath(u"good.xml"_s), product("good")));
    QVERIFY(QFile::setPermissions(locked, QFileDevice::Permissions()));
    QTest::ignoreMessage(QtWarningMsg, qPrintable("could not open " + QFileInfo(locked).absoluteFilePath()));
    const auto read = ZRProductTypeDescriptionReader(QDir(dir.path())).readDir();
    QCOMPARE(read.keys(), QList<ZRProductType> { ZRProductType(u"good"_s) });
    qDeleteAll(read);
}

QTEST_GUILESS_MAIN(tst_FileSystemFaults)
#include "tst_filesystemfaults.moc"
