// zrbench_load: the catalogue load against the bare DOM parse of the same files, side by side in one
// process, and the resident memory that loaded products keep.
//
//   zrbench_load [--dir DIR] [--sizes 200,2000,20000] [--repeat N]
//   zrbench_load --single dom|loader|registry [--dir DIR] [--sizes N]   (one pass, for callgrind)
//   zrbench_load --memory-breakdown [--dir DIR] [--sizes N]               (heap kept per part)
//
// For every size the catalogue is generated once under DIR (reused by later runs), read once to warm
// the page cache, and then timed in REPEAT runs over all sizes, the order of the passes rotating:
// (a) list the directory, read every file and QDomDocument::setContent() it; (b) the same with the
// library's guarded ZRXMLLoader instead of setContent(); (c) construct a registry over the directory,
// which lists, loads (as b) and builds every description. Medians are printed, of wall-clock and of
// thread CPU time. Memory is measured in a fresh child process per size, so that memory freed by
// earlier passes cannot hide what the registry keeps.

#include "cataloguegenerator.h"
#include "directoryregistry.h"

#include <ZRDefaultTemplateMap.h>
#include <ZRPreview3DDescription.h>
#include <ZRProductClassification.h>
#include <ZRProductEditorAbilities.h>
#include <ZRProductTypeConfigRegistryAbstract.h>
#include <ZRProductTypeDescription.h>
#include <ZRSurroundingDescriptionList.h>
#include <ZRXMLLoader.h>
#include <ZRXMLStringPool.h>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QDomDocument>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTextStream>

#include <algorithm>
#include <ctime>
#include <list>
#include <malloc.h>
#include <unistd.h>

