#include "checker.h"

#include "descriptions.h"
#include "rules.h"

#include "ZRDirectoryConfig.h"
#include "ZRProductTypeDescription.h"
#include "ZRProductTypeDescriptionReader.h"

#include <QDomDocument>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QTextStream>
#include <QThread>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <memory>
#include <thread>
#include <tuple>
#include <vector>

namespace {
thread_local WarningCollector *currentCollector = nullptr;
QtMessageHandler previousHandler = nullptr;

const QString productElementName = QStringLiteral("product");

/**
 * The library's warnings whose fact its readers report as a finding too, with the rules of those
 * findings: a warning is left out when its file has a finding of one of them.
 */
const std::pair<QString, QStringList> reportedWarnings[] = {
    { QStringLiteral("could not open "),
        { QStringLiteral("not-well-formed"), QStringLiteral("limit-exceeded"), QStringLiteral("unreadable-file") } },
    { QStringLiteral("parse error"), { QStringLiteral("not-a-page-range"), QStringLiteral("ignored-element") } },
    { QStringLiteral("Page list too long in the product description."), { QStringLiteral("list-too-long") } },
    { QStringLiteral("Illegaler Seitentyp in der Produktbeschreibung."), { QStringLiteral("unknown-key") } },
};

bool isReported(const QString &warning, const QList<ZRXMLFinding> &findings)
{
    for (const auto &[text, rules] : reportedWarnings) {
        if (!warning.startsWith(text))
            continue;
        return std::any_of(findings.cbegin(), findings.cend(),
            [&rules = rules](const ZRXMLFinding &finding) { return rules.contains(finding.rule); });
    }
    return false;
}

/** Messages with a repeat count when the same text came more than once, in order of first appearance. */
QStringList counted(const QStringList &messages)
{
    QStringList order;
    QHash<QString, int> counts;
    for (const QString &message : messages) {
        if (counts[message]++ == 0)
            order.append(message);
    }
    QStringList result;
    for (const QString &message : std::as_const(order)) {
        const int count = counts.value(message);
        result.append(count > 1 ? QStringLiteral("%1 (%2 times)").arg(message).arg(count) : message);
    }
    return result;
}

/** "1 error", "2 errors". */
QString counting(int count, const QString &thing)
{
    return QStringLiteral("%1 %2%3").arg(count).arg(thing, count == 1 ? QString() : QStringLiteral("s"));
}

/** Escape sequences of the terminal's colours, as compilers use them. */
namespace Colour {
    const char bold[] = "\033[1m";
    const char red[] = "\033[1;31m";
    const char magenta[] = "\033[1;35m";
    const char cyan[] = "\033[1;36m";
    const char green[] = "\033[1;32m";
    const char reset[] = "\033[0m";
} // namespace Colour

const char *severityColour(ZRXMLFinding::Severity severity)
{
    switch (severity) {
    case ZRXMLFinding::Error:
        return Colour::red;
    case ZRXMLFinding::Warning:
        return Colour::magenta;
    case ZRXMLFinding::Note:
        break;
    }
    return Colour::cyan;
}

/** The lines of the files that findings are about, read once each. */
class SourceLines
{
public:
    /** Line @p line (1-based) of @p file without its line break; empty when there is none. */
    QString line(const QString &file, int line)
    {
        auto it = m_lines.find(file);
        if (it == m_lines.end()) {
            QFile source(file);
            QStringList lines;
            if (source.open(QIODevice::ReadOnly))
                lines = QString::fromUtf8(source.readAll()).split(QLatin1Char('\n'));
            it = m_lines.insert(file, lines);
        }
        QString text = it.value().value(line - 1);
        if (text.endsWith(QLatin1Char('\r')))
            text.chop(1);
        return text;
    }

private:
    QHash<QString, QStringList> m_lines;
};

/** @p finding as a compiler writes it: "file:line:col: severity: message; suggestion [rule]", and a line break. */
QString findingLine(const ZRXMLFinding &finding, bool inColour)
{
    const auto colour = [inColour](const char *code) { return QLatin1String(inColour ? code : ""); };
    QString text = colour(Colour::bold) + finding.file;
    if (finding.line > 0)
        text += u':' + QString::number(finding.line) + u':' + QString::number(finding.column);
    text += u':' + colour(Colour::reset) + u' ' + colour(severityColour(finding.severity))
        + ZRXMLFinding::severityName(finding.severity) + u':' + colour(Colour::reset) + u' ' + finding.message;
    if (!finding.suggestion.isEmpty())
        text += QLatin1String("; ") + finding.suggestion;
    text += QLatin1String(" [") + colour(severityColour(finding.severity)) + finding.rule + colour(Colour::reset)
        + QLatin1String("]\n");
    return text;
}

/** The line of the file that @p finding is about, with a caret under its column; nothing without a place. */
void printSource(QTextStream &out, const ZRXMLFinding &finding, bool inColour, SourceLines *sources)
{
    if (finding.line < 1)
        return;
    const QString line = sources->line(finding.file, finding.line);
    if (line.isEmpty())
        return;
    // Tabs stay tabs below the line, so that the caret lines up however the terminal shows them.
    QString indent = line.left(std::max(finding.column - 1, 0));
    for (QChar &c : indent) {
        if (c != QLatin1Char('\t'))
            c = QLatin1Char(' ');
    }
    out << line << '\n' << indent << (inColour ? Colour::green : "") << '^' << (inColour ? Colour::reset : "") << '\n';
}
} // namespace

