#include "catalogue.h"

#include "ZRDirectoryConfig.h"
#include "ZRInitializer.h"
#include "ZRLegacyProductTypeConfigRegistry.h"
#include "ZRLocaleAndTranslationManager.h"
#include "ZRProductTypeConfigRegistry.h"
#include "ZRProductTypeDescription.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLocale>
#include <QTranslator>

namespace {
bool isCatalogue(const QString &path)
{
    return QFileInfo(path + QLatin1String("/products")).isDir();
}

bool checkDirectory(const QString &path, QString *error)
{
    if (QFileInfo(path).isDir())
        return true;
    *error = QStringLiteral("no such directory: %1").arg(path);
    return false;
}

/**
 * Installs the library's translation for @p locale: the one installed with the library beside the
 * program, else the one built in this tree. Without either, the display texts stay in the source language.
 */
void installLibraryTranslation(const QLocale &locale)
{
    auto *translator = new QTranslator(QCoreApplication::instance());
    const QString installed = QDir(QCoreApplication::applicationDirPath())
                                  .absoluteFilePath(QStringLiteral(ZRPRODUCTS_INSTALLED_TRANSLATIONS));
    for (const QString &directory : { installed, QStringLiteral(ZRPRODUCTS_BUILD_TRANSLATIONS) }) {
        if (translator->load(locale, QStringLiteral("ZRProductProperties"), QStringLiteral("_"), directory)) {
            QCoreApplication::installTranslator(translator);
            return;
        }
    }
    delete translator;
}

// The resources and translations of one catalogue root go together.
void useResources(ZRDirectoryConfig *config, const QString &resources)
{
    config->setResourcesDir(QDir(resources));
    config->setGlimmerThematicTranslationsDirectories(
        { QDir(resources).absoluteFilePath(QStringLiteral("translations")) });
}
} // namespace

bool Catalogue::configure(const CatalogueOptions &options, QString *error)
{
    if (options.productDirs.size() > 2) {
        *error = QStringLiteral("--products may be given at most twice (current and installed products)");
        return false;
    }
    for (const QString &dir : options.productDirs) {
        if (!checkDirectory(dir, error))
            return false;
    }
    if (!options.resourcesDir.isEmpty() && !checkDirectory(options.resourcesDir, error))
        return false;

    // The language decides which translation files are read and how the library's tables are translated
    // when they are first filled, so it is set before anything is loaded.
    if (!options.language.isEmpty()) {
        const QLocale locale(options.language);
        if (locale.language() == QLocale::C) {
            *error = QStringLiteral("unknown language: %1").arg(options.language);
            return false;
        }
        ZRSingleton<ZRLocaleAndTranslationManager>::instance()->setLocale(locale);
        installLibraryTranslation(locale);
    }

    ZRDirectoryConfig *config = ZRSingleton<ZRDirectoryConfig>::instance();
    const bool fromEnvironment = qEnvironmentVariableIsSet("ZR_PRODUCTS_DIR")
        || qEnvironmentVariableIsSet("ZR_PRODUCTS_FALLBACK_DIR") || qEnvironmentVariableIsSet("ZR_RESOURCES_DIR");
    if (options.productDirs.isEmpty() && options.resourcesDir.isEmpty() && !fromEnvironment) {
        const QString examples = bundledExamplesDir();
        if (examples.isEmpty()) {
            *error = QStringLiteral("no catalogue given and no sample catalogue found; use --products and --resources");
            return false;
        }
        config->setProductsDir(true, QDir(examples + QLatin1String("/products")));
        useResources(config, examples + QLatin1String("/resources"));
        return true;
    }

    if (!options.resourcesDir.isEmpty())
        useResources(config, options.resourcesDir);
    for (int i = 0; i < options.productDirs.size(); ++i)
        config->setProductsDir(i == 0, QDir(options.productDirs.at(i)));
    return true;
}

QString Catalogue::bundledExamplesDir()
{
    const QString installed
        = QDir(QCoreApplication::applicationDirPath()).absoluteFilePath(QStringLiteral(ZRPRODUCTS_INSTALLED_EXAMPLES));
    if (isCatalogue(installed))
        return QDir::cleanPath(installed);
    const QString source = QStringLiteral(ZRPRODUCTS_SOURCE_EXAMPLES);
    if (isCatalogue(source))
        return source;
    return QString();
}

void Catalogue::load()
{
    ZRSingleton<ZRInitializer>::instance()->setupAll(ZRInitializerHeadless);
}

const ZRProductTypeConfigRegistry *Catalogue::registry()
{
    return ZRSingleton<ZRProductTypeConfigRegistry>::instance();
}

const ZRLegacyProductTypeConfigRegistry *Catalogue::legacyRegistry()
{
    return ZRSingleton<ZRLegacyProductTypeConfigRegistry>::instance();
}

const ZRProductTypeDescription *Catalogue::find(const QString &name, bool *legacy)
{
    const ZRProductType type(name);
    const ZRProductTypeConfigRegistryAbstract *registries[] = { registry(), legacyRegistry() };
    for (const ZRProductTypeConfigRegistryAbstract *candidate : registries) {
        const ZRProductTypeDescription *description = candidate->description(type);
        if (description != candidate->voidDescription()) {
            if (legacy)
                *legacy = candidate != registries[0];
            return description;
        }
    }
    return nullptr;
}

// The directories that the registries read, named without creating the registries, which would read them.
QList<QDir> Catalogue::productDirectories()
{
    const ZRDirectoryConfig *config = ZRSingleton<ZRDirectoryConfig>::instance();
    return { config->productsDir(true), config->productsDir(false) };
}

QDir Catalogue::legacyDirectory()
{
    return QDir(ZRSingleton<ZRDirectoryConfig>::instance()->resource(QStringLiteral("products/legacy"), false));
}
