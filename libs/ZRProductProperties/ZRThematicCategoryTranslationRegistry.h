#ifndef ZRTHEMATICCATEGORYTRANSLATIONREGISTRY_H
#define ZRTHEMATICCATEGORYTRANSLATIONREGISTRY_H

#include "ZRSingleton.h"
#include "ZRXMLBasedRegistry.h"
#include "zrproductproperties_export.h"

#include <QDomElement>
#include <QHash>
#include <QLocale>
#include <QString>
#include <QStringList>

class ZRThematicCategory;
class ZRThematicCategorySet;
class ZRThematicCategoryTranslationRegistry;

extern template class ZRPRODUCTPROPERTIES_EXPORT ZRSingleton<ZRThematicCategoryTranslationRegistry>;

/**
 * Translations of thematic category names into the user's language, read from TS documents.
 *
 * Reached as ZRSingleton<ZRThematicCategoryTranslationRegistry>::instance(). The constructor loads
 * everything at once: normally the files "*_<language>_*.ts" of the supervised translation
 * directories, after a change of language the TS document handed over by the locale manager.
 * Tables are only ever added to. Thread-safe; it never calls into the category registry, which
 * calls it while holding its own lock.
 */
class ZRPRODUCTPROPERTIES_EXPORT ZRThematicCategoryTranslationRegistry
    : public ZRXMLBasedRegistry,
      public ZRSingleton<ZRThematicCategoryTranslationRegistry>
{
    Q_OBJECT
public:
    /** Loads the translations through init(); use instance() for the process-wide registry. */
    ZRThematicCategoryTranslationRegistry();
    ~ZRThematicCategoryTranslationRegistry() override;

    /**
     * Reads the translation files of the supervised directories or, when the language was changed
     * during this run, the handed-over TS document, falling back to the files when that cannot be read.
     */
    bool init() override;
    /** Reads the TS document of ZRLocaleAndTranslationManager::thematicTranslations(); false when it is no TS document.
     */
    bool initFromZIP();
    /**
     * Reads the first "context" of a TS document into the table of its language. Messages without
     * source or translation, or with an empty translation, are skipped. Returns false, with a
     * warning, for a root that is not "TS", has no "language" or no "context".
     */
    bool parseXML(const QDomElement &root);
    /** Copies @p table into the table of @p localeName; equal sources are overwritten, nothing is removed. */
    void addTranslations(const QString &localeName, const QHash<QString, QString> &table);

    /**
     * The translation of @p source (blanks simplified) for @p locale; a "_metallic" variant falls back
     * to the plain name, a missing territory table to the language's default one. Unknown: @p source.
     */
    QString translation(const QString &source, const QLocale &locale) const;
    /** Same as translation(). */
    QString translate(const QString &source, const QLocale &locale) const;
    /** The visible name of @p category in the current language; in master mode followed by " (visible name)". */
    QString humanReadable(const ZRThematicCategory &category) const;
    /** humanReadable() of every element, in the set's iteration order. */
    QStringList toVisibleStringList(const ZRThematicCategorySet &set) const;

protected:
    QStringList supervisedDirectories() const override;
    /** "*_<language code>_*.ts", fixed at the language of the first call for the rest of the process. */
    QStringList nameFilter() const override;
    bool parseXML(const QFileInfo &file, bool primaryDirectory) override;

private:
    QHash<QString, QHash<QString, QString> *> m_translations;
    mutable ZRReadWriteLock m_lock { QReadWriteLock::Recursive };
};

#endif
