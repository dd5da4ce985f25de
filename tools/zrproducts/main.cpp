#include "catalogue.h"
#include "checker.h"
#include "descriptions.h"
#include "report.h"

#include "ZRLegacyProductTypeConfigRegistry.h"
#include "ZRProductTypeConfigRegistry.h"
#include "ZRThematicCategory.h"
#include "zrproductproperties_version.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTextStream>

#include <algorithm>
#include <cstdio>

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
  check [DIR...]       lints description files; without DIR the catalogue's
                       product directories and its legacy directory
  categories [NAME...] thematic categories with their names and colours;
                       without NAME the special and the colour categories

Without --products and --resources (and without ZR_PRODUCTS_DIR,
ZR_PRODUCTS_FALLBACK_DIR and ZR_RESOURCES_DIR in the environment) the bundled
sample catalogue is inspected. The first --products is the current products
directory, the second the installed one; where both describe a product, the
first wins. "check DIR..." reads its directories in the same way.

Exit status: 0 on success, 1 when "show" or "pages" names an unknown product
or "check" finds problems, 2 on a usage error.)";

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

void printJson(const QJsonDocument &document)
{
    out() << document.toJson(QJsonDocument::Indented);
}

/** More content pages than any product has; a guard against expanding a mistyped count. */
constexpr uint maximumContentPages = 9999;

/** What every command gets: its arguments (after the command's name) and the chosen output form. */
struct Invocation
{
    QStringList arguments;
    bool json = false;
};

int listProducts(const Invocation &invocation)
{
    Catalogue::load();
    Table current = Descriptions::productTable(false);
    Descriptions::addProducts(&current, Catalogue::registry(), false);
    Table legacy = Descriptions::productTable(true);
    Descriptions::addProducts(&legacy, Catalogue::legacyRegistry(), true);

    if (invocation.json) {
        QJsonArray products;
        for (const auto &[table, isLegacy] : { std::pair(&current, false), std::pair(&legacy, true) }) {
            const QJsonArray rows = table->toJson();
            for (const QJsonValue &row : rows) {
                QJsonObject object = row.toObject();
                object.insert(QStringLiteral("legacy"), isLegacy);
                products.append(object);
            }
        }
        printJson(QJsonDocument(products));
        return ExitSuccess;
    }
    current.print(out());
    if (legacy.rowCount() > 0) {
        out() << "\nLegacy products\n";
        legacy.print(out());
    }
    return ExitSuccess;
}

int showProduct(const Invocation &invocation)
{
    if (invocation.arguments.size() != 1)
        return fail(ExitUsage, QStringLiteral("show needs exactly one product name"));
    Catalogue::load();
    bool legacy = false;
    const ZRProductTypeDescription *description = Catalogue::find(invocation.arguments.first(), &legacy);
    if (!description)
        return fail(ExitFailure, QStringLiteral("unknown product \"%1\"").arg(invocation.arguments.first()));

    const Record record = Descriptions::product(*description, legacy);
    if (invocation.json)
        printJson(QJsonDocument(record.toJson()));
    else
        record.print(out());
    return ExitSuccess;
}

int showPages(const Invocation &invocation)
{
    if (invocation.arguments.size() != 2)
        return fail(ExitUsage, QStringLiteral("pages needs a product name and a number of content pages"));
    bool ok = false;
    const uint count = invocation.arguments.at(1).toUInt(&ok);
    if (!ok || count > maximumContentPages)
        return fail(ExitUsage,
            QStringLiteral("not a number of pages from 0 to %1: %2")
                .arg(maximumContentPages)
                .arg(invocation.arguments.at(1)));
    Catalogue::load();
    const ZRProductTypeDescription *description = Catalogue::find(invocation.arguments.first());
    if (!description)
        return fail(ExitFailure, QStringLiteral("unknown product \"%1\"").arg(invocation.arguments.first()));

    const Table pages = Descriptions::pages(*description, count);
    if (invocation.json)
        printJson(QJsonDocument(pages.toJson()));
    else
        pages.print(out());
    return ExitSuccess;
}

int checkCatalogue(const Invocation &invocation)
{
    CatalogueChecker checker;
    QList<QDir> directories;
    if (!invocation.arguments.isEmpty()) {
        for (const QString &path : invocation.arguments) {
            if (!QFileInfo(path).isDir())
                return fail(ExitUsage, QStringLiteral("no such directory: %1").arg(path));
            directories.append(QDir(path));
        }
        checker.checkRegistry(directories);
    } else {
        QDir legacyDirectory;
        {
            // The registries' own warnings would repeat what the check reports per file.
            WarningCollector silence;
            Catalogue::load();
            directories = Catalogue::productDirectories();
            legacyDirectory = Catalogue::legacyDirectory();
        }
        const auto current = checker.checkRegistry(directories);
        const auto legacy = checker.checkRegistry({ legacyDirectory });
        checker.checkReplacements(legacy, current);
        directories.append(legacyDirectory);
    }

    // Grouped by file, each file's problems in the order they were found.
    QList<Problem> problems = checker.problems();
    std::stable_sort(
        problems.begin(), problems.end(), [](const Problem &a, const Problem &b) { return a.file < b.file; });
    if (invocation.json) {
        QJsonArray array;
        for (const Problem &problem : problems)
            array.append(problem.toJson());
        printJson(QJsonDocument(array));
    } else {
        for (const Problem &problem : problems)
            out() << problem.toText() << '\n';
        out() << QStringLiteral("%1 files checked in %2 directories: %3\n")
                     .arg(checker.fileCount())
                     .arg(directories.size())
                     .arg(problems.isEmpty() ? QStringLiteral("no problems")
                                             : QStringLiteral("%1 problems").arg(problems.size()));
    }
    return problems.isEmpty() ? ExitSuccess : ExitFailure;
}

int showCategories(const Invocation &invocation)
{
    Catalogue::load();
    QList<ZRThematicCategory> categories;
    for (const QString &name : invocation.arguments)
        categories.append(ZRThematicCategory(name));
    if (categories.isEmpty())
        categories = Descriptions::knownCategories();

    const Table table = Descriptions::categories(categories);
    if (invocation.json)
        printJson(QJsonDocument(table.toJson()));
    else
        table.print(out());
    return ExitSuccess;
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
    parser.addOptions({ productsOption, resourcesOption, jsonOption, languageOption });
    parser.addPositionalArgument(QStringLiteral("command"), QStringLiteral("list, show, pages, check or categories."),
        QStringLiteral("<command>"));
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

    using Command = int (*)(const Invocation &);
    const QHash<QString, Command> commands { { QStringLiteral("list"), listProducts },
        { QStringLiteral("show"), showProduct }, { QStringLiteral("pages"), showPages },
        { QStringLiteral("check"), checkCatalogue }, { QStringLiteral("categories"), showCategories } };
    const Command run = commands.value(command);
    if (!run)
        return fail(ExitUsage, QStringLiteral("unknown command \"%1\"").arg(command));
    if (command == QLatin1String("list") && !arguments.isEmpty())
        return fail(ExitUsage, QStringLiteral("list takes no arguments"));

    const CatalogueOptions options { parser.values(productsOption), parser.value(resourcesOption),
        parser.value(languageOption) };
    QString error;
    if (!Catalogue::configure(options, &error))
        return fail(ExitUsage, error);

    const int status = run({ arguments, parser.isSet(jsonOption) });
    out().flush();
    return status;
}