namespace {

QTextStream out(stdout);

double median(QList<double> values)
{
    if (values.isEmpty())
        return 0.0;
    std::sort(values.begin(), values.end());
    const qsizetype middle = values.size() / 2;
    return values.size() % 2 ? values.at(middle) : (values.at(middle - 1) + values.at(middle)) / 2.0;
}

/**
 * Wall-clock and CPU time of one pass, in ms. The CPU time of the thread is the steadier figure on a
 * machine shared with other work: it leaves out the time spent waiting for a core.
 */
struct Timing
{
    double wallMs = 0;
    double cpuMs = 0;
};

class Stopwatch
{
public:
    Stopwatch()
        : m_cpuStart(threadCpuNs())
    {
        m_wall.start();
    }
    Timing elapsed() const { return { double(m_wall.nsecsElapsed()) / 1e6, double(threadCpuNs() - m_cpuStart) / 1e6 }; }

private:
    static qint64 threadCpuNs()
    {
        timespec now {};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
        return qint64(now.tv_sec) * 1000000000 + now.tv_nsec;
    }
    QElapsedTimer m_wall;
    qint64 m_cpuStart;
};

/** The bare parse: the same listing as the reader, then read and setContent() every file. */
Timing timeDomParse(const QDir &directory, int *documents)
{
    const Stopwatch stopwatch;
    const QFileInfoList files = directory.entryInfoList({ QStringLiteral("*.xml") }, QDir::Files, QDir::Unsorted);
    int parsed = 0;
    for (const QFileInfo &info : files) {
        QFile file(info.absoluteFilePath());
        if (!file.open(QIODevice::ReadOnly))
            continue;
        QDomDocument document;
        if (document.setContent(file.readAll()))
            ++parsed;
    }
    const Timing timing = stopwatch.elapsed();
    *documents = parsed;
    return timing;
}

/**
 * The documents as the reader gets them: the same listing, then ZRXMLLoader, which checks the input
 * against its limits and builds the DOM itself. The difference to timeDomParse() is the loader's,
 * the difference to timeRegistryLoad() is what the descriptions add.
 */
Timing timeLoaderParse(const QDir &directory, int *documents)
{
    const Stopwatch stopwatch;
    const QFileInfoList files = directory.entryInfoList({ QStringLiteral("*.xml") }, QDir::Files, QDir::Unsorted);
    int parsed = 0;
    for (const QFileInfo &info : files) {
        if (!ZRXMLLoader::loadDocument(info).isNull())
            ++parsed;
    }
    const Timing timing = stopwatch.elapsed();
    *documents = parsed;
    return timing;
}

/** The full load of a registry over the directory; the registry is freed afterwards, untimed. */
Timing timeRegistryLoad(const QDir &directory, int *products)
{
    const Stopwatch stopwatch;
    auto *registry = new DirectoryRegistry(directory);
    const Timing timing = stopwatch.elapsed();
    *products = int(registry->allProducts().size());
    delete registry;
    return timing;
}

void warmPageCache(const QDir &directory)
{
    const QFileInfoList files = directory.entryInfoList({ QStringLiteral("*.xml") }, QDir::Files, QDir::Unsorted);
    for (const QFileInfo &info : files) {
        QFile file(info.absoluteFilePath());
        if (file.open(QIODevice::ReadOnly))
            file.readAll();
    }
}

struct Memory
{
    qint64 residentBytes = 0;
    qint64 heapBytes = 0;
};

Memory currentMemory()
{
    Memory memory;
    QFile statm(QStringLiteral("/proc/self/statm"));
    if (statm.open(QIODevice::ReadOnly)) {
        const QList<QByteArray> fields = statm.readAll().split(' ');
        if (fields.size() > 1)
            memory.residentBytes = fields.at(1).toLongLong() * sysconf(_SC_PAGESIZE);
    }
    memory.heapBytes = qint64(mallinfo2().uordblks);
    return memory;
}

/**
 * Child mode: warm up on a small catalogue of its own (code pages, key tables, static strings), then
 * report the memory added by loading @p directory and keeping the registry.
 */
int memoryChild(const QString &directory, const QString &warmDirectory)
{
    {
        const DirectoryRegistry warm { QDir(warmDirectory) };
    }
    malloc_trim(0);
    const Memory before = currentMemory();
    const DirectoryRegistry registry { QDir(directory) };
    const Memory after = currentMemory();
    out << "memory " << registry.allProducts().size() << ' ' << (after.residentBytes - before.residentBytes) << ' '
        << (after.heapBytes - before.heapBytes) << Qt::endl;
    return 0;
}

/**
 * The heap that the parts of a description keep, per product: every part is built once more from
 * the same document and kept, and the heap in use is read around each construction. A part's
 * temporaries are freed before the second reading, so they do not count.
 */
int memoryBreakdown(const QDir &directory)
{
    struct Part
    {
        const char *name;
        qint64 bytes = 0;
    };
    Part whole { "whole description" };
    Part defaults { "default templates" };
    Part surroundings { "surroundings" };
    Part abilities { "editor abilities" };
    Part preview { "3D preview" };
    Part classification { "classification" };
    // Kept until the end, so that what they hold stays allocated; std::list does not move them.
    std::list<ZRProductTypeDescription> descriptions;
    std::list<ZRDefaultTemplateMap> defaultMaps;
    std::list<ZRSurroundingDescriptionList> surroundingLists;
    std::list<ZRProductEditorAbilities> abilityObjects;
    std::list<ZRPreview3DDescription> previews;
    std::list<ZRProductClassification> classifications;
    qint64 templateEntries = 0;
    // As the reader shares the texts of one directory's products.
    const ZRXMLStringPool strings;

    const auto measure = [](Part &part, auto build) {
        const qint64 before = currentMemory().heapBytes;
        build();
        part.bytes += currentMemory().heapBytes - before;
    };
    const QFileInfoList files = directory.entryInfoList({ QStringLiteral("*.xml") }, QDir::Files, QDir::Unsorted);
    qint64 xmlBytes = 0;
    for (const QFileInfo &file : files) {
        xmlBytes += file.size();
        const QDomElement product = ZRXMLLoader::loadDocumentElement(file).firstChildElement(QStringLiteral("product"));
        const ZRProductType type(product.attribute(QStringLiteral("name")));
        measure(whole, [&] { descriptions.emplace_back(product); });
        measure(defaults, [&] { defaultMaps.emplace_back(product.firstChildElement(QStringLiteral("defaults"))); });
        measure(surroundings, [&] { surroundingLists.emplace_back(type, product); });
        measure(abilities,
            [&] { abilityObjects.emplace_back(product.firstChildElement(QStringLiteral("editorAbilities"))); });
        measure(preview, [&] { previews.emplace_back(product); });
        measure(classification, [&] { classifications.emplace_back(product); });
        templateEntries += defaultMaps.back().size();
    }
    if (files.isEmpty())
        return 1;
    const auto perProduct = [&files](qint64 bytes) { return QString::number(double(bytes) / files.size(), 'f', 0); };
    out << "Heap kept per product, " << files.size() << " products of " << perProduct(xmlBytes)
        << " bytes of XML each:" << Qt::endl;
    qint64 parts = 0;
    for (const Part *part : { &defaults, &surroundings, &abilities, &preview, &classification }) {
        out << "  " << part->name << ": " << perProduct(part->bytes) << " bytes" << Qt::endl;
        parts += part->bytes;
    }
    out << "  everything else: " << perProduct(whole.bytes - parts) << " bytes" << Qt::endl
        << "  " << whole.name << ": " << perProduct(whole.bytes) << " bytes" << Qt::endl
        << "  default template entries: " << perProduct(templateEntries) << " per product, "
        << QString::number(double(defaults.bytes) / double(qMax<qint64>(1, templateEntries)), 'f', 1) << " bytes each"
        << Qt::endl;
    return 0;
}

struct SizeResult
{
    int files = 0;
    qint64 bytes = 0;
    Timing dom;
    Timing loader;
    Timing registry;
    double ratio = 0;
    double cpuRatio = 0;
    double loaderRatio = 0;
    qint64 residentBytes = -1;
    qint64 heapBytes = -1;
};

bool measureMemory(const QString &directory, const QString &warmDirectory, SizeResult *result)
{
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(),
        { QStringLiteral("--memory-child"), directory, QStringLiteral("--warm-dir"), warmDirectory });
    if (!child.waitForFinished(-1) || child.exitCode() != 0)
        return false;
    const QList<QByteArray> fields = child.readAllStandardOutput().trimmed().split(' ');
    if (fields.size() != 4 || fields.at(0) != "memory")
        return false;
    result->residentBytes = fields.at(2).toLongLong();
    result->heapBytes = fields.at(3).toLongLong();
    return true;
}