WarningCollector::WarningCollector()
    : m_outer(currentCollector)
{
    // Installed once for good: collectors come and go on several threads at the same time.
    static const bool installed = [] {
        previousHandler = qInstallMessageHandler(handle);
        return true;
    }();
    Q_UNUSED(installed)
    currentCollector = this;
}

WarningCollector::~WarningCollector()
{
    currentCollector = m_outer;
}

void WarningCollector::handle(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (currentCollector && (type == QtWarningMsg || type == QtCriticalMsg)) {
        currentCollector->m_warnings.append(message);
        return;
    }
    if (previousHandler)
        previousHandler(type, context, message);
    else
        std::fprintf(stderr, "%s\n", qUtf8Printable(message));
}

namespace {
/** What checking one file found. */
struct FileCheck
{
    QString path;
    CatalogueChecker::Product product;
    QList<ZRXMLFinding> findings;
    /** The findings as text, made here so that the threads share the work. */
    QStringList lines;
};

FileCheck checkFile(const QFileInfo &file, bool legacy, bool inColour)
{
    const QString path = file.filePath();
    ZRXMLDiagnostics diagnostics;
    WarningCollector warnings;
    const std::unique_ptr<ZRProductTypeDescription> description(
        ZRProductTypeDescriptionReader(file.dir()).readFile(file));
    const auto placeOf = [&path](const QDomNode &node) {
        ZRXMLFinding place = ZRXMLDiagnostics::locate(node);
        place.file = path;
        return place;
    };
    CatalogueChecker::Product product;
    QDomElement element;
    if (description) {
        // The document the reader read, whose elements know where they are.
        const QDomElement root = diagnostics.documents().value(0).documentElement();
        element = root.firstChildElement(productElementName);
        if (element.isNull()) {
            ZRXMLDiagnostics::report(ZRXMLFinding::Error, QStringLiteral("no-product"),
                QStringLiteral("no <%1> element in <%2>").arg(productElementName, root.tagName()), root);
        }
    }
    if (!element.isNull()) {
        product = { description->productType().name(), description->replacedByProduct().name(), placeOf(element),
            placeOf(element.attributeNode(QStringLiteral("replacedBy"))) };
        if (product.name.isEmpty()) {
            ZRXMLDiagnostics::report(ZRXMLFinding::Error, QStringLiteral("no-name"),
                QStringLiteral("<%1> has no name").arg(productElementName), element);
        }
        if (!description->isValid()) {
            const QString articleClass = element.attribute(QStringLiteral("class"));
            QString reason = QStringLiteral("it has no class");
            if (description->articleClass().value() != 0)
                reason = QStringLiteral("it has no binding, and its class '%1' needs one").arg(articleClass);
            else if (element.hasAttribute(QStringLiteral("class")))
                reason = QStringLiteral("its class '%1' gives article class 0").arg(articleClass);
            ZRXMLDiagnostics::report(ZRXMLFinding::Error, QStringLiteral("invalid-product"),
                QStringLiteral("product '%1' is invalid: %2").arg(product.name, reason), element);
        }
        const ZRDirectoryConfig *config = ZRSingleton<ZRDirectoryConfig>::instance();
        Rules::checkProduct(
            *description, element, { config->resourcesDir(), config->glimmerThumbnailsDirectory(false), legacy });
        // The page list warns about page types that are none when it is expanded, not when it is read.
        description->pageTypes(Descriptions::typicalContentPages);
    }

    QList<ZRXMLFinding> findings = diagnostics.takeFindings();
    for (const QString &warning : counted(warnings.warnings())) {
        if (isReported(warning, findings))
            continue;
        ZRXMLFinding finding;
        finding.severity = ZRXMLFinding::Warning;
        finding.rule = QStringLiteral("library-warning");
        finding.message = QStringLiteral("the library warns: %1").arg(warning);
        finding.file = path;
        findings.append(finding);
    }
    QStringList lines;
    lines.reserve(findings.size());
    for (const ZRXMLFinding &finding : std::as_const(findings))
        lines.append(findingLine(finding, inColour));
    return { path, product, findings, lines };
}

} // namespace

