#include "catalogue.h"
#include "checker.h"
#include "descriptions.h"
#include "report.h"
#include "schema.h"

#include "ZRLegacyProductTypeConfigRegistry.h"
#include "ZRProductTypeConfigRegistry.h"
#include "ZRThematicCategory.h"
#include "zrproductproperties_version.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonDocument>
#include <QTextStream>

#include <cstdio>
#include <unistd.h>

namespace {
enum ExitCode
{
    ExitSuccess = 0,
    /** A product that the catalogue does not know, or problems found by "check". */
    ExitFailure = 1,
    ExitUsage = 2,
};

const char description[] = R"(Inspects the product catalogue as the editor reads it.

Commands:
  list                 every product, sorted by name, then the legacy products
  show NAME            everything the description of a product knows
  pages NAME COUNT     the pages of a product with COUNT content pages, with
                       alignment, safety margin and default templates
  check [PATH...]      lints description files, each FILE alone and each DIR as
                       the registry reads it; without PATH the catalogue's
                       product directories and its legacy directory
  categories [NAME...] thematic categories with their names and colours;
                       without NAME the special and the colour categories
  schema               the XML Schema of product description files

Without --products and --resources (and without ZR_PRODUCTS_DIR,
ZR_PRODUCTS_FALLBACK_DIR and ZR_RESOURCES_DIR in the environment) the bundled
sample catalogue is inspected. The first --products is the current products
directory, the second the installed one; where both describe a product, the
first wins. "check DIR..." reads its directories in the same way.

"check" prints one line per finding, "file:line:col: severity: message [rule]",
and on a terminal the source line with a caret under the column, in colour
unless NO_COLOR is set.

Exit status: 0 on success, 1 when "show" or "pages" names an unknown product
or "check" finds an error (or a warning, with --werror), 2 on a usage error.)";

QTextStream &out()
{
    static QTextStream stream(stdout);
    return stream;
}

/** The library's warnings, marked as such, on the standard error output. */
void printMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    Q_UNUSED(context)
    const bool warning = type != QtDebugMsg && type != QtInfoMsg;
    std::fprintf(stderr, "zrproducts: %s%s\n", warning ? "warning: " : "", qUtf8Printable(message));
}

int fail(ExitCode code, const QString &message)
{
    out().flush();
    QTextStream err(stderr);
    err << "zrproducts: " << message << '\n';
    if (code == ExitUsage)
        err << "Try 'zrproducts --help' for more information.\n";
    return code;
}

/** More content pages than any product has; a guard against expanding a mistyped count. */
constexpr uint maximumContentPages = 9999;

/** What every command gets: its arguments (after the command's name) and the options of the command line. */
struct Invocation
{
    QStringList arguments;
    bool quiet = false;
    bool werror = false;
};

/** What a command gives back: the report to print and the exit status, or the message of a failure. */
struct Outcome
{
    Outcome(const Report &report, ExitCode status = ExitSuccess)
        : report(report)
        , status(status)
    { }

    Report report;
    ExitCode status;
    QString error;
};

Outcome failure(ExitCode status, const QString &message)
{
    Outcome outcome(Report(), status);
    outcome.error = message;
    return outcome;
}

Outcome listProducts(const Invocation &invocation)
{
    if (!invocation.arguments.isEmpty())
        return failure(ExitUsage, QStringLiteral("list takes no arguments"));
    Catalogue::load();
    Table current = Descriptions::productTable(false);
    Descriptions::addProducts(&current, Catalogue::registry(), false);
    Table legacy = Descriptions::productTable(true);
    Descriptions::addProducts(&legacy, Catalogue::legacyRegistry(), true);
    Record record;
    record.add(QStringLiteral("products"), current).add(QStringLiteral("legacyProducts"), legacy);
    return { Report(record) };
}

Outcome showProduct(const Invocation &invocation)
{
    if (invocation.arguments.size() != 1)
        return failure(ExitUsage, QStringLiteral("show needs exactly one product name"));
    Catalogue::load();
    bool legacy = false;
    const ZRProductTypeDescription *description = Catalogue::find(invocation.arguments.first(), &legacy);
    if (!description)
        return failure(ExitFailure, QStringLiteral("unknown product \"%1\"").arg(invocation.arguments.first()));
    return { Report(Descriptions::product(*description, legacy)) };
}

Outcome showPages(const Invocation &invocation)
{
    if (invocation.arguments.size() != 2)
        return failure(ExitUsage, QStringLiteral("pages needs a product name and a number of content pages"));
    bool ok = false;
    const uint count = invocation.arguments.at(1).toUInt(&ok);
    if (!ok || count > maximumContentPages)
        return failure(ExitUsage,
            QStringLiteral("not a number of pages from 0 to %1: %2")
                .arg(maximumContentPages)
                .arg(invocation.arguments.at(1)));
    Catalogue::load();
    const ZRProductTypeDescription *description = Catalogue::find(invocation.arguments.first());
    if (!description)
        return failure(ExitFailure, QStringLiteral("unknown product \"%1\"").arg(invocation.arguments.first()));
    return { Report(Descriptions::pages(*description, count)) };
}

