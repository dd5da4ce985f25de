#include "ZRLocaleAndTranslationManager.h"

template class ZRSingleton<ZRLocaleAndTranslationManager>;

ZRLocaleAndTranslationManager::ZRLocaleAndTranslationManager()
{
    const QString name = qEnvironmentVariable("ZR_LOCALE");
    if (!name.isEmpty())
        m_locale = QLocale(name);
}

ZRLocaleAndTranslationManager::~ZRLocaleAndTranslationManager() = default;

QLocale ZRLocaleAndTranslationManager::locale() const
{
    QReadLocker locker(&m_lock);
    return m_locale;
}

QString ZRLocaleAndTranslationManager::languageCode() const
{
    QReadLocker locker(&m_lock);
    return m_locale.name().section(QLatin1Char('_'), 0, 0);
}

bool ZRLocaleAndTranslationManager::languageChanged() const
{
    QReadLocker locker(&m_lock);
    return m_languageChanged;
}

QByteArray ZRLocaleAndTranslationManager::thematicTranslations() const
{
    QReadLocker locker(&m_lock);
    return m_thematicTranslations;
}

void ZRLocaleAndTranslationManager::setLocale(const QLocale &locale)
{
    QWriteLocker locker(&m_lock);
    m_locale = locale;
}

void ZRLocaleAndTranslationManager::setLanguageChanged(bool changed)
{
    QWriteLocker locker(&m_lock);
    m_languageChanged = changed;
}

void ZRLocaleAndTranslationManager::setThematicTranslations(const QByteArray &document)
{
    QWriteLocker locker(&m_lock);
    m_thematicTranslations = document;
}
