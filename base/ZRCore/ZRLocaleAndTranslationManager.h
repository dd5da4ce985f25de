#ifndef ZRLOCALEANDTRANSLATIONMANAGER_H
#define ZRLOCALEANDTRANSLATIONMANAGER_H

#include "ZRSingleton.h"
#include "zrcore_export.h"

#include <QByteArray>
#include <QLocale>

/**
 * The user-interface language of the editor. Reached as
 * ZRSingleton<ZRLocaleAndTranslationManager>::instance(). The locale starts as the system locale
 * (or the locale named by the environment variable ZR_LOCALE, such as "en_GB").
 */
class ZRCORE_EXPORT ZRLocaleAndTranslationManager
{
public:
    ZRLocaleAndTranslationManager();
    virtual ~ZRLocaleAndTranslationManager();

    QLocale locale() const;
    /** The two-letter code of the user-interface language ("de", "en"), following locale(). */
    QString languageCode() const;
    /** True when the language was switched during this run. */
    bool languageChanged() const;
    /** One TS document of category translations for the new language, handed over on a language change. */
    QByteArray thematicTranslations() const;

    void setLocale(const QLocale &locale);
    void setLanguageChanged(bool changed);
    void setThematicTranslations(const QByteArray &document);

private:
    mutable ZRReadWriteLock m_lock;
    QLocale m_locale;
    bool m_languageChanged = false;
    QByteArray m_thematicTranslations;
};

extern template class ZRCORE_EXPORT ZRSingleton<ZRLocaleAndTranslationManager>;

#endif