Outcome checkCatalogue(const Invocation &invocation)
{
    const bool terminal = isatty(STDOUT_FILENO);
    CatalogueChecker checker({ terminal, terminal && !qEnvironmentVariableIsSet("NO_COLOR"), invocation.quiet });
    if (!invocation.arguments.isEmpty()) {
        QList<QFileInfo> files;
        QList<QDir> directories;
        for (const QString &path : invocation.arguments) {
            const QFileInfo info(path);
            if (!info.exists())
                return failure(ExitUsage, QStringLiteral("no such file or directory: %1").arg(path));
            if (info.isDir())
                directories.append(QDir(path));
            else
                files.append(info);
        }
        checker.checkFiles(files);
        checker.checkRegistry(directories);
    } else {
        const auto current = checker.checkRegistry(Catalogue::productDirectories());
        const auto legacy = checker.checkRegistry({ Catalogue::legacyDirectory() }, true);
        checker.checkReplacements(legacy, current);
    }

    const bool failed
        = checker.count(ZRXMLFinding::Error) > 0 || (invocation.werror && checker.count(ZRXMLFinding::Warning) > 0);
    return { checker.report(), failed ? ExitFailure : ExitSuccess };
}

Outcome showCategories(const Invocation &invocation)
{
    Catalogue::load();
    QList<ZRThematicCategory> categories;
    for (const QString &name : invocation.arguments)
        categories.append(ZRThematicCategory(name));
    if (categories.isEmpty())
        categories = Descriptions::knownCategories();
    return { Report(Descriptions::categories(categories)) };
}

Outcome printSchema(const Invocation &invocation)
{
    if (!invocation.arguments.isEmpty())
        return failure(ExitUsage, QStringLiteral("schema takes no arguments"));
    const QString schema = productDescriptionSchema();
    Record record;
    record.add(QStringLiteral("schema"), schema);
    return { Report(record, [schema](QTextStream &out) { out << schema; }) };
}
} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    qInstallMessageHandler(printMessage);
    QCoreApplication::setApplicationName(QStringLiteral("zrproducts"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ZRPRODUCTPROPERTIES_VERSION_STRING));

    QCommandLineParser parser;
    parser.setApplicationDescription(QString::fromUtf8(description));
    const QCommandLineOption helpOption = parser.addHelpOption();
    const QCommandLineOption versionOption = parser.addVersionOption();
    const QCommandLineOption productsOption(QStringLiteral("products"),
        QStringLiteral("A products directory; give it twice for the current and the installed products."),
        QStringLiteral("dir"));
    const QCommandLineOption resourcesOption(QStringLiteral("resources"),
        QStringLiteral("The resource directory (legacy products, colours, translations, spiral pictures)."),
        QStringLiteral("dir"));
    const QCommandLineOption jsonOption(QStringLiteral("json"), QStringLiteral("Writes JSON instead of text."));
    const QCommandLineOption languageOption(QStringLiteral("lang"),
        QStringLiteral("The language of category names and other texts, such as en or de."), QStringLiteral("code"));
    const QCommandLineOption quietOption({ QStringLiteral("q"), QStringLiteral("quiet") },
        QStringLiteral("check: prints the findings alone, without the summary line."));
    const QCommandLineOption werrorOption(
        QStringLiteral("werror"), QStringLiteral("check: a warning fails the check like an error."));
    parser.addOptions({ productsOption, resourcesOption, jsonOption, languageOption, quietOption, werrorOption });
    parser.addPositionalArgument(QStringLiteral("command"),
        QStringLiteral("list, show, pages, check, categories or schema."), QStringLiteral("<command>"));
    parser.addPositionalArgument(
        QStringLiteral("arguments"), QStringLiteral("The command's arguments."), QStringLiteral("[arguments...]"));

    if (!parser.parse(QCoreApplication::arguments()))
        return fail(ExitUsage, parser.errorText());
    if (parser.isSet(helpOption))
        parser.showHelp(ExitSuccess);
    if (parser.isSet(versionOption))
        parser.showVersion();

    QStringList arguments = parser.positionalArguments();
    if (arguments.isEmpty())
        return fail(ExitUsage, QStringLiteral("no command given"));
    const QString command = arguments.takeFirst();

    using Command = Outcome (*)(const Invocation &);
    const QHash<QString, Command> commands { { QStringLiteral("list"), listProducts },
        { QStringLiteral("show"), showProduct }, { QStringLiteral("pages"), showPages },
        { QStringLiteral("check"), checkCatalogue }, { QStringLiteral("categories"), showCategories },
        { QStringLiteral("schema"), printSchema } };
    const Command run = commands.value(command);
    if (!run)
        return fail(ExitUsage, QStringLiteral("unknown command \"%1\"").arg(command));
    if (run != checkCatalogue && (parser.isSet(quietOption) || parser.isSet(werrorOption)))
        return fail(ExitUsage, QStringLiteral("-q and --werror are options of check"));

    const CatalogueOptions options { parser.values(productsOption), parser.value(resourcesOption),
        parser.value(languageOption) };
    QString error;
    if (!Catalogue::configure(options, &error))
        return fail(ExitUsage, error);

    const Outcome outcome = run({ arguments, parser.isSet(quietOption), parser.isSet(werrorOption) });
    if (!outcome.error.isEmpty())
        return fail(outcome.status, outcome.error);
    if (parser.isSet(jsonOption))
        out() << outcome.report.toJson().toJson(QJsonDocument::Indented);
    else
        outcome.report.print(out());
    out().flush();
    return outcome.status;
}