QStringList CatalogueChecker::checkFiles(const QList<QFileInfo> &files, bool legacy)
{
    // The readers report into the collector of their own thread, so files are checked side by side,
    // each thread taking the next file until none is left.
    std::vector<FileCheck> checks(size_t(files.size()));
    std::atomic<qsizetype> next { 0 };
    const auto work = [&] {
        for (qsizetype i = next++; i < files.size(); i = next++)
            checks[size_t(i)] = checkFile(files.at(i), legacy, m_style.colour);
    };
    std::vector<std::thread> helpers;
    for (qsizetype i = 1; i < std::min<qsizetype>(QThread::idealThreadCount(), files.size()); ++i)
        helpers.emplace_back(work);
    work();
    for (std::thread &helper : helpers)
        helper.join();

    qsizetype findingCount = m_findings.size();
    for (const FileCheck &check : checks)
        findingCount += check.findings.size();
    m_findings.reserve(findingCount);
    m_lines.reserve(findingCount);
    m_products.reserve(m_products.size() + qsizetype(checks.size()));
    QStringList types;
    types.reserve(qsizetype(checks.size()));
    for (FileCheck &check : checks) {
        ++m_fileCount;
        if (!check.product.name.isEmpty())
            m_products.insert(check.path, check.product);
        m_findings.append(std::move(check.findings));
        m_lines.append(std::move(check.lines));
        types.append(check.product.name);
    }
    return types;
}

QHash<QString, QString> CatalogueChecker::checkRegistry(const QList<QDir> &dirs, bool legacy)
{
    QHash<QString, QString> kept;
    for (const QDir &dir : dirs) {
        const ZRProductTypeDescriptionReader reader(dir);
        // The same listing as the reader's: its name filter, files only, in file system order.
        const QFileInfoList files = dir.entryInfoList(reader.fileFilter(), QDir::Files, QDir::Unsorted);
        const QStringList types = checkFiles(files, legacy);
        QMap<QString, QStringList> filesByType;
        for (int i = 0; i < files.size(); ++i) {
            if (!types.at(i).isEmpty())
                filesByType[types.at(i)].append(files.at(i).filePath());
        }

        for (auto it = filesByType.cbegin(); it != filesByType.cend(); ++it) {
            QStringList candidates = it.value();
            const QString winner = candidates.takeLast();
            for (const QString &loser : std::as_const(candidates)) {
                report(m_products.value(loser).place, ZRXMLFinding::Error, QStringLiteral("duplicate-product"),
                    QStringLiteral("product '%1' is described again in %2, which the registry keeps (the later file "
                                   "in the directory listing wins)")
                        .arg(it.key(), winner));
            }
            if (kept.contains(it.key())) {
                report(m_products.value(kept.value(it.key())).place, ZRXMLFinding::Note,
                    QStringLiteral("overrides-product"),
                    QStringLiteral("product '%1' overrides its description in %2").arg(it.key(), winner));
            } else {
                kept.insert(it.key(), winner);
            }
        }
    }
    return kept;
}

