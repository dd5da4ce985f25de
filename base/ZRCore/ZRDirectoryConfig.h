#ifndef ZRDIRECTORYCONFIG_H
#define ZRDIRECTORYCONFIG_H

#include "ZRSingleton.h"
#include "zrcore_export.h"

#include <QDir>
#include <QStringList>

/**
 * Where the editor's data lies: product description directories, resources, the pictures of spiral
 * loops and the category translation files. Reached as ZRSingleton<ZRDirectoryConfig>::instance().
 *
 * Defaults come from the environment when the configuration is first used:
 * - ZR_RESOURCES_DIR: the resource directory (default: "zr/resources" in the generic data location);
 * - ZR_PRODUCTS_DIR: the current products, productsDir(true) (default: resources "products/current");
 * - ZR_PRODUCTS_FALLBACK_DIR: the installed products, productsDir(false) (default: resources "products");
 * - ZR_THUMBNAILS_DIR: the spiral loop pictures (default: resources "thumbnails");
 * - ZR_THEMATIC_TRANSLATIONS_DIRS: category translation directories, separated by ':' (default:
 *   resources "translations").
 * The setters replace a value for the rest of the process (tools and tests use them).
 */
class ZRCORE_EXPORT ZRDirectoryConfig
{
public:
    ZRDirectoryConfig();
    virtual ~ZRDirectoryConfig();

    /** The current products directory (@p current true) or the installed one (false). */
    QDir productsDir(bool current) const;
    /** The absolute path of the resource @p name inside the resource directory. */
    QString resource(const QString &name, bool userSpecific) const;
    QDir resourcesDir() const;
    QDir glimmerThumbnailsDirectory(bool userSpecific) const;
    QStringList allGlimmerThematicTranslationsDirectories() const;

    void setProductsDir(bool current, const QDir &dir);
    /** Sets the resource directory; product and thumbnail directories that were not set follow it. */
    void setResourcesDir(const QDir &dir);
    void setGlimmerThumbnailsDirectory(const QDir &dir);
    void setGlimmerThematicTranslationsDirectories(const QStringList &dirs);

private:
    QString resourcePath(const QString &name) const;

    mutable ZRReadWriteLock m_lock;
    QString m_resourcesDir;
    QString m_currentProductsDir;
    QString m_installedProductsDir;
    QString m_thumbnailsDir;
    QStringList m_translationsDirs;
    bool m_translationsDirsSet = false;
};

extern template class ZRCORE_EXPORT ZRSingleton<ZRDirectoryConfig>;

#endif