QString megabytes(qint64 bytes)
{
    return QString::number(double(bytes) / 1e6, 'f', 1);
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Catalogue load against the bare DOM parse of the same files."));
    parser.addHelpOption();
    const QCommandLineOption dirOption(QStringLiteral("dir"), QStringLiteral("Where the catalogues are generated."),
        QStringLiteral("dir"), QDir::temp().filePath(QStringLiteral("zrbench-catalogues")));
    const QCommandLineOption sizesOption(QStringLiteral("sizes"), QStringLiteral("Catalogue sizes, comma-separated."),
        QStringLiteral("list"), QStringLiteral("200,2000,20000"));
    const QCommandLineOption repeatOption(
        QStringLiteral("repeat"), QStringLiteral("Timed runs per size."), QStringLiteral("n"), QStringLiteral("5"));
    const QCommandLineOption memoryChildOption(QStringLiteral("memory-child"),
        QStringLiteral("Internal: report the memory kept by loading one directory."), QStringLiteral("dir"));
    const QCommandLineOption warmDirOption(
        QStringLiteral("warm-dir"), QStringLiteral("Internal: the warm-up catalogue."), QStringLiteral("dir"));
    const QCommandLineOption singleOption(QStringLiteral("single"),
        QStringLiteral("One pass of \"dom\", \"loader\" or \"registry\" over the first size, for profilers."),
        QStringLiteral("pass"));
    const QCommandLineOption breakdownOption(QStringLiteral("memory-breakdown"),
        QStringLiteral("The heap kept by each part of a description, for the first size."));
    parser.addOptions(
        { dirOption, sizesOption, repeatOption, memoryChildOption, warmDirOption, singleOption, breakdownOption });
    parser.process(app);

    if (parser.isSet(memoryChildOption))
        return memoryChild(parser.value(memoryChildOption), parser.value(warmDirOption));

    const QDir root(parser.value(dirOption));
    const int repeat = qMax(1, parser.value(repeatOption).toInt());
    QList<int> sizes;
    for (const QString &size : parser.value(sizesOption).split(QLatin1Char(','), Qt::SkipEmptyParts))
        sizes.append(size.toInt());

    if (parser.isSet(breakdownOption) && !sizes.isEmpty()) {
        const auto catalogue = CatalogueGenerator::ensureCatalogue(
            root.filePath(QStringLiteral("n%1").arg(sizes.first())), sizes.first());
        return memoryBreakdown(QDir(catalogue.directory));
    }
    if (parser.isSet(singleOption) && !sizes.isEmpty()) {
        const auto catalogue = CatalogueGenerator::ensureCatalogue(
            root.filePath(QStringLiteral("n%1").arg(sizes.first())), sizes.first());
        int count = 0;
        const QString pass = parser.value(singleOption);
        const QDir directory(catalogue.directory);
        const Timing timing = pass == QLatin1String("dom") ? timeDomParse(directory, &count)
            : pass == QLatin1String("loader")              ? timeLoaderParse(directory, &count)
                                                           : timeRegistryLoad(directory, &count);
        out << parser.value(singleOption) << ": " << count << " files in " << timing.wallMs << " ms" << Qt::endl;
        return count == sizes.first() ? 0 : 1;
    }

    const CatalogueGenerator::Catalogue warm
        = CatalogueGenerator::ensureCatalogue(root.filePath(QStringLiteral("warm")), 20);
    struct Samples
    {
        QList<double> domWall, domCpu, loaderWall, loaderCpu, registryWall, registryCpu;
    };
    QList<CatalogueGenerator::Catalogue> catalogues;
    QList<Samples> samples(sizes.size());
    for (const int size : std::as_const(sizes)) {
        const CatalogueGenerator::Catalogue catalogue
            = CatalogueGenerator::ensureCatalogue(root.filePath(QStringLiteral("n%1").arg(size)), size);
        if (catalogue.files != size) {
            out << "could not generate " << size << " files under " << catalogue.directory << Qt::endl;
            return 1;
        }
        warmPageCache(QDir(catalogue.directory));
        catalogues.append(catalogue);
    }

    // Every run measures every size, so that the scaling from one size to the next is taken from
    // passes close in time, and a change of the machine's load between sizes does not enter it.
    QList<QList<double>> registryScaling(sizes.size()), registryCpuScaling(sizes.size()), domScaling(sizes.size());
    for (int run = 0; run < repeat; ++run) {
        for (qsizetype s = 0; s < catalogues.size(); ++s) {
            const int size = catalogues.at(s).files;
            const QDir directory(catalogues.at(s).directory);
            int documents = 0;
            int loaded = 0;
            int products = 0;
            Timing dom;
            Timing loader;
            Timing registry;
            // Rotate the order so that a drift of the machine load weighs on all passes alike.
            for (int pass = 0; pass < 3; ++pass) {
                switch ((run + pass) % 3) {
                case 0:
                    dom = timeDomParse(directory, &documents);
                    break;
                case 1:
                    loader = timeLoaderParse(directory, &loaded);
                    break;
                default:
                    registry = timeRegistryLoad(directory, &products);
                    break;
                }
            }
            if (documents != size || loaded != size || products != size) {
                out << "parsed " << documents << " and loaded " << loaded << " documents and " << products
                    << " products of " << size << Qt::endl;
                return 1;
            }
            Samples &sample = samples[s];
            sample.domWall.append(dom.wallMs);
            sample.domCpu.append(dom.cpuMs);
            sample.loaderWall.append(loader.wallMs);
            sample.loaderCpu.append(loader.cpuMs);
            sample.registryWall.append(registry.wallMs);
            sample.registryCpu.append(registry.cpuMs);
            if (s > 0) {
                const Samples &smaller = samples.at(s - 1);
                registryScaling[s].append(registry.wallMs / smaller.registryWall.last());
                registryCpuScaling[s].append(registry.cpuMs / smaller.registryCpu.last());
                domScaling[s].append(dom.wallMs / smaller.domWall.last());
            }
            out << QStringLiteral(
                "  run %1, n=%2: wall dom %3 ms, loader %4 ms, registry %5 ms, ratio %6; cpu ratio %7")
                       .arg(run + 1)
                       .arg(size)
                       .arg(dom.wallMs, 0, 'f', 1)
                       .arg(loader.wallMs, 0, 'f', 1)
                       .arg(registry.wallMs, 0, 'f', 1)
                       .arg(registry.wallMs / dom.wallMs, 0, 'f', 3)
                       .arg(registry.cpuMs / dom.cpuMs, 0, 'f', 3)
                << Qt::endl;
        }
    }

    QList<SizeResult> results;
    for (qsizetype s = 0; s < catalogues.size(); ++s) {
        const Samples &sample = samples.at(s);
        QList<double> ratios, cpuRatios, loaderRatios;
        for (qsizetype run = 0; run < sample.domWall.size(); ++run) {
            ratios.append(sample.registryWall.at(run) / sample.domWall.at(run));
            cpuRatios.append(sample.registryCpu.at(run) / sample.domCpu.at(run));
            loaderRatios.append(sample.loaderWall.at(run) / sample.domWall.at(run));
        }
        SizeResult result;
        result.files = catalogues.at(s).files;
        result.bytes = catalogues.at(s).bytes;
        result.dom = { median(sample.domWall), median(sample.domCpu) };
        result.loader = { median(sample.loaderWall), median(sample.loaderCpu) };
        result.registry = { median(sample.registryWall), median(sample.registryCpu) };
        result.ratio = median(ratios);
        result.cpuRatio = median(cpuRatios);
        result.loaderRatio = median(loaderRatios);
        if (!measureMemory(catalogues.at(s).directory, warm.directory, &result))
            out << "  memory of n=" << result.files << " could not be measured" << Qt::endl;
        results.append(result);
    }

    out << Qt::endl
        << QStringLiteral("%1 runs per size, medians; load average %2").arg(repeat).arg([] {
               QFile loadavg(QStringLiteral("/proc/loadavg"));
               return loadavg.open(QIODevice::ReadOnly) ? QString::fromLatin1(loadavg.readAll().trimmed()) : QString();
           }())
        << Qt::endl
        << "| files | XML MB | DOM parse ms | loader ms | registry load ms | loader / DOM | registry / DOM | "
           "CPU: DOM ms | CPU: registry ms | CPU: registry / DOM | RSS added MB | RSS per 1000 products MB | "
           "heap kept MB | RSS / XML size |"
        << Qt::endl
        << "|---:|---:|---:|---:|---:|---:|---:|---:|---:|---:|---:|---:|---:|---:|" << Qt::endl;
    const auto number = [](double value, int decimals) { return QString::number(value, 'f', decimals); };
    for (const SizeResult &result : std::as_const(results)) {
        const double perThousand = double(result.residentBytes) * 1000.0 / result.files;
        out << "| " << result.files << " | " << megabytes(result.bytes) << " | " << number(result.dom.wallMs, 1)
            << " | " << number(result.loader.wallMs, 1) << " | " << number(result.registry.wallMs, 1) << " | "
            << number(result.loaderRatio, 3) << " | " << number(result.ratio, 3) << " | " << number(result.dom.cpuMs, 1)
            << " | " << number(result.registry.cpuMs, 1) << " | " << number(result.cpuRatio, 3) << " | "
            << megabytes(result.residentBytes) << " | " << megabytes(qint64(perThousand)) << " | "
            << megabytes(result.heapBytes) << " | " << number(double(result.residentBytes) / double(result.bytes), 3)
            << " |" << Qt::endl;
    }
    for (qsizetype s = 1; s < results.size(); ++s) {
        out << QStringLiteral("scaling %1 -> %2 files (x%3), median of the runs: registry x%4 (CPU x%5), DOM x%6")
                   .arg(results.at(s - 1).files)
                   .arg(results.at(s).files)
                   .arg(double(results.at(s).files) / results.at(s - 1).files, 0, 'f', 1)
                   .arg(median(registryScaling.at(s)), 0, 'f', 2)
                   .arg(median(registryCpuScaling.at(s)), 0, 'f', 2)
                   .arg(median(domScaling.at(s)), 0, 'f', 2)
            << Qt::endl;
    }
    return 0;
}