void CatalogueChecker::checkReplacements(const QHash<QString, QString> &legacy, const QHash<QString, QString> &current)
{
    for (auto it = legacy.cbegin(); it != legacy.cend(); ++it) {
        const Product product = m_products.value(it.value());
        if (!product.replacedBy.isEmpty() && !current.contains(product.replacedBy)) {
            report(product.replacedByPlace, ZRXMLFinding::Error, QStringLiteral("unknown-replacement"),
                QStringLiteral("legacy product '%1' is replaced by '%2', which no current product describes")
                    .arg(it.key(), product.replacedBy));
        }
    }
}

int CatalogueChecker::count(ZRXMLFinding::Severity severity) const
{
    return int(std::count_if(m_findings.cbegin(), m_findings.cend(),
        [severity](const ZRXMLFinding &finding) { return finding.severity == severity; }));
}

Report CatalogueChecker::report() const
{
    // Sorted by file, line and column, each file name compared once.
    QStringList files;
    for (const ZRXMLFinding &finding : m_findings) {
        if (files.isEmpty() || files.constLast() != finding.file)
            files.append(finding.file);
    }
    files.sort();
    files.removeDuplicates();
    QHash<QString, int> rank;
    for (int i = 0; i < files.size(); ++i)
        rank.insert(files.at(i), i);
    std::vector<std::tuple<int, int, int, qsizetype>> sorted;
    sorted.reserve(size_t(m_findings.size()));
    for (qsizetype i = 0; i < m_findings.size(); ++i) {
        const ZRXMLFinding &finding = m_findings.at(i);
        sorted.emplace_back(rank.value(finding.file), finding.line, finding.column, i);
    }
    std::sort(sorted.begin(), sorted.end());
    QList<qsizetype> order;
    order.reserve(m_findings.size());
    for (const auto &entry : sorted)
        order.append(std::get<3>(entry));

    const QList<ZRXMLFinding> findings = m_findings;
    const QStringList lines = m_lines;
    const FindingStyle style = m_style;
    const int errors = count(ZRXMLFinding::Error);
    const int warnings = count(ZRXMLFinding::Warning);
    const int notes = count(ZRXMLFinding::Note);
    const int fileCount = m_fileCount;
    const auto record = [findings, order, errors, warnings, notes, fileCount] {
        Table table({ { QStringLiteral("file"), QStringLiteral("FILE") },
            { QStringLiteral("line"), QStringLiteral("LINE") }, { QStringLiteral("column"), QStringLiteral("COLUMN") },
            { QStringLiteral("severity"), QStringLiteral("SEVERITY") },
            { QStringLiteral("rule"), QStringLiteral("RULE") },
            { QStringLiteral("message"), QStringLiteral("MESSAGE") },
            { QStringLiteral("suggestion"), QStringLiteral("SUGGESTION") } });
        for (const qsizetype i : order) {
            const ZRXMLFinding &finding = findings.at(i);
            table.addRow({ finding.file, finding.line, finding.column, ZRXMLFinding::severityName(finding.severity),
                finding.rule, finding.message,
                finding.suggestion.isEmpty() ? QVariant() : QVariant(finding.suggestion) });
        }
        Record summary;
        summary.add(QStringLiteral("files"), fileCount)
            .add(QStringLiteral("errors"), errors)
            .add(QStringLiteral("warnings"), warnings)
            .add(QStringLiteral("notes"), notes);
        Record result;
        result.add(QStringLiteral("findings"), table).add(QStringLiteral("summary"), summary);
        return result;
    };
    return Report(record, [findings, lines, order, style, errors, warnings, notes, fileCount](QTextStream &out) {
        SourceLines sources;
        for (const qsizetype i : order) {
            out << lines.at(i);
            if (style.showSource)
                printSource(out, findings.at(i), style.colour, &sources);
        }
        if (style.quiet)
            return;
        QStringList counts { counting(errors, QStringLiteral("error")), counting(warnings, QStringLiteral("warning")) };
        if (notes > 0)
            counts.append(counting(notes, QStringLiteral("note")));
        out << counts.join(QLatin1String(", ")) << " in " << counting(fileCount, QStringLiteral("file")) << '\n';
    });
}

void CatalogueChecker::report(
    const ZRXMLFinding &place, ZRXMLFinding::Severity severity, const QString &rule, const QString &message)
{
    ZRXMLFinding finding = place;
    finding.severity = severity;
    finding.rule = rule;
    finding.message = message;
    m_findings.append(finding);
    m_lines.append(findingLine(finding, m_style.colour));
}
