#include "ZRDirectoryConfig.h"

#include <QStandardPaths>

template class ZRSingleton<ZRDirectoryConfig>;

namespace {
QString environmentPath(const char *name)
{
    return qEnvironmentVariable(name);
}
} // namespace

ZRDirectoryConfig::ZRDirectoryConfig()
    : m_resourcesDir(environmentPath("ZR_RESOURCES_DIR"))
    , m_currentProductsDir(environmentPath("ZR_PRODUCTS_DIR"))
    , m_installedProductsDir(environmentPath("ZR_PRODUCTS_FALLBACK_DIR"))
    , m_thumbnailsDir(environmentPath("ZR_THUMBNAILS_DIR"))
{
    if (m_resourcesDir.isEmpty()) {
        m_resourcesDir
            = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QLatin1String("/zr/resources");
    }
    const QString translations = qEnvironmentVariable("ZR_THEMATIC_TRANSLATIONS_DIRS");
    if (!translations.isEmpty()) {
        m_translationsDirs = translations.split(QLatin1Char(':'), Qt::SkipEmptyParts);
        m_translationsDirsSet = true;
    }
}

ZRDirectoryConfig::~ZRDirectoryConfig() = default;

QString ZRDirectoryConfig::resourcePath(const QString &name) const
{
    return QDir(m_resourcesDir).absoluteFilePath(name);
}

QDir ZRDirectoryConfig::productsDir(bool current) const
{
    ZRReadLocker locker(&m_lock);
    if (current)
        return QDir(
            m_currentProductsDir.isEmpty() ? resourcePath(QStringLiteral("products/current")) : m_currentProductsDir);
    return QDir(m_installedProductsDir.isEmpty() ? resourcePath(QStringLiteral("products")) : m_installedProductsDir);
}

QString ZRDirectoryConfig::resource(const QString &name, bool userSpecific) const
{
    Q_UNUSED(userSpecific)
    ZRReadLocker locker(&m_lock);
    return resourcePath(name);
}

QDir ZRDirectoryConfig::resourcesDir() const
{
    ZRReadLocker locker(&m_lock);
    return QDir(m_resourcesDir);
}

QDir ZRDirectoryConfig::glimmerThumbnailsDirectory(bool userSpecific) const
{
    Q_UNUSED(userSpecific)
    ZRReadLocker locker(&m_lock);
    return QDir(m_thumbnailsDir.isEmpty() ? resourcePath(QStringLiteral("thumbnails")) : m_thumbnailsDir);
}

QStringList ZRDirectoryConfig::allGlimmerThematicTranslationsDirectories() const
{
    ZRReadLocker locker(&m_lock);
    if (m_translationsDirsSet)
        return m_translationsDirs;
    return { resourcePath(QStringLiteral("translations")) };
}

void ZRDirectoryConfig::setProductsDir(bool current, const QDir &dir)
{
    ZRWriteLocker locker(&m_lock);
    (current ? m_currentProductsDir : m_installedProductsDir) = dir.absolutePath();
}

void ZRDirectoryConfig::setResourcesDir(const QDir &dir)
{
    ZRWriteLocker locker(&m_lock);
    m_resourcesDir = dir.absolutePath();
}

void ZRDirectoryConfig::setGlimmerThumbnailsDirectory(const QDir &dir)
{
    ZRWriteLocker locker(&m_lock);
    m_thumbnailsDir = dir.absolutePath();
}

void ZRDirectoryConfig::setGlimmerThematicTranslationsDirectories(const QStringList &dirs)
{
    ZRWriteLocker locker(&m_lock);
    m_translationsDirs = dirs;
    m_translationsDirsSet = true;
}
