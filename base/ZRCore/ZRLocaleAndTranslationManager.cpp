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
    ZRReadLocker locker(&m_lock);
    return m_locale;
}

QString ZRLocaleAndTranslationManager::languageCode() const
{
    ZRReadLocker locker(&m_lock);
    return m_locale.name().section(QLatin1Char('_'), 0, 0);
}

bool ZRLocaleAndTranslationManager::languageChanged() const
{
    ZRReadLocker locker(&m_lock);
    return m_languageChanged;
}

QByteArray ZRLocaleAndTranslationManager::thematicTranslations() const
{
    ZRReadLocker locker(&m_lock);
    return m_thematicTranslations;
}

void ZRLocaleAndTranslationManager::setLocale(const QLocale &locale)
{
    ZRWriteLocker locker(&m_lock);
    m_locale = locale;
}

void ZRLocaleAndTranslationManager::setLanguageChanged(bool changed)
{
    ZRWriteLocker locker(&m_lock);
    m_languageChanged = changed;
}

void ZRLocaleAndTranslationManager::setThematicTranslations(const QByteArray &document)
{
    ZRWriteLocker locker(&m_lock);
    m_thematicTranslations = document;
}
