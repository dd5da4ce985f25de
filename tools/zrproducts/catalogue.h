#ifndef ZRPRODUCTS_CATALOGUE_H
#define ZRPRODUCTS_CATALOGUE_H

#include <QDir>
#include <QList>
#include <QString>
#include <QStringList>

class ZRLegacyProductTypeConfigRegistry;
class ZRProductType;
class ZRProductTypeConfigRegistry;
class ZRProductTypeDescription;

/** Where the catalogue to inspect lies, as given on the command line. */
struct CatalogueOptions
{
    /** At most two: the current products directory, then the installed one. */
    QStringList productDirs;
    QString resourcesDir;
    /** A language code for QLocale ("en", "de_DE"); empty keeps the locale manager's. */
    QString language;
};

/**
 * The catalogue seen through the library, set up as the editor sets it up: the directory
 * configuration and the language first, then the base initializer, which loads the current products.
 */
class Catalogue
{
public:
    /**
     * Sets the language, with the library's translation for it, and the directory configuration.
     * Without any directory, neither as an option nor in the environment (ZR_PRODUCTS_DIR,
     * ZR_PRODUCTS_FALLBACK_DIR, ZR_RESOURCES_DIR), the bundled sample catalogue is used. Returns false
     * and sets @p error for options that cannot be used (more than two product directories, a directory
     * that does not exist, no sample catalogue).
     */
    static bool configure(const CatalogueOptions &options, QString *error);

    /**
     * The sample catalogue installed with the program (<prefix>/share/zrproducts/examples), else the
     * one of the source tree the program was built from; empty when neither exists.
     */
    static QString bundledExamplesDir();

    /** Runs the library initializers; the current products are read here. */
    static void load();

    static const ZRProductTypeConfigRegistry *registry();
    static const ZRLegacyProductTypeConfigRegistry *legacyRegistry();

    /** The description of @p name, current products first, then legacy ones; nullptr when neither knows it. */
    static const ZRProductTypeDescription *find(const QString &name, bool *legacy = nullptr);

    /** The current products directories in the order the registry reads them. */
    static QList<QDir> productDirectories();
    static QDir legacyDirectory();
};

#endif
